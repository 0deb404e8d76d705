#include "linux/settings/file_defaults_store.h"

#include <functional>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFileInfo>
#include <QJsonArray>

#include "linux/settings/settings_folder.h"

namespace vantrix {
namespace {

using namespace settings_folder;
using std::chrono::milliseconds;

TEST_F(FileDefaultsStoreTest, KeepsValuesOfEachKind) {
    const QString nested = at("deep/down/settings.json");
    {
        FileDefaultsStore store(nested);
        store.setValue(text("yes"), true);
        store.setValue(text("fraction"), 0.1);
        store.setValue(text("whole"), 5.0);
        EXPECT_EQ(store.value(text("fraction")), QVariant(0.1)) << "before it is written";
        EXPECT_FALSE(QFile::exists(nested)) << "writes are gathered";
    }
    const FileDefaultsStore store(nested);
    EXPECT_EQ(store.value(text("yes")), QVariant(true));
    EXPECT_EQ(store.value(text("fraction")), QVariant(0.1));
    EXPECT_EQ(store.value(text("whole")).typeId(), QMetaType::Double);
    EXPECT_GE(read(nested).count('\n'), 5) << "a person can edit it";
    EXPECT_EQ(modeOf(nested), 0600u);
    EXPECT_EQ(modeOf(at("deep/down")), 0700u);
}

TEST_F(FileDefaultsStoreTest, WritesByItselfOnceAndIsNotItsOwnOutsider) {
    write("{\"list\":[1,{\"a\":null}],\"key\":1,\"nothing\":null}");
    setMode(path_, 0644);
    FileDefaultsStore store(path_);
    int outside = 0;
    store.changedOutside = [&] { ++outside; };
    for (int value = 2; value <= 9; ++value)
        store.setValue(key, double(value));
    EXPECT_EQ(object().value(key).toInt(), 1);
    ASSERT_TRUE(spinUntil([&] { return object().value(key).toInt() == 9; }));
    EXPECT_EQ(object().value(text("list")), QJsonDocument::fromJson("[1,{\"a\":null}]").array());
    EXPECT_TRUE(object().value(text("nothing")).isNull());
    EXPECT_FALSE(store.value(text("list")).isValid());
    EXPECT_EQ(modeOf(path_), 0644u) << "permissions stay";
    write("{ \"key\": 9, \"nothing\": null,\n \"list\": [1, {\"a\": null}]}");
    EXPECT_FALSE(spinUntil([&] { return outside > 0; }, milliseconds(300))) << "nothing differs";
    EXPECT_EQ(names(folder_.path()), QStringList{text("settings.json")}) << "nothing is left lying about";
}

TEST_F(FileDefaultsStoreTest, TwoInstancesKeepEachOthersChanges) {
    constexpr int changes = 30;
    const auto change = [&](QChar prefix) {
        FileDefaultsStore store(path_);
        for (int i = 0; i < changes; ++i) {
            store.setValue(prefix + QString::number(i), 1.0);
            store.flush();
        }
    };
    const pid_t child = ::fork();
    change(child == 0 ? u'a' : u'b');
    if (child == 0)
        ::_exit(0);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    EXPECT_EQ(object().size(), 2 * changes);
}

TEST_F(FileDefaultsStoreTest, SeesAnEditWithinOneStepOfTheClock) {
    write("{\"key\":1}");
    FileDefaultsStore store(path_);
    write("{\"key\":2}");
    store.setValue(other, 1.0);
    store.flush();
    EXPECT_EQ(object().value(key).toInt(), 2);
}

TEST_F(FileDefaultsStoreTest, RemovesWhatKilledWritersLeft) {
    put(at(".settings.json.abcdef"), "{");
    put(at(".settings.json.ABCDEF"), "{");
    put(at(".settings.json.vim"), "{");
    const timespec longAgo[] = {{}, {}};
    ASSERT_EQ(::utimensat(AT_FDCWD, qPrintable(at(".settings.json.abcdef")), longAgo, 0), 0);
    FileDefaultsStore store(path_);
    EXPECT_EQ(names(folder_.path()), QStringList({text(".settings.json.ABCDEF"), text(".settings.json.vim")}));
}

TEST_F(FileDefaultsStoreTest, SeesEveryWayInWhichPeopleAndTheirToolsEdit) {
    struct Edit {
        const char* name;
        std::function<void(const QByteArray&)> make;
    };
    const Edit edits[] = {
        {"in place", [&](const QByteArray& json) { write(json); }},
        {"replaced",
         [&](const QByteArray& json) {
             put(at("new"), json);
             rename(at("new"), path_);
         }},
        {"moved to a backup first",
         [&](const QByteArray& json) {
             rename(path_, at("settings.json~"));
             write(json);
         }},
    };
    write("{\"key\":0}");
    FileDefaultsStore store(path_);
    int outside = 0;
    store.changedOutside = [&] { ++outside; };
    int value = 0;
    for (const Edit& edit : edits) {
        SCOPED_TRACE(edit.name);
        for (int time = 0; time < 2; ++time) {
            ++value;
            edit.make("{\"key\":" + QByteArray::number(value) + "}");
            ASSERT_TRUE(spinUntil([&] { return store.value(key) == QVariant(double(value)) && outside > 0; }));
            outside = 0;
            // Between two edits the program itself replaces the file.
            store.setValue(other, double(value));
            store.flush();
            ASSERT_EQ(object().value(other).toInt(), value);
            ASSERT_FALSE(spinUntil([&] { return outside > 0; }, milliseconds(100))) << "its own doing";
        }
    }
}

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
    ASSERT_TRUE(spinUntil([&] { return store.value(key) == QVariant(2.0); })) << "edited in place";
    put(at("dotfiles/new"), "{\"key\":3}");
    rename(at("dotfiles/new"), target);
    ASSERT_TRUE(spinUntil([&] { return store.value(key) == QVariant(3.0); })) << "replaced in its own folder";
}

TEST_F(FileDefaultsStoreTest, SeesDeletionAndAFolderMadeLater) {
    const QString nested = at("later/settings.json");
    FileDefaultsStore store(nested);
    for (int round = 1; round <= 2; ++round) {
        ASSERT_TRUE(QDir(folder_.path()).mkdir(text("later")));
        put(nested, "{\"key\":" + QByteArray::number(round) + "}");
        ASSERT_TRUE(spinUntil([&] { return store.value(key) == QVariant(double(round)); }));
        ASSERT_TRUE(QDir(at("later")).removeRecursively());
        ASSERT_TRUE(spinUntil([&] { return !store.value(key).isValid(); }));
    }
}

} // namespace
} // namespace vantrix
