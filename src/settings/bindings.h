#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QString>

class QAbstractButton;
class QObject;

namespace vantrix {

class Picker;
class Slider;
class UserDefaults;

/// Calls `show` now and whenever a setting may have changed, as long as `context` lives.
void follow(QObject& context, const UserDefaults& defaults, const std::function<void()>& show);

/// Ties a control to the setting under `key`, both ways. Only what a person does is stored: a value that the control
/// cannot show exactly stays as it is. `defaults` outlives the control. A switch shows off while the setting `master`,
/// where it has one, is off.
void bindSwitch(QAbstractButton& button, UserDefaults& defaults, const QString& key, const QString& master = {});
void bindSlider(Slider& slider, UserDefaults& defaults, const QString& key);
/// Stored are whole numbers, a hundred times what the slider stands at.
void bindWholeSlider(Slider& slider, UserDefaults& defaults, const QString& key);

/// The picker offers `choices` seconds and the present value, even if it is none of them; `present` reads it.
void bindSeconds(Picker& picker, UserDefaults& defaults, const QString& key, const std::vector<double>& choices,
                 const std::function<double()>& present);

/// The picker offers what `names` lists, looked up anew whenever it opens, below `none`, which stands for the empty
/// text; also the present name, where that is not among them.
void bindName(Picker& picker, UserDefaults& defaults, const QString& key, const QString& none,
              const std::function<std::vector<std::string>()>& names);

/// Ties the switch to one name of the set stored under `key`.
void bindMember(QAbstractButton& button, UserDefaults& defaults, const QString& key, std::string_view rawValue);

} // namespace vantrix
