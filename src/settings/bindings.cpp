#include "settings/bindings.h"

#include <algorithm>
#include <cmath>

#include <QAbstractButton>

#include "menubar/preferences.h"
#include "settings/controls/drawing.h"
#include "settings/controls/picker.h"
#include "settings/controls/slider.h"
#include "settings/settings_texts.h"
#include "support/user_defaults.h"

namespace vantrix {
namespace {

void offer(Picker& picker, std::vector<double> seconds, double present) {
    if (std::find(seconds.begin(), seconds.end(), present) == seconds.end())
        seconds.insert(std::upper_bound(seconds.begin(), seconds.end(), present), present);
    const auto offersAlready = [&] {
        if (picker.count() != static_cast<int>(seconds.size()))
            return false;
        for (int i = 0; i < picker.count(); ++i)
            if (picker.itemData(i).toDouble() != seconds[static_cast<std::size_t>(i)])
                return false;
        return true;
    };
    if (!offersAlready()) {
        picker.clear();
        for (const double value : seconds)
            picker.addItem(secondsText(value), value);
        picker.updateGeometry();
    }
    picker.setCurrentIndex(picker.findData(present));
}

} // namespace

void follow(QObject& context, const UserDefaults& defaults, const std::function<void()>& show) {
    QObject::connect(&defaults, &UserDefaults::changed, &context, show);
    show();
}

void bindSwitch(QAbstractButton& button, UserDefaults& defaults, const QString& key, const QString& master) {
    follow(button, defaults, [&button, &defaults, key, master] {
        button.setChecked(defaults.boolean(key) && (master.isEmpty() || defaults.boolean(master)));
    });
    QObject::connect(&button, &QAbstractButton::clicked, &button, [&defaults, key](bool on) { defaults.set(key, on); });
}

void bindSlider(Slider& slider, UserDefaults& defaults, const QString& key) {
    follow(slider, defaults, [&slider, &defaults, key] { slider.setFraction(defaults.number(key)); });
    QObject::connect(&slider, &Slider::fractionChosen, &slider,
                     [&defaults, key](double fraction) { defaults.set(key, fraction); });
}

void bindWholeSlider(Slider& slider, UserDefaults& defaults, const QString& key) {
    follow(slider, defaults, [&slider, &defaults, key] { slider.setFraction(defaults.number(key) / 100.0); });
    QObject::connect(&slider, &Slider::fractionChosen, &slider,
                     [&defaults, key](double fraction) { defaults.set(key, std::round(fraction * 100.0)); });
}

void bindSeconds(Picker& picker, UserDefaults& defaults, const QString& key, const std::vector<double>& choices,
                 const std::function<double()>& present) {
    follow(picker, defaults, [&picker, choices, present] { offer(picker, choices, present()); });
    QObject::connect(&picker, &QComboBox::activated, &picker, [&picker, &defaults, key, present](int index) {
        const double chosen = picker.itemData(index).toDouble();
        if (chosen != present())
            defaults.set(key, chosen);
    });
}

void bindName(Picker& picker, UserDefaults& defaults, const QString& key, const QString& none,
              const std::function<std::vector<std::string>()>& names) {
    const auto offer = [&picker, &defaults, key, none, names] {
        QStringList entries{QString()};
        for (const std::string& name : names())
            entries += QString::fromStdString(name);
        const QString present = defaults.string(key).value_or(QString());
        if (!entries.contains(present))
            entries += present;
        QStringList offered;
        for (int i = 0; i < picker.count(); ++i)
            offered += picker.itemData(i).toString();
        if (entries != offered) {
            picker.clear();
            for (const QString& entry : entries)
                picker.addItem(entry.isEmpty() ? none : entry, entry);
            picker.updateGeometry();
        }
        picker.setCurrentIndex(picker.findData(present));
    };
    picker.willOpen = offer;
    follow(picker, defaults, offer);
    QObject::connect(&picker, &QComboBox::activated, &picker,
                     [&picker, &defaults, key](int index) { defaults.set(key, picker.itemData(index).toString()); });
}

void bindMember(QAbstractButton& button, UserDefaults& defaults, const QString& key, std::string_view rawValue) {
    const auto stored = [&defaults, key] { return defaults.string(key).value_or(QString()); };
    follow(button, defaults, [&button, stored, rawValue] {
        button.setChecked(stored().split(u',').contains(QString::fromUtf8(rawValue)));
    });
    QObject::connect(&button, &QAbstractButton::clicked, &button, [&defaults, key, stored, rawValue](bool on) {
        defaults.set(key, withName(stored(), rawValue, on));
    });
}

} // namespace vantrix
