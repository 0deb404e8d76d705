#include "settings/settings_window.h"

#include <QRadioButton>

#include "settings/controls/check_box.h"
#include "settings/menu_bar_preview.h"
#include "settings/module_row.h"
#include "views/symbol_button.h"

namespace vantrix {
namespace {

using namespace settings_window;

class MenuBarSettingsTest : public SettingsWindowTest {
  protected:
    MenuBarSettingsTest() { show(SettingsTab::menuBar); }

    QString order() const { return stored(preference_key::menuBarOrder); }

    /// The modules from top to bottom, as they stand in the window.
    QString shownOrder() {
        std::map<int, MenuBarModule> rows;
        for (const ModuleRow* row : controller.window()->findChildren<ModuleRow*>())
            rows[row->y()] = row->module();
        std::vector<MenuBarModule> modules;
        for (const auto& [y, module] : rows)
            modules.push_back(module);
        return orderText(modules);
    }
};

TEST_F(MenuBarSettingsTest, ButtonsSwapNeighboursAndStoreAllSeven) {
    control<SymbolButton>("Move Memory up").click();
    EXPECT_EQ(order(), u"memory,cpu,network,disk,gpu,temperature,battery");
    EXPECT_EQ(shownOrder(), order());
    control<SymbolButton>("Move CPU temperature down").click();
    EXPECT_EQ(order(), u"memory,cpu,network,disk,gpu,battery,temperature");
    store(preference_key::menuBarOrder, QStringLiteral("battery,unknown,battery"));
    EXPECT_EQ(shownOrder(), u"battery,cpu,memory,network,disk,gpu,temperature") << "a change from outside";
}

TEST_F(MenuBarSettingsTest, NothingMovesOutOfTheList) {
    const QString before = order();
    EXPECT_FALSE(control<SymbolButton>("Move CPU up").isEnabled());
    EXPECT_TRUE(control<SymbolButton>("Move Memory up").isEnabled());
    EXPECT_FALSE(control<SymbolButton>("Move Battery down").isEnabled());
    press(control<CheckBox>("CPU"), Qt::Key_Up, Qt::AltModifier);
    press(control<CheckBox>("Battery"), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(order(), before);
}

TEST_F(MenuBarSettingsTest, AltWithArrowsMovesTheRowAndTheFocusWithIt) {
    auto& memory = control<CheckBox>("Memory");
    memory.setFocus(Qt::TabFocusReason);
    press(memory, Qt::Key_Down, Qt::AltModifier);
    press(memory, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(order(), u"cpu,network,disk,memory,gpu,temperature,battery");
    EXPECT_EQ(controller.window()->focusWidget(), &memory);
    EXPECT_EQ(memory.nextInFocusChain()->accessibleName(), u"Move Memory up") << "Tab goes on from the new place";

    auto& up = control<SymbolButton>("Move Network up");
    up.setFocus(Qt::TabFocusReason);
    press(up, Qt::Key_Space);
    EXPECT_EQ(order(), u"network,cpu,disk,memory,gpu,temperature,battery");
    EXPECT_EQ(controller.window()->focusWidget()->accessibleName(), u"Move Network down")
        << "the row keeps the focus when its button has done all it can";
}

TEST_F(MenuBarSettingsTest, RowsAreDraggedByThePointer) {
    auto& memory = control<CheckBox>("Memory");
    const int height = memory.parentWidget()->height();
    const QPoint grip = memory.rect().center();
    mouse(memory, QEvent::MouseButtonPress, grip);
    mouse(memory, QEvent::MouseMove, grip + QPoint(0, height));
    EXPECT_EQ(order(), u"cpu,memory,network,disk,gpu,temperature,battery") << "only the drop counts";
    mouse(memory, QEvent::MouseMove, grip + QPoint(0, height));
    mouse(memory, QEvent::MouseButtonRelease, grip);
    EXPECT_EQ(order(), u"cpu,network,disk,memory,gpu,temperature,battery");
    EXPECT_EQ(shownOrder(), order());
    EXPECT_TRUE(memory.isChecked()) << "a drag is no click";

    QWidget& row = *memory.parentWidget();
    mouse(row, QEvent::MouseButtonPress, {3, 3});
    mouse(row, QEvent::MouseMove, {3, -1000});
    mouse(row, QEvent::MouseButtonRelease, {3, 3});
    EXPECT_EQ(order(), u"memory,cpu,network,disk,gpu,temperature,battery") << "by its handle, beyond the list's edge";

    mouse(memory, QEvent::MouseButtonPress, grip);
    mouse(memory, QEvent::MouseButtonRelease, grip);
    EXPECT_FALSE(memory.isChecked()) << "a click is no drag";
}

TEST_F(MenuBarSettingsTest, ClosingTheWindowCallsADragOff) {
    const QString before = order();
    auto& cpu = control<CheckBox>("CPU");
    mouse(cpu, QEvent::MouseButtonPress, {5, 5});
    mouse(cpu, QEvent::MouseMove, {5, 100});
    controller.window()->close();
    show(SettingsTab::menuBar);
    mouse(cpu, QEvent::MouseMove, {5, 300});
    EXPECT_EQ(shownOrder(), before);
    EXPECT_EQ(order(), before);
}

TEST_F(MenuBarSettingsTest, ChecksAreStoredAsASortedSetAndThePreviewFollows) {
    control<CheckBox>("GPU").click();
    control<CheckBox>("Battery").click();
    EXPECT_EQ(stored(preference_key::menuBarEnabled), u"battery,cpu,gpu,memory");
    auto* preview = controller.window()->findChild<MenuBarPreview*>();
    for (const char* name : {"GPU", "Battery", "CPU", "Memory"}) {
        EXPECT_TRUE(preview->isVisible());
        EXPECT_FALSE(shows("Select at least one module"));
        control<CheckBox>(name).click();
    }
    EXPECT_EQ(stored(preference_key::menuBarEnabled), u"");
    EXPECT_FALSE(preview->isVisible());
    EXPECT_TRUE(shows("Select at least one module"));
    store(preference_key::menuBarEnabled, QStringLiteral("cpu"));
    EXPECT_TRUE(preview->isVisible());
}

TEST_F(MenuBarSettingsTest, ThePreviewDrawsTheReadingsAndKeepsARowOfAllModulesInside) {
    auto* preview = controller.window()->findChild<MenuBarPreview*>();
    const QImage before = preview->grab().toImage();
    monitor.loadDemo();
    EXPECT_NE(preview->grab().toImage(), before);
    store(preference_key::menuBarStyle, QStringLiteral("inline"));
    store(preference_key::menuBarEnabled, QStringLiteral("battery,cpu,disk,gpu,memory,network,temperature"));
    const QImage image = preview->grab().toImage();
    for (int y = 4; y < image.height() - 4; ++y)
        EXPECT_EQ(image.pixel(6, y), image.pixel(image.width() - 7, y)) << "text at the edge, line " << y;
}

TEST_F(MenuBarSettingsTest, TheLayoutIsOneOfThree) {
    control<QRadioButton>("With graph").click();
    EXPECT_EQ(stored(preference_key::menuBarStyle), u"graph");
    control<QRadioButton>("With graph").setFocus();
    press(control<QRadioButton>("With graph"), Qt::Key_Left);
    EXPECT_EQ(stored(preference_key::menuBarStyle), u"stacked");
    store(preference_key::menuBarStyle, QStringLiteral("inline"));
    EXPECT_TRUE(control<QRadioButton>("Inline").isChecked());
}

} // namespace
} // namespace vantrix
