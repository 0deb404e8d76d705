#pragma once

#include <QHash>

#include "support/user_defaults.h"

namespace vantrix {

/// A store without a file; counts what is written to it.
struct MemoryDefaultsStore : DefaultsStore {
    QVariant value(const QString& key) const override { return values.value(key); }
    void setValue(const QString& key, const QVariant& value) override {
        ++writes;
        if (value.isValid())
            values.insert(key, value);
        else
            values.remove(key);
    }

    QHash<QString, QVariant> values;
    int writes = 0;
};

/// User defaults over a memory store that the test can reach.
struct MemoryDefaults {
    MemoryDefaultsStore* store = new MemoryDefaultsStore;
    UserDefaults defaults{std::unique_ptr<DefaultsStore>(store)};
};

} // namespace vantrix
