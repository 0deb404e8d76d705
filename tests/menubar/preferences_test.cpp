#include "menubar/preferences.h"

#include <gmock/gmock.h>

#include "fakes/fake_defaults.h"

namespace vantrix {
namespace {

using enum MenuBarModule;
using Modules = std::vector<MenuBarModule>;
using fakes::FakeDefaults;
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

TEST(Preferences, UpdateInterval) {
    const std::pair<QVariant, double> rows[] = {
        {0.1, 0.5}, {-3, 0.5}, {text("5"), 5.0}, {text("soon"), 2.0}, {true, 2.0},
    };
    EXPECT_EQ(updateInterval(FakeDefaults()), 2.0);
    for (const auto& [stored, seconds] : rows) {
        FakeDefaults user;
        user.set(key::updateInterval, stored);
        EXPECT_EQ(updateInterval(user), seconds) << stored.toString().toStdString();
    }
}

} // namespace
} // namespace vantrix
