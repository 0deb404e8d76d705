#include <cmath>

#include <gtest/gtest.h>

#include "fuzz/targets.h"
#include "linux/settings/file_defaults_store.h"
#include "linux/settings/settings_folder.h"

namespace vantrix::fuzz {
namespace {

using namespace settings_folder;

/// A number has several ways to be written.
QByteArray normalized(const QJsonObject& entries) {
    return QJsonDocument::fromJson(QJsonDocument(entries).toJson()).toJson();
}

/// A file, changes, and other files that a person puts in its place meanwhile: nothing may be lost or altered. A
/// damaged file changes nothing, but nothing of it may be lost either.
struct Settings : FileDefaultsStoreTest {
    void TestBody() override {
        put(at("settings.json.damaged"), setAside.front());
        replaceFile();
        FileDefaultsStore store(path_);
        while (!input.isEmpty()) {
            const QString name = input.string();
            const auto kind = input.byte();
            const QString word = input.string();
            const double number = std::isfinite(word.toDouble()) ? word.toDouble() : 0.0;
            const QVariant value = std::array<QVariant, 4>{QVariant(), word, !word.isEmpty(), number}[kind % 4];
            store.setValue(name, value);
            if (kind % 8 > 3)
                replaceFile();
            store.flush();
            entries.insert(name, value.isValid() ? QJsonValue::fromVariant(value) : QJsonValue::Undefined);
            EXPECT_EQ(normalized(object()), normalized(entries));
            EXPECT_EQ(FileDefaultsStore(path_).value(name), value);
            if (!damaged.isEmpty())
                setAside << std::exchange(damaged, {});
            EXPECT_EQ(names(folder_.path()).size(), setAside.size() + 1);
            EXPECT_EQ(read(at("settings.json.damaged")), setAside.front());
            for (qsizetype i = 1; i < setAside.size(); ++i)
                EXPECT_EQ(read(path_ + QStringLiteral(".damaged-%1").arg(i + 1)), setAside[i]);
        }
    }

    void replaceFile() {
        const QByteArray bytes = input.string().toUtf8();
        QFile::remove(path_);
        write(bytes);
        const auto document = QJsonDocument::fromJson(bytes);
        damaged = document.isObject() ? QByteArray() : bytes;
        entries = document.isObject() ? document.object() : entries;
    }

    explicit Settings(std::string_view bytes) : input(bytes) {}

    Input input;
    QJsonObject entries;
    QByteArray damaged;
    QByteArrayList setAside{"an older copy"};
};

} // namespace

void settings(std::string_view input) {
    Settings(input).TestBody();
}

} // namespace vantrix::fuzz
