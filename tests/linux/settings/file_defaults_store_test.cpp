#include "linux/settings/file_defaults_store.h"

#include <sys/stat.h>

#include <QFileInfo>
#include <QJsonArray>

#include <gmock/gmock.h>

#include "linux/services/linux_widget_center.h"
#include "linux/settings/settings_folder.h"

namespace vantrix {
namespace {

using namespace settings_folder;

TEST_F(FileDefaultsStoreTest, KeepsValuesOfEachKind) {
    const QString nested = at("deep/down/settings.json");
    {
        FileDefaultsStore store(nested);
        store.setValue(text("yes"), true);
        store.setValue(text("fraction"), 0.1);
        store.setValue(text("whole"), 5.0);
        store.setValue(text("word"), text("größe,\"x\""));
        store.setValue(text("gone"), 1.0);
        store.setValue(text("gone"), {});
        EXPECT_EQ(store.value(text("fraction")), QVariant(0.1)) << "before it is written";
        EXPECT_FALSE(QFile::exists(nested)) << "writes are gathered";
    }
    const FileDefaultsStore store(nested);
    EXPECT_EQ(store.value(text("yes")), QVariant(true));
    EXPECT_EQ(store.value(text("fraction")), QVariant(0.1));
    EXPECT_EQ(store.value(text("whole")).typeId(), QMetaType::Double);
    EXPECT_EQ(store.value(text("word")), QVariant(text("größe,\"x\"")));
    EXPECT_FALSE(store.value(text("gone")).isValid());
    EXPECT_GE(read(nested).count('\n'), 6) << "a person can edit it";
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(nested).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777u, 0600u);
    ASSERT_EQ(::stat(QFile::encodeName(at("deep/down")).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777u, 0700u);
}

TEST_F(FileDefaultsStoreTest, WritesByItselfOnceAndIsNotItsOwnOutsider) {
    write("{\"list\":[1,{\"a\":null}],\"key\":1,\"nothing\":null}");
    ASSERT_EQ(::chmod(QFile::encodeName(path_).constData(), 0644), 0);
    FileDefaultsStore store(path_);
    int outside = 0;
    store.changedOutside = [&] { ++outside; };
    for (int value = 2; value <= 9; ++value)
        store.setValue(key, double(value));
    EXPECT_EQ(object().value(key).toInt(), 1);
    ASSERT_TRUE(becomes([&] { return object().value(key).toInt() == 9; }));
    EXPECT_EQ(object().value(text("list")), QJsonDocument::fromJson("[1,{\"a\":null}]").array());
    EXPECT_TRUE(object().value(text("nothing")).isNull());
    EXPECT_FALSE(store.value(text("list")).isValid());
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(path_).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777u, 0644u) << "permissions stay";
    EXPECT_FALSE(becomes([&] { return outside > 0; }, 300));
    EXPECT_EQ(names(), QStringList{text("settings.json")}) << "nothing is left lying about";
}

/// Every way in which people and their tools change a file while it is watched.
struct Edit {
    const char* name;
    void (*edit)(const QString& folder, const QByteArray& contents);
};

class OutsideEdit : public FileDefaultsStoreTest, public testing::WithParamInterface<Edit> {};

TEST_P(OutsideEdit, IsSeenEachTime) {
    write("{\"key\":0}");
    FileDefaultsStore store(path_);
    int outside = 0;
    store.changedOutside = [&] { ++outside; };
    for (int value = 1; value <= 3; ++value) {
        GetParam().edit(folder_.path(), "{\"key\":" + QByteArray::number(value) + "}");
        ASSERT_TRUE(becomes([&] { return store.value(key) == QVariant(double(value)) && outside > 0; })) << value;
        outside = 0;
        // Between two edits the program itself replaces the file.
        store.setValue(other, double(value));
        store.flush();
        ASSERT_EQ(object().value(other).toInt(), value);
        ASSERT_FALSE(becomes([&] { return outside > 0; }, 100)) << "its own doing";
    }
}

const Edit edits[] = {
    {"inPlace", [](const QString& folder, const QByteArray& c) { put(folder + text("/settings.json"), c); }},
    {"replaced",
     [](const QString& folder, const QByteArray& c) {
         put(folder + text("/new"), c);
         rename(folder + text("/new"), folder + text("/settings.json"));
     }},
    {"movedToBackupFirst",
     [](const QString& folder, const QByteArray& c) {
         rename(folder + text("/settings.json"), folder + text("/settings.json~"));
         put(folder + text("/settings.json"), c);
     }},
    {"deletedAndMadeAnew",
     [](const QString& folder, const QByteArray& c) {
         QFile::remove(folder + text("/settings.json"));
         put(folder + text("/settings.json"), c);
     }},
    {"becomesALink",
     [](const QString& folder, const QByteArray& c) {
         const QString target = folder + text("/target") + QString::fromUtf8(c.right(2).left(1));
         put(target, c);
         QFile::remove(folder + text("/settings.json"));
         ASSERT_TRUE(QFile::link(target, folder + text("/settings.json")));
     }},
};

INSTANTIATE_TEST_SUITE_P(Ways, OutsideEdit, testing::ValuesIn(edits), [](const auto& row) { return row.param.name; });

TEST_F(FileDefaultsStoreTest, FollowsAndKeepsALink) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir(text("dotfiles")));
    const QString target = at("dotfiles/vantrix.json");
    ASSERT_TRUE(QFile::link(text("dotfiles/vantrix.json"), path_)); // relative, and leads nowhere yet
    FileDefaultsStore store(path_);
    store.setValue(key, 1.0);
    store.flush();
    EXPECT_TRUE(QFileInfo(path_).isSymLink());
    ASSERT_EQ(object().value(key).toInt(), 1);
    put(target, "{\"key\":2}");
    ASSERT_TRUE(becomes([&] { return store.value(key) == QVariant(2.0); })) << "edited in place";
    put(at("dotfiles/new"), "{\"key\":3}");
    rename(at("dotfiles/new"), target);
    ASSERT_TRUE(becomes([&] { return store.value(key) == QVariant(3.0); })) << "replaced in its own folder";
}

TEST_F(FileDefaultsStoreTest, SeesDeletionAndAFolderMadeLater) {
    const QString nested = at("later/settings.json");
    FileDefaultsStore store(nested);
    for (int round = 1; round <= 2; ++round) {
        ASSERT_TRUE(QDir(folder_.path()).mkdir(text("later")));
        put(nested, "{\"key\":" + QByteArray::number(round) + "}");
        ASSERT_TRUE(becomes([&] { return store.value(key) == QVariant(double(round)); }));
        ASSERT_TRUE(QDir(at("later")).removeRecursively());
        ASSERT_TRUE(becomes([&] { return !store.value(key).isValid(); }));
    }
}

TEST_F(FileDefaultsStoreTest, AnnouncesOnlyDifferentValues) {
    write("{\"key\":1,\"other\":2}");
    FileDefaultsStore store(path_);
    int outside = 0;
    store.changedOutside = [&] { ++outside; };
    write("{ \"other\": 2.0,\n \"key\": 1 }");
    EXPECT_FALSE(becomes([&] { return outside > 0; }, 300));
}

TEST_F(FileDefaultsStoreTest, LaysPendingValuesOverAnEdit) {
    write("{\"key\":1,\"other\":1,\"gone\":1}");
    FileDefaultsStore store(path_);
    int outside = 0;
    store.changedOutside = [&] { ++outside; };
    store.setValue(key, 5.0);
    store.setValue(text("gone"), {});
    put(path_, "{\"key\":2,\"other\":2,\"gone\":2,\"added\":2}");
    store.flush(); // before the edit was noticed
    EXPECT_EQ(object(), QJsonDocument::fromJson("{\"key\":5,\"other\":2,\"added\":2}").object());
    EXPECT_EQ(store.value(other), QVariant(2.0));
    EXPECT_EQ(outside, 1);
}

TEST_F(FileDefaultsStoreTest, LastWriteDoesNotCallADyingOwner) {
    write("{\"key\":1}");
    int announced = 0;
    {
        auto store = std::make_unique<FileDefaultsStore>(path_);
        FileDefaultsStore& file = *store;
        UserDefaults defaults(std::move(store));
        QObject::connect(&defaults, &UserDefaults::changed, [&] { ++announced; });
        file.setValue(other, 1.0);
        put(path_, "{\"key\":2}");
    }
    EXPECT_EQ(announced, 0);
    EXPECT_EQ(object().value(other).toInt(), 1);
}

TEST(FileDefaultsPaths, FollowTheBaseFolders) {
    QTemporaryDir runtime;
    const QByteArray folder = QFile::encodeName(runtime.path());
    struct Row {
        const char* name;
        QByteArray config, state, runtime, settings, widgets;
    };
    const Row rows[] = {
        {"all set", "/c", "/s", folder, "/c/vantrix/settings.json", folder + "/vantrix/defaults.json"},
        {"unset", "", "", "", "/h/.config/vantrix/settings.json", "/h/.local/state/vantrix/defaults.json"},
        {"relative", "c", "s", "r", "/h/.config/vantrix/settings.json", "/h/.local/state/vantrix/defaults.json"},
        {"runtime folder gone", "/c", "/s", "/nowhere", "/c/vantrix/settings.json", "/s/vantrix/defaults.json"},
    };
    const char* const variables[] = {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"};
    QList<QByteArray> before;
    for (const char* variable : variables)
        before.append(qgetenv(variable));
    for (const Row& row : rows) {
        const QByteArray values[] = {"/h", row.config, row.state, row.runtime};
        for (int i = 0; i < 4; ++i)
            values[i].isEmpty() ? qunsetenv(variables[i]) : qputenv(variables[i], values[i]);
        EXPECT_EQ(FileDefaultsStore::settingsPath().toUtf8(), row.settings) << row.name;
        EXPECT_EQ(widgetStorePath().toUtf8(), row.widgets) << row.name;
    }
    for (int i = 0; i < 4; ++i)
        before[i].isNull() ? qunsetenv(variables[i]) : qputenv(variables[i], before[i]);
}

} // namespace
} // namespace vantrix
