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
    for (const char* json : {"{\"a\":1}", "2"}) {
        center.store("sharedStats", json);
        EXPECT_EQ(read(file), "{\"sharedStats\":" + QByteArray(json) + "}\n");
        EXPECT_EQ(modeOf(file), 0600u);
    }
    EXPECT_EQ(modeOf(at("run/vantrix")), 0700u);
    QDir(at("run")).removeRecursively(); // as at the end of a session
    center.store("sharedStats", "3");
    EXPECT_EQ(read(file), "{\"sharedStats\":3}\n");
    EXPECT_EQ(names(at("run/vantrix")), QStringList{u"defaults.json"_s});
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
        const std::string seen = read(file).toStdString();
        torn += seen != "{\"k\":" + values[0] + "}\n" && seen != "{\"k\":" + values[1] + "}\n";
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
