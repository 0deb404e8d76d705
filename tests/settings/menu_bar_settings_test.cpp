#include "settings/settings_window.h"

#include "settings/controls/check_box.h"
#include "settings/controls/picker.h"
#include "settings/menu_bar_preview.h"
#include "settings/module_row.h"
#include "views/symbol_button.h"

namespace vantrix {
namespace {

using namespace settings_window;

struct MenuBarSettingsTest : SettingsWindowTest {
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

TEST_F(MenuBarSettingsTest, AltWithArrowsMovesTheRowAndTheFocusWithIt) {
    auto& memory = control<CheckBox>("Memory");
    memory.setFocus(Qt::TabFocusReason);
    press(memory, Qt::Key_Down, Qt::AltModifier);
    press(memory, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(order(), u"cpu,network,disk,memory,gpu,temperature,battery");
    EXPECT_EQ(controller.window()->focusWidget(), &memory);
    EXPECT_EQ(memory.nextInFocusChain()->accessibleName(), u"Move Memory up") << "Tab goes on from the new place";
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

    mouse(memory, QEvent::MouseButtonPress, grip);
    mouse(memory, QEvent::MouseButtonRelease, grip);
    EXPECT_FALSE(memory.isChecked()) << "a click is no drag";
}

TEST_F(MenuBarSettingsTest, ChecksAreStoredAsASortedSetAndThePreviewFollows) {
    control<CheckBox>("GPU").click();
    control<CheckBox>("Battery").click();
    EXPECT_EQ(stored(preference_key::menuBarEnabled), u"battery,cpu,gpu,memory");
    auto* preview = controller.window()->findChild<MenuBarPreview*>();
    EXPECT_TRUE(preview->isVisible());
    store(preference_key::menuBarEnabled, QString());
    EXPECT_FALSE(preview->isVisible());
    EXPECT_TRUE(shows("Select at least one module"));
}

TEST_F(MenuBarSettingsTest, PickersOfferWhatIsThereNowAndWhatIsChosen) {
    auto& volume = control<Picker>("Disk volume");
    const auto entries = [&volume] {
        QStringList texts;
        for (int i = 0; i < volume.count(); ++i)
            texts += volume.itemText(i);
        return texts.join(u'|');
    };
    EXPECT_EQ(entries(), u"System volume|/|/home");
    store(preference_key::diskVolume, QStringLiteral("/gone"));
    EXPECT_EQ(entries(), u"System volume|/|/home|/gone");
    EXPECT_EQ(volume.currentText(), u"/gone");
    volume.pick(2);
    EXPECT_EQ(stored(preference_key::diskVolume), u"/home");
    auto& port = control<Picker>("Network interface");
    EXPECT_EQ(port.count(), 1) << "before the first pass";
    monitor.sample();
    port.showPopup();
    port.pick(1);
    EXPECT_EQ(stored(preference_key::networkInterface), u"en0");
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

} // namespace
} // namespace vantrix
