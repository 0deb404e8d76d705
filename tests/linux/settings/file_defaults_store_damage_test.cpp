#include "linux/settings/file_defaults_store.h"

#include <algorithm>
#include <cerrno>
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFileInfo>

#include <gmock/gmock.h>

#include "linux/settings/settings_folder.h"

namespace vantrix {
namespace {

using namespace settings_folder;

/// A user without root's powers, for as long as it lives.
class OrdinaryUser {
  public:
    explicit OrdinaryUser(const QString& folder) {
        constexpr uid_t nobody = 65534;
        if (::geteuid() != 0)
            return;
        EXPECT_EQ(::chown(QFile::encodeName(folder).constData(), nobody, static_cast<gid_t>(-1)), 0);
        EXPECT_EQ(::seteuid(nobody), 0);
    }
    ~OrdinaryUser() { EXPECT_EQ(::seteuid(::getuid()), 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
};

struct Damage {
    const char* name;
    QByteArray bytes;
    bool copied = true;
};

class DamagedFile : public FileDefaultsStoreTest, public testing::WithParamInterface<Damage> {};

TEST_P(DamagedFile, IsSetAsideBeforeItIsReplaced) {
    put(at("settings.json.damaged"), "an older copy");
    write(GetParam().bytes);
    testing::internal::CaptureStderr();
    {
        FileDefaultsStore store(path_);
        EXPECT_FALSE(store.value(key).isValid());
        EXPECT_EQ(read(path_), GetParam().bytes) << "reading leaves it as it is";
        store.setValue(key, 1.0);
        store.flush();
        store.setValue(key, 2.0);
    }
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::MatchesRegex("vantrix: [^\n]+settings.json is [^\n]+\n"));
    EXPECT_EQ(object().value(key).toInt(), 2);
    EXPECT_EQ(read(at("settings.json.damaged")), "an older copy");
    if (GetParam().copied) {
        EXPECT_EQ(read(at("settings.json.damaged-2")), GetParam().bytes);
    }
    EXPECT_EQ(names().size(), GetParam().copied ? 3 : 2);
}

INSTANTIATE_TEST_SUITE_P(Kinds, DamagedFile,
                         testing::Values(Damage{"torn", "{\"key\": 1, \"oth"}, Damage{"array", "[1,2]"},
                                         Damage{"binary", QByteArray("\0\xff\xfe\x01{}", 6)}, Damage{"number", "7"},
                                         Damage{"numberBeyondRange", "{\"key\":1e999}"},
                                         Damage{"trailing", "{\"key\":1}}"}, Damage{"deep", QByteArray(100'000, '[')},
                                         Damage{"oversized", "{\"key\":1}" + QByteArray(1 << 20, ' ')},
                                         Damage{"empty", "", false}),
                         [](const auto& row) { return row.param.name; });

TEST_F(FileDefaultsStoreTest, DamageWhileRunningKeepsTheLastValues) {
    write("{\"key\":1,\"other\":1}");
    FileDefaultsStore store(path_);
    int outside = 0;
    store.changedOutside = [&] { ++outside; };
    testing::internal::CaptureStderr();
    put(path_, "{\"key\":");
    EXPECT_FALSE(becomes([&] { return outside > 0; }, 200));
    put(path_, "{\"key\":2,");
    EXPECT_FALSE(becomes([&] { return outside > 0; }, 200));
    EXPECT_EQ(store.value(key), QVariant(1.0));
    const std::string lines = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 1) << lines;

    put(path_, "{\"key\":3}");
    ASSERT_TRUE(becomes([&] { return store.value(key) == QVariant(3.0); })) << "repaired by hand";
    put(path_, "torn");
    store.setValue(other, 4.0);
    store.flush();
    EXPECT_EQ(object(), QJsonDocument::fromJson("{\"key\":3,\"other\":4}").object());
    EXPECT_EQ(read(at("settings.json.damaged")), "torn");
}

struct Obstacle {
    const char* name;
    bool (*make)(const QByteArray& path);
};

class BlockedPath : public FileDefaultsStoreTest, public testing::WithParamInterface<Obstacle> {};

TEST_P(BlockedPath, KeepsValuesInMemoryAndTouchesNothing) {
    ASSERT_TRUE(GetParam().make(QFile::encodeName(path_)));
    const QFileInfo before(path_);
    testing::internal::CaptureStderr();
    {
        FileDefaultsStore store(path_);
        store.setValue(key, 1.0);
        store.flush();
        EXPECT_EQ(store.value(key), QVariant(1.0));
    }
    const std::string lines = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 1) << lines;
    EXPECT_EQ(names(), QStringList{text("settings.json")});
    EXPECT_FALSE(QFileInfo(path_).isFile());
}

const Obstacle obstacles[] = {
    {"pipe", [](const QByteArray& path) { return ::mkfifo(path.constData(), 0600) == 0; }},
    {"folder", [](const QByteArray& path) { return ::mkdir(path.constData(), 0700) == 0; }},
    {"linkToFolder", [](const QByteArray& path) { return ::symlink(".", path.constData()) == 0; }},
    {"linkToItself", [](const QByteArray& path) { return ::symlink("settings.json", path.constData()) == 0; }},
};

INSTANTIATE_TEST_SUITE_P(Kinds, BlockedPath, testing::ValuesIn(obstacles),
                         [](const auto& row) { return row.param.name; });

TEST_F(FileDefaultsStoreTest, UnreadableFileIsSetAside) {
    const OrdinaryUser user(folder_.path());
    write("{\"key\":1}");
    ASSERT_EQ(::chmod(QFile::encodeName(path_).constData(), 0), 0);
    FileDefaultsStore store(path_);
    EXPECT_FALSE(store.value(key).isValid());
    store.setValue(other, 2.0);
    store.flush();
    EXPECT_EQ(object(), QJsonDocument::fromJson("{\"other\":2}").object());
    EXPECT_EQ(::chmod(QFile::encodeName(at("settings.json.damaged")).constData(), 0600), 0);
    EXPECT_EQ(read(at("settings.json.damaged")), "{\"key\":1}");
}

TEST_F(FileDefaultsStoreTest, ReplacesNothingButAFile) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(path_).constData(), 0600), 0);
    for (bool keepsOld : {false, true})
        EXPECT_EQ(replaceFile(path_, "{}", {0600, keepsOld}).error, EEXIST);
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(path_).constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
    EXPECT_EQ(names().size(), 1);
}

TEST_F(FileDefaultsStoreTest, FileMadeReadableIsRead) {
    const OrdinaryUser user(folder_.path());
    write("{\"key\":1}");
    ASSERT_EQ(::chmod(QFile::encodeName(path_).constData(), 0), 0);
    FileDefaultsStore store(path_);
    ASSERT_EQ(::chmod(QFile::encodeName(path_).constData(), 0600), 0);
    EXPECT_TRUE(becomes([&] { return store.value(key) == QVariant(1.0); }));
}

TEST_F(FileDefaultsStoreTest, ReadOnlyFileAndFolderStayAsTheyAre) {
    const OrdinaryUser user(folder_.path());
    write("{\"key\":1}");
    FileDefaultsStore store(path_);
    testing::internal::CaptureStderr();
    for (const QString& locked : {path_, folder_.path()}) {
        ASSERT_EQ(::chmod(QFile::encodeName(locked).constData(), 0500), 0);
        for (double value : {2.0, 3.0}) {
            store.setValue(key, value);
            store.flush();
            EXPECT_EQ(store.value(key), QVariant(value));
        }
        EXPECT_EQ(read(path_), "{\"key\":1}");
        ASSERT_EQ(::chmod(QFile::encodeName(locked).constData(), 0700), 0);
    }
    const std::string lines = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 1) << lines;
    store.setValue(other, 4.0);
    store.flush();
    EXPECT_EQ(object(), QJsonDocument::fromJson("{\"key\":3,\"other\":4}").object()) << "nothing was forgotten";
}

TEST_F(FileDefaultsStoreTest, FullDiskLosesNothing) {
    write("{\"key\":1}");
    FileDefaultsStore store(path_);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit full = before;
    full.rlim_cur = 4096;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &full), 0);
    const QVariant large = QString(10'000, u'x');
    store.setValue(other, large);
    store.flush();
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(read(path_), "{\"key\":1}");
    EXPECT_EQ(names(), QStringList{text("settings.json")}) << "no half-written file is left";
    EXPECT_EQ(store.value(other), large);

    put(path_, "torn");
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &full), 0);
    store.flush();
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(read(path_), "torn") << "set aside only when there is something to put in its place";
    store.setValue(key, 2.0);
    store.flush();
    EXPECT_EQ(object().value(key).toInt(), 2);
    EXPECT_EQ(object().value(other).toString(), large.toString());
}

} // namespace
} // namespace vantrix
