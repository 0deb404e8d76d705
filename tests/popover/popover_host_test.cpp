#include "popover/popover_host.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
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
        auto* layout = new QVBoxLayout(made.get());
        for (QPushButton*& button : buttons)
            layout->addWidget(button = new QPushButton(made.get()));
        view = made.get();
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
    QWidget* view = nullptr;
    QPushButton* buttons[2] = {};
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

TEST_F(PopoverHostTest, IsAsLargeAsTheScreenSaysWhateverItShows) {
    const QSize wanted(340, popoverHeight(QGuiApplication::primaryScreen()->availableGeometry().height()));
    for (const QSize& content : {QSize(20, 20), QSize(600, 4000)}) {
        host.show(anchor);
        view->setMinimumSize(content);
        QApplication::sendPostedEvents();
        host.close();
        host.show(anchor);
        QApplication::sendPostedEvents();
        EXPECT_EQ(window()->size(), wanted) << content.width();
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
                                          [&] { press(buttons[0], Qt::Key_Escape); },
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

TEST_F(PopoverHostTest, TabGoesThroughItsControlsAnewEachTime) {
    for (int round = 0; round < 2; ++round) {
        host.show(anchor);
        EXPECT_EQ(window()->focusWidget(), window());
        press(window(), Qt::Key_Tab);
        EXPECT_EQ(window()->focusWidget(), buttons[0]);
        press(buttons[0], Qt::Key_Tab);
        EXPECT_EQ(window()->focusWidget(), buttons[1]);
        host.close();
    }
}

TEST_F(PopoverHostTest, FadesInAndComesToRestOnlyWhereItCanAndShould) {
    host.show(anchor);
    EXPECT_EQ(window()->windowOpacity(), 1.0);
    host.close();
    canFade = true;
    host.show(anchor);
    EXPECT_LT(window()->windowOpacity(), 0.5);
    const QDeadlineTimer deadline(10000);
    while (host.isFading() && !deadline.hasExpired())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    EXPECT_EQ(window()->windowOpacity(), 1.0);
    host.close();
    host.show(anchor);
    host.close();
    EXPECT_FALSE(host.isFading()) << "closed while it faded in";
    appearance.set({.reducesMotion = true});
    host.show(anchor);
    EXPECT_EQ(window()->windowOpacity(), 1.0);
}

TEST_F(PopoverHostTest, HasTheThemesGroundAndRoundCorners) {
    for (const bool dark : {false, true}) {
        appearance.set({.dark = dark});
        host.show(anchor);
        QImage picture(window()->size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        window()->render(&picture, QPoint(), QRegion(), QWidget::DrawWindowBackground);
        EXPECT_EQ(picture.pixelColor(picture.rect().center()), theme.colors().window);
        EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
        EXPECT_EQ(view->palette().color(QPalette::WindowText), theme.palette().color(QPalette::WindowText));
        host.close();
    }
}

} // namespace
} // namespace vantrix
