#include "alerts/alert_manager.h"

#include <initializer_list>
#include <utility>

#include <QPointer>

#include "menubar/preferences.h"
#include "support/checked.h"
#include "support/localization.h"
#include "support/size_text.h"
#include "support/text_format.h"
#include "support/user_defaults.h"

namespace vantrix {
namespace {

using Kind = AlertManager::Kind;

constexpr double measuredPasses = 2.0; // at the end of a condition's time, for what programs did in them
constexpr double leastShare = 0.1;     // of a program that is named
constexpr std::size_t mostNamed = 3;

/// The kinds that are evaluated, in this order.
constexpr std::array evaluatedKinds{Kind::cpu, Kind::memory, Kind::disk, Kind::battery, Kind::temperature};

const QString identifierStart = QStringLiteral("vantrix.");

constexpr std::size_t indexOf(Kind kind) {
    return static_cast<std::size_t>(kind);
}

QString identifierOf(Kind kind) {
    const std::string_view name = AlertManager::kindNames[indexOf(kind)];
    return identifierStart + QLatin1StringView(name.data(), qsizetype(name.size()));
}

QString localizedText(std::string_view english, std::initializer_list<std::string_view> values = {}) {
    return QString::fromStdString(formatted(localized(english), values));
}

} // namespace

AlertManager::AlertManager(NotificationCenter& center, const UserDefaults& defaults, WallClock clock)
    : center_(center), defaults_(defaults), clock_(std::move(clock)) {
    center_.willPresent = [] { return NotificationCenter::Presentation{.banner = true, .sound = true}; };
    center_.activated = [this](const QString& identifier) { // both are the owner's, and go together
        for (std::size_t kind = 0; kind < kindNames.size(); ++kind)
            if (opened && identifier == identifierOf(static_cast<Kind>(kind)))
                opened(static_cast<Kind>(kind));
    };
}

void AlertManager::evaluate(const Readings& readings) {
    if (!defaults_.boolean(preference_key::alertsEnabled))
        return looks_.fill(nullptr);
    for (const Kind kind : evaluatedKinds) {
        double& sustained = sustained_[indexOf(kind)];
        if (!isWanted(kind) || !holds(kind, readings)) {
            sustained = 0.0;
            looks_[indexOf(kind)].reset();
            continue;
        }
        sustained += readings.interval;
        if (isDue(kind, 0.0)) {
            const Message message = messageFor(kind, readings);
            send(kind, message.title, message.body + programsBehind(kind, readings));
        } else if (isDue(kind, measuredPasses * readings.interval)) {
            beginLook(kind);
        }
    }
}

/// Whether a condition that holds has lasted long enough, or will have in `ahead` seconds.
bool AlertManager::isDue(Kind kind, double ahead) {
    return sustained_[indexOf(kind)] + ahead >= defaults_.number(preference_key::alertDuration) &&
           havePassed(cooldown - ahead, lastSent_[indexOf(kind)], clock_());
}

void AlertManager::beginLook(Kind kind) {
    auto& look = looks_[indexOf(kind)];
    const bool canBeNamed = kind == Kind::cpu || kind == Kind::memory;
    if (look || !canBeNamed || !makeProcessSampler || !defaults_.boolean(preference_key::alertNamesProcesses))
        return;
    look = makeProcessSampler();
    if (look)
        look->sample();
}

/// A line below the message that says which programs it is about; empty where none has much of a part in it.
QString AlertManager::programsBehind(Kind kind, const Readings& readings) {
    if (kind == Kind::memory)
        beginLook(kind); // one look is enough for that
    const auto look = std::exchange(looks_[indexOf(kind)], nullptr);
    const ProcessSample* sample = look ? look->sample() : nullptr;
    if (sample == nullptr)
        return {};
    std::string names;
    std::size_t named = 0;
    for (const ProgramShare& program : kind == Kind::cpu ? sample->busiest : sample->largest) {
        const double share = kind == Kind::cpu ? program.cpu : fractionOf(program.memory, readings.memory.total);
        if (share >= leastShare && ++named <= mostNamed)
            appendToList(names, program.name + ' ' + compactPercent(share));
    }
    return names.empty() ? QString() : u'\n' + QString::fromStdString(names);
}

bool AlertManager::isWanted(Kind kind) const {
    switch (kind) {
    case Kind::cpu:
        return defaults_.boolean(preference_key::alertCPU);
    case Kind::memory:
        return defaults_.boolean(preference_key::alertMemory);
    case Kind::disk:
        return defaults_.boolean(preference_key::alertDisk);
    case Kind::battery:
        return defaults_.boolean(preference_key::alertBattery);
    case Kind::temperature:
        return defaults_.boolean(preference_key::alertTemperature);
    case Kind::test:
        break;
    }
    return false;
}

bool AlertManager::holds(Kind kind, const Readings& readings) const {
    switch (kind) {
    case Kind::cpu:
        return readings.cpu.total >= defaults_.number(preference_key::criticalThreshold);
    case Kind::memory:
        return readings.memory.pressure != MemorySample::Pressure::normal &&
               usedFraction(readings.memory) >= defaults_.number(preference_key::criticalThreshold);
    case Kind::disk:
        return readings.disk.total != 0 &&
               usedFraction(readings.disk) >= defaults_.number(preference_key::diskAlertThreshold);
    case Kind::battery:
        return readings.battery && !readings.battery->isPluggedIn && !readings.battery->isCharging &&
               readings.battery->percent <= defaults_.number(preference_key::batteryAlertPercent);
    case Kind::temperature:
        return readings.sensors.cpu &&
               *readings.sensors.cpu >= defaults_.number(preference_key::temperatureAlertCelsius);
    case Kind::test:
        break;
    }
    return false;
}

QString AlertManager::freeSpaceText(const std::string& free) const {
    const std::string mountPoint = storedText(defaults_, preference_key::diskVolume);
    return mountPoint.empty() ? localizedText("Only %@ free on the startup disk.", {free})
                              : localizedText("Only %@ free on %@.", {free, mountPoint});
}

AlertManager::Message AlertManager::messageFor(Kind kind, const Readings& readings) const {
    const Units units = vantrix::units(defaults_);
    switch (kind) {
    case Kind::cpu:
        return {localizedText("High CPU usage"),
                localizedText("The CPU has been at %@ or more for a while.", {compactPercent(readings.cpu.total)})};
    case Kind::memory:
        return {localizedText("Memory is running low"),
                localizedText("%@ of %@ in use and the system is under memory pressure.",
                              {memoryText(usedMemory(readings.memory), units.memory).toStdString(),
                               memoryText(readings.memory.total, units.memory).toStdString()})};
    case Kind::disk:
        return {localizedText("Disk almost full"), freeSpaceText(byteText(readings.disk.available).toStdString())};
    case Kind::battery:
        return {localizedText("Battery low"),
                localizedText("%@ left. Plug in the charger.", {std::to_string(readings.battery->percent) + '%'})};
    case Kind::temperature:
        return {localizedText("CPU is running hot"),
                localizedText("The CPU temperature is %@.", {degreesText(*readings.sensors.cpu, units.temperature)})};
    case Kind::test:
        break;
    }
    return {QStringLiteral("Vantrix"), localizedText("Notifications are working.")};
}

void AlertManager::send(Kind kind, const QString& title, const QString& body) {
    center_.post(identifierOf(kind), title, body);
    lastSent_[indexOf(kind)] = clock_();
}

void AlertManager::sendTest(std::function<void(const QString&)> done) {
    center_.requestAuthorization([manager = QPointer<AlertManager>(this), done = std::move(done)](bool granted) {
        if (!manager)
            return;
        if (!granted && !manager->center_.canBeAllowed())
            return done(localizedText("This copy of Vantrix is signed without a developer's identity, and macOS shows "
                                      "no notifications of such programs."));
        if (!granted)
            return done(localizedText(
                "Notifications are turned off for Vantrix. Enable them in System Settings → Notifications."));
        const Message message = manager->messageFor(Kind::test, {});
        manager->send(Kind::test, message.title, message.body);
        done(localizedText("Test notification sent."));
    });
}

} // namespace vantrix
