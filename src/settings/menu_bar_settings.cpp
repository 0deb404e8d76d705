#include "settings/menu_bar_settings.h"

#include <QStackedLayout>
#include <QVBoxLayout>

#include "menubar/preferences.h"
#include "monitor/system_monitor.h"
#include "settings/bindings.h"
#include "settings/choice_control.h"
#include "settings/controls/drawing.h"
#include "settings/controls/picker.h"
#include "settings/controls/switch.h"
#include "settings/menu_bar_preview.h"
#include "settings/module_list.h"
#include "support/user_defaults.h"

namespace vantrix {

namespace {

QWidget* padded(TextLabel* label) {
    auto* holder = new QWidget;
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(FormRow::sidePadding, 0, FormRow::sidePadding, 0);
    layout->addStretch(1);
    layout->addWidget(label);
    layout->addStretch(1);
    return holder;
}

} // namespace

MenuBarSettings::MenuBarSettings(const Theme& theme, UserDefaults& defaults, const SystemMonitor& monitor)
    : Form(theme), defaults_(defaults) {
    addPreview(monitor);
    addStyle();
    addSection(localizedText("Modules"),
               {localizedText("Only the checked modules appear in the menu bar, in this order. With none selected, "
                              "Vantrix shows just its icon.")})
        .addRow(new ModuleList(theme, defaults_));
    addContents(monitor);
}

void MenuBarSettings::addPreview(const SystemMonitor& monitor) {
    const QString nothing = localizedText("Select at least one module");
    // One over the other: unchecking the last module must not move the list under the pointer.
    auto* holder = new QWidget;
    auto* pages = new QStackedLayout(holder);
    pages->addWidget(new MenuBarPreview(theme(), defaults_, monitor));
    pages->addWidget(padded(
        new TextLabel(theme(), {.points = bodyPoints, .color = &ThemeColors::secondary, .wraps = true}, nothing)));
    addSection(localizedText("Preview")).addRow(holder);
    follow(*holder, defaults_, [this, pages] { pages->setCurrentIndex(enabledMenuBarModules(defaults_).empty()); });
}

void MenuBarSettings::addContents(const SystemMonitor& monitor) {
    FormSection& section =
        addSection(localizedText("What modules show"),
                   {localizedText("Interface and volume count in the popover and for alerts as well.")});
    const auto addPicker = [&](const QString& caption, const QString& key, const QString& none, const auto& names) {
        auto* picker = new Picker(theme(), caption);
        bindName(*picker, defaults_, key, none, names);
        section.addRow({.caption = caption, .control = picker});
    };
    addPicker(localizedText("Network interface"), preference_key::networkInterface, localizedText("All hardware ports"),
              [&monitor] { return monitor.networkPorts(); });
    addPicker(localizedText("Disk volume"), preference_key::diskVolume, localizedText("System volume"),
              [&monitor] { return monitor.volumes(); });
    const QString disk = localizedText("Disk");
    section.addRow(
        {.caption = disk,
         .control = choiceControl(theme(), defaults_, preference_key::diskModuleShows, disk, diskModuleContents)});
    const QString temperature = localizedText("CPU temperature");
    section.addRow({.caption = temperature,
                    .control = choiceControl(theme(), defaults_, preference_key::temperatureModuleShows, temperature,
                                             temperatureModuleContents)});
}

void MenuBarSettings::addStyle() {
    FormSection& section = addSection(localizedText("Style"));
    const QString name = localizedText("Layout");
    section.addRow({.caption = name,
                    .control = choiceControl(theme(), defaults_, preference_key::menuBarStyle, name, menuBarStyles)});

    const QString colorize = localizedText("Color values above the thresholds");
    auto* control = new Switch(theme(), colorize);
    bindSwitch(*control, defaults_, preference_key::menuBarColorize);
    section.addRow({.caption = colorize, .control = control});
}

} // namespace vantrix
