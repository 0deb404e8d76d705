#include "settings/menu_bar_settings.h"

#include <QVBoxLayout>

#include "menubar/preferences.h"
#include "settings/bindings.h"
#include "settings/controls/drawing.h"
#include "settings/controls/segmented_control.h"
#include "settings/controls/switch.h"
#include "settings/menu_bar_preview.h"
#include "settings/module_list.h"
#include "support/user_defaults.h"

namespace vantrix {

MenuBarSettings::MenuBarSettings(const Theme& theme, UserDefaults& defaults, const SystemMonitor& monitor)
    : Form(theme), defaults_(defaults) {
    addPreview(monitor);
    addStyle();
    addSection(localizedText("Modules"),
               {localizedText("Only the checked modules appear in the menu bar, in this order. With none selected, "
                              "Vantrix shows just its icon.")})
        .addRow(new ModuleList(theme, defaults_));
}

void MenuBarSettings::addPreview(const SystemMonitor& monitor) {
    auto* holder = new QWidget;
    auto* column = new QVBoxLayout(holder);
    column->setContentsMargins(FormRow::sidePadding, 12, FormRow::sidePadding, 12);
    auto* preview = new MenuBarPreview(theme(), defaults_, monitor);
    const TextLabel::Style style{.points = bodyPoints, .color = &ThemeColors::secondary, .wraps = true};
    auto* nothing = new TextLabel(theme(), style, localizedText("Select at least one module"));
    column->addWidget(preview);
    column->addWidget(nothing);
    addSection(localizedText("Preview")).addRow(holder);
    follow(*holder, defaults_, [this, preview, nothing] {
        const bool empty = enabledMenuBarModules(defaults_).empty();
        preview->setVisible(!empty);
        nothing->setVisible(empty);
    });
}

void MenuBarSettings::addStyle() {
    FormSection& section = addSection(localizedText("Style"));
    const QString name = localizedText("Layout");
    QStringList titles;
    for (const auto& style : menuBarStyles)
        titles.append(localizedText(style.title));
    auto* layouts = new SegmentedControl(theme(), name, titles);
    follow(*layouts, defaults_, [this, layouts] { layouts->setCurrent(static_cast<int>(menuBarStyle(defaults_))); });
    connect(layouts, &SegmentedControl::chosen, this, [this](int index) {
        defaults_.set(preference_key::menuBarStyle,
                      QString::fromUtf8(menuBarStyles[static_cast<std::size_t>(index)].rawValue));
    });
    section.addRow({.caption = name, .control = layouts});

    const QString colorize = localizedText("Color values above the thresholds");
    auto* control = new Switch(theme(), colorize);
    bindSwitch(*control, defaults_, preference_key::menuBarColorize);
    section.addRow({.caption = colorize, .control = control});
}

} // namespace vantrix
