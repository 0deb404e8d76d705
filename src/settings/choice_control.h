#pragma once

#include <vector>

#include "menubar/preferences.h"
#include "settings/bindings.h"
#include "settings/controls/segmented_control.h"
#include "support/user_defaults.h"

namespace vantrix {

/// One segment for each of `choices`, tied to the choice stored under `key`, both ways.
template<typename Case, std::size_t N>
SegmentedControl* choiceControl(const Theme& theme, UserDefaults& defaults, const QString& key, const QString& name,
                                const std::array<Choice<Case>, N>& choices) {
    QStringList titles;
    for (const auto& choice : choices)
        titles.append(localizedText(choice.title));
    auto* control = new SegmentedControl(theme, name, titles);
    follow(*control, defaults, [control, &defaults, key, &choices] {
        control->setCurrent(static_cast<int>(chosen(defaults, key, choices)));
    });
    QObject::connect(control, &SegmentedControl::chosen, control, [&defaults, key, &choices](int index) {
        defaults.set(key, QString::fromUtf8(choices[static_cast<std::size_t>(index)].rawValue));
    });
    return control;
}

} // namespace vantrix
