#include "menubar/preferences.h"

#include <gmock/gmock.h>

#include "fakes/fake_defaults.h"

namespace vantrix {
namespace {

using enum MenuBarModule;
using Modules = std::vector<MenuBarModule>;
using fakes::FakeDefaults;
using namespace Qt::StringLiterals;
namespace key = preference_key;

QString text(const char* value) {
    return QString::fromUtf8(value);
}

TEST(Preferences, ModuleOrder) {
    const Modules all{cpu, memory, network, disk, gpu, temperature, battery};
    const struct {
        const char* name;
        const char* stored;
        Modules order;
    } rows[] = {
        {"repeated and unknown", "battery,cpu,cpu,fan", {battery, cpu, memory, network, disk, gpu, temperature}},
        {"empty", "", all},
        {"wrong case", "Battery,GPU", all},
        {"empty pieces", ",gpu,,disk,", {gpu, disk, cpu, memory, network, temperature, battery}},
    };
    for (const auto& row : rows) {
        FakeDefaults user;
        user.set(key::menuBarOrder, text(row.stored));
        EXPECT_EQ(moduleOrder(user), row.order) << row.name;
    }
}

TEST(Preferences, EnabledModules) {
    const struct {
        const char* name;
        const char* order;
        const char* enabled;
        Modules modules;
    } rows[] = {
        {"nothing stored", nullptr, nullptr, {cpu, memory}},
        {"none", nullptr, "", {}},
        {"unknown only", nullptr, "fan,Cpu", {}},
        {"order is not taken from the set", nullptr, "memory,cpu", {cpu, memory}},
        {"order is taken from the order", "battery,memory", "cpu,battery,memory", {battery, memory, cpu}},
    };
    for (const auto& row : rows) {
        FakeDefaults user;
        if (row.order)
            user.set(key::menuBarOrder, text(row.order));
        if (row.enabled)
            user.set(key::menuBarEnabled, text(row.enabled));
        EXPECT_EQ(enabledMenuBarModules(user), row.modules) << row.name;
    }
}

TEST(Preferences, AChoiceOfAnUnknownNameIsTheStandardOne) {
    FakeDefaults user;
    for (const QString& key : {key::temperatureUnit, key::networkUnit, key::memoryUnit})
        user.set(key, u"Kelvin"_s);
    EXPECT_EQ(units(user), Units());
    user.set(key::menuBarStyle, u"Graph"_s);
    EXPECT_EQ(menuBarStyle(user), MenuBarStyle::stacked) << "not the first of its table";
    user.set(key::temperatureUnit, u"fahrenheit"_s);
    user.set(key::networkUnit, u"bits"_s);
    user.set(key::memoryUnit, u"gib"_s);
    EXPECT_EQ(units(user), (Units{TemperatureUnit::fahrenheit, NetworkUnit::bits, MemoryUnit::gib}));
}

} // namespace
} // namespace vantrix
