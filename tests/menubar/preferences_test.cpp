#include "menubar/preferences.h"

#include <gmock/gmock.h>

#include "fakes/memory_defaults_store.h"

namespace vantrix {
namespace {

using enum MenuBarModule;
using Modules = std::vector<MenuBarModule>;
namespace key = preference_key;

QString text(const char* value) {
    return QString::fromUtf8(value);
}

struct Registered : MemoryDefaults {
    Registered() { registerPreferences(defaults); }
};

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
        {"spaces count", " battery", all},
        {"empty pieces", ",gpu,,disk,", {gpu, disk, cpu, memory, network, temperature, battery}},
    };
    for (const auto& row : rows) {
        Registered user;
        user.defaults.set(key::menuBarOrder, text(row.stored));
        EXPECT_EQ(moduleOrder(user.defaults), row.order) << row.name;
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
        {"repeated", nullptr, "gpu,gpu", {gpu}},
    };
    for (const auto& row : rows) {
        MemoryDefaults unregistered;
        Registered user;
        for (UserDefaults* defaults : {&unregistered.defaults, &user.defaults}) {
            if (row.order)
                defaults->set(key::menuBarOrder, text(row.order));
            if (row.enabled)
                defaults->set(key::menuBarEnabled, text(row.enabled));
            EXPECT_EQ(enabledMenuBarModules(*defaults), row.modules) << row.name;
        }
    }
}

TEST(Preferences, Style) {
    const std::pair<const char*, MenuBarStyle> rows[] = {
        {"inline", MenuBarStyle::inlined}, {"graph", MenuBarStyle::graph}, {"stacked", MenuBarStyle::stacked},
        {"Graph", MenuBarStyle::stacked},  {"", MenuBarStyle::stacked},    {"wide", MenuBarStyle::stacked},
    };
    for (const auto& [stored, style] : rows) {
        Registered user;
        user.defaults.set(key::menuBarStyle, text(stored));
        EXPECT_EQ(menuBarStyle(user.defaults), style) << stored;
    }
    EXPECT_EQ(menuBarStyle(MemoryDefaults().defaults), MenuBarStyle::stacked);
}

TEST(Preferences, UpdateInterval) {
    const std::pair<QVariant, double> rows[] = {
        {0.1, 0.5}, {0.5, 0.5}, {5, 5.0}, {-3, 0.5}, {0, 0.5}, {text("5"), 5.0}, {text("soon"), 2.0}, {true, 2.0},
    };
    EXPECT_EQ(updateInterval(Registered().defaults), 2.0);
    for (const auto& [stored, seconds] : rows) {
        Registered user;
        user.defaults.set(key::updateInterval, stored);
        EXPECT_EQ(updateInterval(user.defaults), seconds) << stored.toString().toStdString();
    }
}

TEST(Preferences, VisibleCards) {
    Registered user;
    EXPECT_EQ(visibleCards(user.defaults).size(), popoverCards.size());
    user.defaults.set(key::visibleCards, text("sensors,Cpu,,disk"));
    EXPECT_TRUE(contains(visibleCards(user.defaults), "disk"));
    EXPECT_TRUE(contains(visibleCards(user.defaults), "sensors"));
    EXPECT_FALSE(contains(visibleCards(user.defaults), "cpu"));
    user.defaults.set(key::visibleCards, text("fan"));
    EXPECT_FALSE(visibleCards(user.defaults).empty()) << "unknown names alone are a choice";
    user.defaults.set(key::visibleCards, text(","));
    EXPECT_TRUE(visibleCards(user.defaults).empty());
}

TEST(Preferences, SetTexts) {
    const struct {
        const char* list;
        const char* name;
        bool present;
        const char* result;
    } rows[] = {
        {"memory", "cpu", true, "cpu,memory"},
        {"gpu", "battery", true, "battery,gpu"},
        {"", "cpu", true, "cpu"},
        {"cpu", "cpu", false, ""},
        {"cpu,cpu,,memory", "gpu", false, "cpu,memory"},
        {"zeta,cpu", "memory", true, "cpu,memory,zeta"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(withName(text(row.list), row.name, row.present), text(row.result)) << row.list;
}

} // namespace
} // namespace vantrix
