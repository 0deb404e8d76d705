#include "popover/popover_host.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QVBoxLayout>

#include <gmock/gmock.h>

#include "fakes/fake_appearance.h"
#include "popover/popover_place.h"
#include "posix/spin_until.h"
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

    void press(QPoint place, Qt::MouseButton button = Qt::LeftButton) {
        isMousePressed = true;
        QMouseEvent event(QEvent::MouseButtonPress, window()->mapFromGlobal(place), place, button, button,
                          Qt::NoModifier);
        QApplication::sendEvent(window(), &event);
    }

    void awaitQuestions(int more) {
        const int before = asked;
        EXPECT_TRUE(spinUntil([&] { return asked >= before + more; }));
    }

    /// And lets the time go by in which a status area may tell of the click.
    void release() {
        isMousePressed = false;
        awaitQuestions(15);
    }

    void send(QEvent::Type type) {
        QEvent event(type);
        QApplication::sendEvent(window(), &event);
    }

    const QRect anchor{100, 0, 50, 22};
    bool canFade = false;
    bool isMousePressed = false;
    int asked = 0;
    bool takesMouse = false;
    int inputsTaken = 0;
    std::function<void()> inputLost;
    std::shared_ptr<int> input;
    int viewsMade = 0;
    QSpacerItem* height = new QSpacerItem(0, 500); // its view owns it
    QWidget* view = nullptr;
    fakes::FakeAppearance appearance;
    Theme theme{appearance};
    PopoverHost host{theme,
                     [this] { return makeView(); },
                     {[this] { return canFade; },
                      [this] {
                          ++asked;
                          return isMousePressed;
                      },
                      [this](bool mouse, std::function<void()> lost) {
                          takesMouse = mouse;
                          inputLost = std::move(lost);
                          return input = std::make_shared<int>(++inputsTaken);
                      }}};
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
    EXPECT_EQ(window()->minimumWidth(), window()->maximumWidth()) << "a tiling compositor makes a tile of it";
    const QPoint corner = window()->pos();
    const int free = window()->screen()->availableGeometry().height();
    for (const int wanted : {500, 600, 300, 5000}) {
        height->changeSize(0, wanted);
        view->layout()->invalidate();
        QCoreApplication::processEvents();
        EXPECT_EQ(window()->height(), std::min(popoverHeight(free, wanted), free - corner.y() - 8));
        EXPECT_EQ(window()->pos(), corner);
    }
}

/// Status areas tell of clicks by `toggle`, some when the button is released; while it is open, the popover takes the
/// press of a click, so that others tell of nothing.
TEST_F(PopoverHostTest, AClickActsOnWhatIsSeen) {
    const QPoint onItem = anchor.center();
    const struct {
        const char* name;
        std::function<void()> close;
        bool isClick; ///< of which the status area tells as well
    } rows[] = {
        {"the item, told at its press", [&] { press(onItem); }, true},
        {"the item, told of nothing",
         [&] {
             press(onItem);
             release();
         },
         false},
        {"somewhere else",
         [&] {
             press({900, 600});
         },
         false},
        {"another window, the item's for one", [&] { send(QEvent::WindowDeactivate); }, true},
        {"another window, on a display where the input had to be taken", [&] { inputLost(); }, true},
        {"Escape", [&] { press(window(), Qt::Key_Escape); }, false},
        {"Escape in a view", [&] { press(view, Qt::Key_Escape); }, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        host.show(anchor);
        row.close();
        EXPECT_FALSE(host.isShown());
        EXPECT_EQ(input.use_count(), 1) << "it is let go of";
        if (row.isClick) {
            host.toggle(anchor);
            EXPECT_FALSE(host.isShown());
        }
        host.toggle(anchor); // the next click
        EXPECT_TRUE(host.isShown());
    }
}

TEST_F(PopoverHostTest, AClickIsOneHoweverLateItIsTold) {
    host.show(anchor);
    press(anchor.center());
    awaitQuestions(20); // the button is held
    isMousePressed = false;
    awaitQuestions(10); // the panel is busy
    host.toggle(anchor);
    EXPECT_FALSE(host.isShown());
}

TEST_F(PopoverHostTest, ASecondPressIsAnotherClickHoweverSoonItComes) {
    host.show(anchor);
    press(anchor.center());
    isMousePressed = false;
    awaitQuestions(2);
    isMousePressed = true;
    awaitQuestions(1);
    host.toggle(anchor);
    EXPECT_TRUE(host.isShown());
}

class PressedItem : public StatusItem {
  public:
    void show(const StatusContent&) override {}
    QRect anchor() const override { return {100, 0, 50, 22}; }
    bool placeIsKnown() const override { return true; }
    void click(const StatusClick& click) const override { clicks.push_back(click.button); }

    void popoverShown(bool now) const override { knowsItIsShown = now; }

    mutable bool knowsItIsShown = false;
    mutable std::vector<StatusClick::Button> clicks;
};

TEST_F(PopoverHostTest, ARightClickOnTheItemIsPassedOn) {
    PressedItem item;
    for (const auto& [place, button] : {std::pair(anchor.center(), Qt::LeftButton),
                                        {anchor.center(), Qt::RightButton},
                                        {QPoint(900, 600), Qt::RightButton}}) {
        host.show(item);
        EXPECT_TRUE(takesMouse) << "or a press on the item goes to the panel";
        EXPECT_TRUE(item.knowsItIsShown);
        press(place, button);
        EXPECT_FALSE(host.isShown() || item.knowsItIsShown);
    }
    EXPECT_THAT(item.clicks, testing::ElementsAre(StatusClick::Button::right));
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
