#include "linux/settings/file_defaults_store.h"

#include <algorithm>
#include <csignal>
#include <functional>

#include <sys/resource.h>
#include <unistd.h>

#include <QFileInfo>

#include "linux/settings/settings_folder.h"

namespace vantrix {
namespace {

using namespace settings_folder;

/// How many lines were printed since they were captured.
long capturedLines() {
    const std::string text = testing::internal::GetCapturedStderr();
    return std::count(text.begin(), text.end(), '\n');
}

TEST_F(FileDefaultsStoreTest, DamageWhileRunningKeepsTheLastValues) {
    write("{\"key\":1,\"other\":1}");
    FileDefaultsStore store(path_);
    int outside = 0;
    store.changedOutside = [&] { ++outside; };
    testing::internal::CaptureStderr();
    put(path_, "{\"key\":");
    EXPECT_FALSE(spinUntil([&] { return outside > 0; }, std::chrono::milliseconds(200)));
    put(path_, "{\"key\":2,");
    EXPECT_FALSE(spinUntil([&] { return outside > 0; }, std::chrono::milliseconds(200)));
    EXPECT_EQ(store.value(key), QVariant(1.0));
    EXPECT_EQ(capturedLines(), 1);

    put(path_, "{\"key\":3}");
    ASSERT_TRUE(spinUntil([&] { return store.value(key) == QVariant(3.0); })) << "repaired by hand";
}

TEST_F(FileDefaultsStoreTest, BlockedPathIsLeftAlone) {
    const QByteArray path = QFile::encodeName(path_);
    const struct {
        const char* name;
        std::function<int()> make;
    } obstacles[] = {
        {"pipe", [&] { return ::mkfifo(path.constData(), 0600); }},
        {"folder", [&] { return ::mkdir(path.constData(), 0700); }},
        {"link to itself", [&] { return ::symlink("settings.json", path.constData()); }},
    };
    for (const auto& obstacle : obstacles) {
        SCOPED_TRACE(obstacle.name);
        ASSERT_EQ(obstacle.make(), 0);
        testing::internal::CaptureStderr();
        {
            FileDefaultsStore store(path_);
            store.setValue(key, 1.0);
            store.flush();
            EXPECT_EQ(store.value(key), QVariant(1.0));
        }
        EXPECT_EQ(capturedLines(), 1);
        EXPECT_EQ(names(folder_.path()), QStringList{text("settings.json")});
        EXPECT_FALSE(QFileInfo(path_).isFile());
        ASSERT_EQ(std::remove(path.constData()), 0);
    }
}

TEST_F(FileDefaultsStoreTest, FullDiskLosesNothing) {
    write("{\"key\":1}");
    FileDefaultsStore store(path_);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit full{4096, before.rlim_max};
    const QVariant large = QString(10'000, u'x');
    store.setValue(other, large);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &full), 0);
    store.flush();
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(read(path_), "{\"key\":1}");
    EXPECT_EQ(names(folder_.path()), QStringList{text("settings.json")}) << "no half-written file is left";
    EXPECT_EQ(store.value(other), large);
    EXPECT_TRUE(spinUntil([&] { return object().value(other).toString() == large.toString(); })) << "tried again";
}

} // namespace
} // namespace vantrix
