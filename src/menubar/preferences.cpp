#include "menubar/preferences.h"

#include <algorithm>
#include <array>

#include <QStringList>

#include "support/user_defaults.h"

namespace vantrix {

namespace {

constexpr QChar separator = u',';

QString text(std::string_view rawValue) {
    return QString::fromUtf8(rawValue);
}

template<typename Case, std::size_t N>
QString joined(const std::array<Choice<Case>, N>& choices) {
    QStringList names;
    for (const auto& choice : choices)
        names.append(text(choice.rawValue));
    return names.join(separator);
}

QString standardModules() {
    return orderText({MenuBarModule::cpu, MenuBarModule::memory});
}

NameSet namesIn(const QString& list) {
    const QStringList names = list.split(separator, Qt::SkipEmptyParts);
    return {names.begin(), names.end()};
}

void appendOnce(std::vector<MenuBarModule>& order, MenuBarModule module) {
    if (std::find(order.begin(), order.end(), module) == order.end())
        order.push_back(module);
}

} // namespace

const std::vector<Preference>& allPreferences() {
    namespace key = preference_key;
    static const std::vector<Preference> table{
        {key::updateInterval, 2.0},
        {key::menuBarOrder, joined(menuBarModules)},
        {key::menuBarEnabled, standardModules()},
        {key::menuBarStyle, text(choiceOf(menuBarStyles, MenuBarStyle::stacked).rawValue)},
        {key::menuBarColorize, true},
        {key::warningThreshold, 0.75},
        {key::criticalThreshold, 0.9},
        {key::visibleCards, joined(popoverCards)},
        {key::popoverProcesses, QString()},
        {key::alertsEnabled, false},
        {key::alertCPU, true},
        {key::alertMemory, true},
        {key::alertDisk, true},
        {key::alertBattery, true},
        {key::alertTemperature, true},
        {key::alertDuration, 30.0},
        {key::diskAlertThreshold, 0.92},
        {key::temperatureUnit, text(temperatureUnits.front().rawValue)},
        {key::networkUnit, text(networkUnits.front().rawValue)},
        {key::memoryUnit, text(memoryUnits.front().rawValue)},
        {key::diskModuleShows, text(diskModuleContents.front().rawValue)},
        {key::temperatureModuleShows, text(temperatureModuleContents.front().rawValue)},
        {key::batteryAlertPercent, 15.0},
        {key::temperatureAlertCelsius, 95.0},
        {key::alertNamesProcesses, true},
        {key::networkInterface, QString()},
        {key::diskVolume, QString()},
        {key::settingsTab, text(choiceOf(settingsTabs, SettingsTab::general).rawValue), false},
    };
    return table;
}

void registerPreferences(UserDefaults& defaults) {
    QHash<QString, QVariant> registered;
    for (const Preference& preference : allPreferences())
        if (preference.registered)
            registered.insert(preference.key, preference.standard);
    defaults.registerDefaults(registered);
}

std::vector<MenuBarModule> moduleOrder(const UserDefaults& defaults) {
    const QString stored = defaults.string(preference_key::menuBarOrder).value_or(QString());
    std::vector<MenuBarModule> order;
    order.reserve(menuBarModules.size());
    for (const QString& name : stored.split(separator, Qt::SkipEmptyParts))
        if (const auto module = choiceNamed(menuBarModules, name.toStdString()))
            appendOnce(order, *module);
    for (const auto& choice : menuBarModules)
        appendOnce(order, choice.value);
    return order;
}

std::vector<MenuBarModule> enabledMenuBarModules(const UserDefaults& defaults) {
    const auto stored = defaults.string(preference_key::menuBarEnabled);
    const NameSet enabled = namesIn(stored ? *stored : standardModules());
    std::vector<MenuBarModule> modules = moduleOrder(defaults);
    std::erase_if(modules,
                  [&](MenuBarModule module) { return !contains(enabled, choiceOf(menuBarModules, module).rawValue); });
    return modules;
}

std::string standardText(const QString& key) {
    for (const Preference& preference : allPreferences())
        if (preference.key == key)
            return preference.standard.toString().toStdString();
    return {};
}

std::string storedText(const UserDefaults& defaults, const QString& key) {
    return defaults.string(key).value_or(QString()).toStdString();
}

Units units(const UserDefaults& defaults) {
    return {chosen(defaults, preference_key::temperatureUnit, temperatureUnits),
            chosen(defaults, preference_key::networkUnit, networkUnits),
            chosen(defaults, preference_key::memoryUnit, memoryUnits)};
}

MenuBarStyle menuBarStyle(const UserDefaults& defaults) {
    return chosen(defaults, preference_key::menuBarStyle, menuBarStyles);
}

double updateInterval(const UserDefaults& defaults) {
    return std::max(defaults.number(preference_key::updateInterval), 0.5);
}

NameSet visibleCards(const UserDefaults& defaults) {
    const auto stored = defaults.string(preference_key::visibleCards);
    return namesIn(stored ? *stored : joined(popoverCards));
}

bool showsPrograms(const UserDefaults& defaults, PopoverCard card) {
    const auto stored = defaults.string(preference_key::popoverProcesses);
    return stored && contains(namesIn(*stored), choiceOf(popoverCards, card).rawValue);
}

void setShowsPrograms(UserDefaults& defaults, PopoverCard card, bool shows) {
    const QString stored = defaults.string(preference_key::popoverProcesses).value_or(QString());
    defaults.set(preference_key::popoverProcesses, withName(stored, choiceOf(popoverCards, card).rawValue, shows));
}

bool contains(const NameSet& names, std::string_view rawValue) {
    return names.contains(text(rawValue));
}

QString withName(const QString& list, std::string_view rawValue, bool present) {
    NameSet names = namesIn(list);
    if (present)
        names.insert(text(rawValue));
    else
        names.erase(text(rawValue));
    return QStringList(names.begin(), names.end()).join(separator);
}

QString orderText(const std::vector<MenuBarModule>& order) {
    QStringList names;
    for (const MenuBarModule module : order)
        names.append(text(choiceOf(menuBarModules, module).rawValue));
    return names.join(separator);
}

} // namespace vantrix
