#pragma once

#include <array>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <QString>
#include <QVariant>

#include "menubar/display_choices.h"

namespace vantrix {

class UserDefaults;

/// The keys under which the user's choices are stored.
namespace preference_key {
inline const QString updateInterval = QStringLiteral("updateInterval"); ///< seconds
inline const QString menuBarOrder = QStringLiteral("menuBarOrder");
inline const QString menuBarEnabled = QStringLiteral("menuBarEnabled");
inline const QString menuBarStyle = QStringLiteral("menuBarStyle");
inline const QString menuBarColorize = QStringLiteral("menuBarColorize");
inline const QString warningThreshold = QStringLiteral("warningThreshold");   ///< 0 to 1
inline const QString criticalThreshold = QStringLiteral("criticalThreshold"); ///< 0 to 1
inline const QString visibleCards = QStringLiteral("visibleCardsV2");
inline const QString popoverProcesses = QStringLiteral("popoverProcesses");
inline const QString alertsEnabled = QStringLiteral("alertsEnabled");
inline const QString alertCPU = QStringLiteral("alertCPU");
inline const QString alertMemory = QStringLiteral("alertMemory");
inline const QString alertDisk = QStringLiteral("alertDisk");
inline const QString alertBattery = QStringLiteral("alertBattery");
inline const QString alertTemperature = QStringLiteral("alertTemperature");
inline const QString alertDuration = QStringLiteral("alertDuration");           ///< seconds
inline const QString diskAlertThreshold = QStringLiteral("diskAlertThreshold"); ///< 0 to 1
inline const QString temperatureUnit = QStringLiteral("temperatureUnit");
inline const QString networkUnit = QStringLiteral("networkUnit");
inline const QString memoryUnit = QStringLiteral("memoryUnit");
inline const QString diskModuleShows = QStringLiteral("diskModuleShows");
inline const QString temperatureModuleShows = QStringLiteral("temperatureModuleShows");
inline const QString batteryAlertPercent = QStringLiteral("batteryAlertPercent");         ///< 0 to 100
inline const QString temperatureAlertCelsius = QStringLiteral("temperatureAlertCelsius"); ///< whatever is shown
inline const QString alertNamesProcesses = QStringLiteral("alertNamesProcesses");
inline const QString networkInterface =
    QStringLiteral("networkInterface");                         ///< a port's name; empty: all hardware ports
inline const QString diskVolume = QStringLiteral("diskVolume"); ///< a mount point; empty: the system's volume
inline const QString settingsTab = QStringLiteral("settingsTab");
} // namespace preference_key

/// One user choice.
struct Preference {
    QString key;
    QVariant standard;      ///< until the user chooses; a bool, a double or a QString: this is the preference's type
    bool registered = true; ///< false: `standard` is supplied by the one view that reads the key
};

/// Every preference that the program has.
const std::vector<Preference>& allPreferences();

/// Call it once, before anything reads a preference.
void registerPreferences(UserDefaults& defaults);

/// Every module once: those that the user put in order, then the others as declared.
std::vector<MenuBarModule> moduleOrder(const UserDefaults& defaults);

/// The modules to show, in display order; may be empty.
std::vector<MenuBarModule> enabledMenuBarModules(const UserDefaults& defaults);

/// The text that stands for `key` until the user chooses.
std::string standardText(const QString& key);
/// The stored text; empty where there is none.
std::string storedText(const UserDefaults& defaults, const QString& key);

/// The stored choice, or the standard one for any text that names none.
template<typename Case, std::size_t N>
Case chosen(const UserDefaults& defaults, const QString& key, const std::array<Choice<Case>, N>& choices) {
    if (const auto named = choiceNamed(choices, storedText(defaults, key)))
        return *named;
    return choiceNamed(choices, standardText(key)).value_or(choices.front().value);
}

/// The units to write values in.
Units units(const UserDefaults& defaults);

/// `stacked` for any text that names no style.
MenuBarStyle menuBarStyle(const UserDefaults& defaults);

/// Seconds between two passes, at least 0.5.
double updateInterval(const UserDefaults& defaults);

/// The names of a list-valued preference, known or not. Ordered, because this is how sets are stored.
using NameSet = std::set<QString>;

/// The names of the chosen cards as stored; a set of unknown names alone is not empty, but shows no card.
NameSet visibleCards(const UserDefaults& defaults);

/// Whether the card lists the programs behind its reading.
bool showsPrograms(const UserDefaults& defaults, PopoverCard card);
/// Keeps that.
void setShowsPrograms(UserDefaults& defaults, PopoverCard card, bool shows);

/// True when `names` has the card, module or other choice of that raw value.
bool contains(const NameSet& names, std::string_view rawValue);

/// The text to store for `list` with `rawValue` in it, or without; other names stay, known or not.
QString withName(const QString& list, std::string_view rawValue, bool present);

/// The text to store for an order of modules.
QString orderText(const std::vector<MenuBarModule>& order);

} // namespace vantrix
