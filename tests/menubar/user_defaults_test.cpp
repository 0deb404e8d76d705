#include "support/user_defaults.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

#include "fakes/memory_defaults_store.h"

namespace vantrix {
namespace {

const QString key = QStringLiteral("key");

QVariant text(const char* value) {
    return QString::fromUtf8(value);
}

TEST(UserDefaults, WhatCannotBeReadAsAskedFallsBackToWhatIsRegistered) {
    const struct {
        const char* name;
        QVariant stored; ///< over a registered number 2, text "registered" and boolean true
        double number;
        const char* string;
        bool boolean;
    } cases[] = {
        {"nothing", {}, 2, "registered", true},
        {"no", false, 2, "registered", false},
        {"zero", 0.0, 0, "0", false},
        {"large whole number", 1e15, 1e15, "1000000000000000", true},
        {"number as text", text("0.5"), 0.5, "0.5", true},
        {"spaced number", text(" 5 "), 5, " 5 ", true},
        {"no as text", text("No"), 2, "No", false},
        {"comma", text("0,5"), 2, "0,5", true},
        {"not a number", text("nan"), 2, "nan", true},
        {"beyond range", text("1e999"), 2, "1e999", true},
    };
    const MemoryDefaults empty;
    EXPECT_EQ(empty.defaults.string(key), std::nullopt);
    EXPECT_EQ(empty.defaults.number(key), 0.0);
    EXPECT_FALSE(empty.defaults.boolean(key));
    for (const auto& c : cases) {
        MemoryDefaults memory;
        if (c.stored.isValid())
            memory.store->values.insert(key, c.stored);
        memory.defaults.registerDefaults({{key, 2}});
        EXPECT_EQ(memory.defaults.number(key), c.number) << c.name;
        memory.defaults.registerDefaults({{key, text("registered")}});
        EXPECT_EQ(memory.defaults.string(key), QString::fromUtf8(c.string)) << c.name;
        memory.defaults.registerDefaults({{key, true}});
        EXPECT_EQ(memory.defaults.boolean(key), c.boolean) << c.name;
    }
}

TEST(UserDefaults, AnnouncesChangesOnly) {
    MemoryDefaults memory;
    int announced = 0;
    QObject::connect(&memory.defaults, &UserDefaults::changed, [&] { ++announced; });

    memory.defaults.registerDefaults({{key, 5}});
    EXPECT_EQ(announced, 0);
    memory.defaults.set(key, 5); // the registered value, yet the user's choice from now on
    EXPECT_EQ(announced, 1);
    memory.defaults.set(key, 5.0);
    EXPECT_EQ(memory.store->writes, 1) << "stored already";
    memory.defaults.set(key, 1);
    memory.defaults.set(key, true);
    memory.defaults.set(key, text("1"));
    EXPECT_EQ(announced, 4) << "1, true and \"1\" are three values";
    memory.defaults.remove(key);
    memory.defaults.remove(key);
    EXPECT_EQ(announced, 5);
    EXPECT_EQ(memory.defaults.number(key), 5.0);
    memory.store->changedOutside();
    EXPECT_EQ(announced, 6);
}

TEST(UserDefaults, DropsWhatNoStoreKeeps) {
    MemoryDefaults memory;
    const QVariant values[] = {std::numeric_limits<double>::infinity(), std::nan(""), QVariantList{1, 2}, {}};
    for (const QVariant& value : values)
        memory.defaults.set(key, value);
    EXPECT_EQ(memory.store->writes, 0);
}

} // namespace
} // namespace vantrix
