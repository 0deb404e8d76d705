#include "popover/popover_host.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QVBoxLayout>

#include <gmock/gmock.h>

#include "fakes/fake_appearance.h"
#include "popover/popover_place.h"
#include "views/theme.h"

namespace vantrix {
namespace {

class PopoverHostTest : public ::testing::Test {
  protected:
    std::unique_ptr<QWidget> makeView() {
        ++viewsMade;
        auto made = std::make_unique<QWidget>();
        view = made.get();
        auto* content = new QVBoxLayout(view);
        content->setContentsMargins({});
        content->addSpacerItem(height);
        return made;
    }

    QWidget* window() const { return view->window(); }

    void press(QWidget* receiver, Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(receiver, &event);
    }

    static void click(QWidget& window, QPoint place) {
        QMouseEvent event(QEvent::MouseButtonPress, window.mapFromGlobal(place), place, Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&window, &event);
    }

    const QRect anchor{100, 0, 50, 22};
    bool canFade = false;
    int viewsMade = 0;
    QSpacerItem* height = new QSpacerItem(0, 500); // its view owns it
    QWidget* view = nullptr;
    fakes::FakeAppearance appearance;
    Theme theme{appearance};
    PopoverHost host{theme, [this] { return makeView(); }, [this] { return canFade; }};
};

TEST_F(PopoverHostTest, MakesItsViewWhenItIsFirstShownAndKeepsIt) {
    host.close();
    EXPECT_EQ(viewsMade, 0);
    for (int round = 0; round < 3; ++round) {
        round == 0 ? host.toggle(anchor) : host.show(anchor);
        EXPECT_TRUE(host.isShown() && view->isVisible());
        host.toggle(anchor);
        EXPECT_FALSE(host.isShown() || view->isVisible());
    }
    EXPECT_EQ(viewsMade, 1);
}

TEST_F(PopoverHostTest, IsAsTallAsItsContentAndFollowsIt) {
    host.show(anchor);
    const QPoint corner = window()->pos();
    for (const int wanted : {500, 600, 300, 5000}) {
        height->changeSize(0, wanted);
        view->layout()->invalidate();
        QCoreApplication::processEvents();
        EXPECT_EQ(window()->height(), popoverHeight(window()->screen()->availableGeometry().height(), wanted));
        EXPECT_EQ(window()->pos(), corner);
    }
}

TEST_F(PopoverHostTest, AClickOutsideClosesItAndDoesNotReopenIt) {
    host.show(anchor);
    click(*window(), window()->mapToGlobal(QPoint(-50, -10)));
    EXPECT_FALSE(host.isShown());
    host.toggle(anchor); // the same click, where it landed on the status item
    EXPECT_FALSE(host.isShown());
    host.toggle(anchor); // the next one
    EXPECT_TRUE(host.isShown());
}

TEST_F(PopoverHostTest, TheFrameKnowsTheClickThatClosedItHoweverLongItWasHeld) {
    PopoverFrame frame(theme, std::make_unique<QWidget>());
    frame.setGeometry(100, 100, 340, 480);
    const QRect item(200, 0, 60, 22);
    for (const bool onItem : {true, false}) {
        frame.show();
        click(frame, onItem ? item.center() : QPoint(900, 600));
        EXPECT_FALSE(frame.isVisible());
        EXPECT_EQ(frame.closedBySameClick(item, 0), onItem); // however long ago
        EXPECT_FALSE(frame.closedBySameClick(item, 0));      // the next click is another one
    }
}

TEST_F(PopoverHostTest, EscapeAndLosingTheFocusCloseIt) {
    const std::function<void()> ways[] = {[&] { press(window(), Qt::Key_Escape); },
                                          [&] { press(view, Qt::Key_Escape); },
                                          [&] {
                                              QEvent deactivate(QEvent::WindowDeactivate);
                                              QApplication::sendEvent(window(), &deactivate);
                                          }};
    for (const auto& way : ways) {
        host.show(anchor);
        way();
        EXPECT_FALSE(host.isShown());
    }
}

TEST_F(PopoverHostTest, FadesInWhereItShouldAndOnlyWhileItIsOpen) {
    canFade = true;
    host.show(anchor);
    EXPECT_TRUE(host.isFading());
    host.close();
    EXPECT_FALSE(host.isFading());
    appearance.set({.reducesMotion = true});
    host.show(anchor);
    EXPECT_EQ(window()->windowOpacity(), 1.0);
}

} // namespace
} // namespace vantrix
