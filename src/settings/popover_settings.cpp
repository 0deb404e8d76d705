#include "settings/popover_settings.h"

#include "menubar/preferences.h"
#include "settings/bindings.h"
#include "settings/controls/drawing.h"
#include "settings/controls/switch.h"
#include "views/symbol_view.h"

namespace vantrix {

PopoverSettings::PopoverSettings(const Theme& theme, UserDefaults& defaults) : Form(theme) {
    FormSection& section = addSection(
        localizedText("Cards"), {localizedText("GPU, Sensors and Battery only appear on Macs that report them.")});
    for (const auto& card : popoverCards) {
        const bool fixed = card.value == PopoverCard::cpu || card.value == PopoverCard::gpu;
        const QString title = fixed ? QString::fromUtf8(card.title) : localizedText(card.title);
        auto* shown = new Switch(theme, title);
        bindMember(*shown, defaults, preference_key::visibleCards, card.rawValue);
        auto* symbol = new SymbolView(theme, card.symbolName, bodyPoints, &ThemeColors::secondary);
        section.addRow({.caption = title, .control = shown, .mark = symbol});
    }
}

} // namespace vantrix
