#include "linux/services/linux_widget_center.h"

#include <atomic>
#include <thread>

#include "linux/services/private_bus.h"
#include "linux/settings/settings_folder.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;
using namespace settings_folder;

/// What widgets are told.
class Listener : public QObject {
    Q_OBJECT
  public:
    explicit Listener(QDBusConnection bus) {
        bus.connect(QString(), u"/vantrix/WidgetCenter"_s, u"vantrix.WidgetCenter"_s, u"Reload"_s, this,
                    SLOT(reload(QString)));
    }
    QStringList paths;

  private Q_SLOTS:
    void reload(const QString& path) { paths << path; }
};

struct LinuxWidgetCenterTest : settings_folder::FileDefaultsStoreTest {
    QString file = at("run/vantrix/defaults.json");
    LinuxWidgetCenter center{file, std::make_shared<BusLink>(std::nullopt)};
};

TEST_F(LinuxWidgetCenterTest, ReplacesAPrivateFile) {
    const auto isRead = [&](const QByteArray& json) {
        center.store("sharedStats", json.toStdString());
        return modeOf(file) == 0600u && read(file).trimmed() == "{\"sharedStats\":" + json + "}";
    };
    for (const char* json : {"{\"a\":1}", "2", "[3]", "4"})
        EXPECT_TRUE(isRead(json)) << json;
    for (const int length : {1, 10'000, 1, 1})
        EXPECT_TRUE(isRead('"' + QByteArray(length, 'a') + '"')) << length;
    EXPECT_EQ(modeOf(at("run/vantrix")), 0700u);
    QDir(at("run")).removeRecursively(); // as at the end of a session
    EXPECT_TRUE(isRead("5"));
    EXPECT_EQ(names(at("run/vantrix")), QStringList{u"defaults.json"_s});
    EXPECT_TRUE(isRead("6"));
    for (const QString& name : names(at("run/vantrix")))
        if (name != u"defaults.json")
            QFile::remove(at("run/vantrix/") + name);
    EXPECT_TRUE(isRead("7"));
    EXPECT_TRUE(QFile::remove(file) && QDir().mkdir(file));
    for (int round = 0; round < 3; ++round)
        center.store("sharedStats", "8");
    EXPECT_TRUE(QFileInfo(file).isDir()) << "somebody's folder";
}

TEST_F(LinuxWidgetCenterTest, WritesTwoFilesInTurnButNoneThatIsStillRead) {
    const auto shown = [&] {
        struct stat status {};
        return ::stat(QFile::encodeName(file).constData(), &status) == 0 ? status.st_ino : 0;
    };
    std::vector<ino_t> files;
    for (const char* json : {"1", "2", "3", "4", "5"}) {
        center.store("k", json);
        files.push_back(shown());
    }
    EXPECT_EQ(files[2], files[0]);
    EXPECT_EQ(files[3], files[1]);
    EXPECT_EQ(files[4], files[0]);
    QFile slow(file);
    ASSERT_TRUE(slow.open(QFile::ReadOnly));
    for (const char* json : {"6", "7", "8"})
        center.store("k", json);
    EXPECT_EQ(slow.readAll().trimmed(), "{\"k\":5}");
    EXPECT_EQ(names(at("run/vantrix")).size(), 2);
}

TEST_F(LinuxWidgetCenterTest, ReadersNeverSeeAMixture) {
    const std::string values[] = {'"' + std::string(100'000, 'a') + '"', '"' + std::string(50'000, 'b') + '"'};
    center.store("k", values[0]);
    std::atomic<bool> done = false;
    std::thread writer([&] {
        for (int round = 0; round < 500; ++round)
            center.store("k", values[round % 2]);
        done = true;
    });
    int torn = 0;
    while (!done) {
        const std::string seen = read(file).trimmed().toStdString();
        torn += seen != "{\"k\":" + values[0] + "}" && seen != "{\"k\":" + values[1] + "}";
    }
    writer.join();
    EXPECT_EQ(torn, 0);
}

TEST_F(LinuxWidgetCenterTest, TellsWidgetsOnTheBus) {
    PrivateBus bus;
    const auto link = bus.link();
    LinuxWidgetCenter telling(file, link);
    for (int life = 0; life < 2; ++life) {
        ASSERT_TRUE(spinUntil([&] { return link->bus() != nullptr; }));
        BusConnection other(bus.address());
        Listener widget(other.bus());
        telling.reloadAllTimelines();
        EXPECT_TRUE(spinUntil([&] { return widget.paths == QStringList{file}; }));
        bus.kill();
        telling.reloadAllTimelines();
        ASSERT_TRUE(spinUntil([&] { return link->bus() == nullptr; }));
        bus.start();
    }
    center.reloadAllTimelines(); // has no bus at all
}

} // namespace
} // namespace vantrix

#include "linux_widget_center_test.moc"
