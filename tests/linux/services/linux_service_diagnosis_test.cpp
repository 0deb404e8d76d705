#include "linux/services/linux_service_diagnosis.h"

#include "linux/bluetooth/fake_bluez.h"
#include "linux/services/fake_portal.h"
#include "linux/services/private_bus.h"
#include "linux/settings/settings_folder.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;
using ::testing::HasSubstr;

struct ServiceDiagnosisTest : testing::Test {
    /// The rows by name; one bus serves as both.
    std::map<std::string, SourceDiagnosis> ask(const BusAddresses& addresses,
                                               std::chrono::milliseconds patience = std::chrono::seconds(20)) {
        LinuxServiceDiagnoses diagnoses(addresses, patience);
        std::optional<std::vector<SourceDiagnosis>> rows;
        diagnoses.finished = [&](auto told) { rows = std::move(told); };
        EXPECT_FALSE(rows);
        EXPECT_TRUE(spinUntil([&] { return rows.has_value(); }));
        std::map<std::string, SourceDiagnosis> byName;
        for (const SourceDiagnosis& row : rows.value_or(std::vector<SourceDiagnosis>()))
            byName[row.name] = row;
        return byName;
    }
    std::map<std::string, SourceDiagnosis> ask() { return ask({bus.address(), bus.address()}); }

    PrivateBus bus;
    FakeBluez bluez{bus.address()};
    FakeService daemon{bus.address(), u"org.freedesktop.Notifications"_s, u"/org/freedesktop/Notifications"_s};
    FakeService watcher{bus.address(), u"org.kde.StatusNotifierWatcher"_s, u"/StatusNotifierWatcher"_s};
};

TEST_F(ServiceDiagnosisTest, WithoutABusItSaysSo) {
    const auto rows = ask({std::nullopt, u"unix:path=/nowhere/bus"_s});
    EXPECT_EQ(rows.at("Session bus").state, SourceState::absent);
    EXPECT_EQ(rows.at("System bus").source, "unix:path=/nowhere/bus");
    EXPECT_EQ(rows.at("System bus").state, SourceState::absent);
    EXPECT_EQ(rows.at("Notifications").reason, "There is no session bus to ask.");
    EXPECT_EQ(rows.at("Bluetooth").reason, "There is no system bus to ask.");
}

TEST_F(ServiceDiagnosisTest, TellsOfEachServiceThatAnswers) {
    daemon.always = {u"dunst"_s, u"people"_s, u"1.9"_s, u"1.2"_s};
    daemon.appear();
    watcher.always = {QVariant::fromValue(QDBusVariant(true))};
    watcher.appear();
    const FakePortal portal(bus.address(), {{u"org.freedesktop.appearance"_s, {{u"color-scheme"_s, QVariant(1U)}}}});
    const auto rows = ask();
    EXPECT_EQ(rows.at("Session bus").value, "connected");
    EXPECT_EQ(rows.at("Notifications").value, "dunst 1.9");
    EXPECT_EQ(rows.at("Appearance").value, "dark");
    EXPECT_EQ(rows.at("Status area").state, SourceState::ok);
    EXPECT_EQ(rows.at("Status area").value, "app_tests"); // whose process the watcher is
}

TEST_F(ServiceDiagnosisTest, AWatcherWithoutAPanelIsNoStatusArea) {
    watcher.always = {QVariant::fromValue(QDBusVariant(false))};
    watcher.appear();
    const auto row = ask().at("Status area");
    EXPECT_EQ(row.state, SourceState::absent);
    EXPECT_THAT(row.reason, HasSubstr("app_tests keeps the list"));
}

TEST_F(ServiceDiagnosisTest, AServiceThatHangsIsSilentAndKeepsNobodyWaiting) {
    daemon.hangs = true;
    daemon.appear();
    const FakePortal portal(bus.address());
    const auto rows = ask({bus.address(), std::nullopt}, std::chrono::milliseconds(1500));
    EXPECT_EQ(rows.at("Notifications").state, SourceState::silent);
    EXPECT_EQ(rows.at("Appearance").value, "no preference");
}

TEST_F(ServiceDiagnosisTest, NonsenseAndRefusalsAreToldApart) {
    daemon.always = {42};
    daemon.appear();
    bluez.error = QDBusError::AccessDenied;
    bluez.appear();
    const auto rows = ask();
    EXPECT_EQ(rows.at("Notifications").state, SourceState::damaged);
    EXPECT_EQ(rows.at("Bluetooth").state, SourceState::denied);
    EXPECT_THAT(rows.at("Bluetooth").reason, HasSubstr("usermod -aG bluetooth"));
}

TEST_F(ServiceDiagnosisTest, AServiceThatTheBusCanStartIsNotStarted) {
    const PrivateBus starting("org.freedesktop.Notifications");
    const auto row = ask({starting.address(), std::nullopt}).at("Notifications");
    EXPECT_EQ(row.state, SourceState::ok);
    EXPECT_EQ(row.value, "started when needed");
}

TEST(OwnFilesDiagnosis, TellsOfSettingsThatCannotBeUsed) {
    const QTemporaryDir folder;
    const QByteArray usual = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    const QString path = folder.filePath(u"vantrix/settings.json"_s);
    const auto told = [] { return diagnoseOwnFiles().front(); };
    EXPECT_EQ(told().value, "defaults");
    ASSERT_TRUE(QDir().mkpath(folder.filePath(u"vantrix"_s)));
    settings_folder::put(path, "{\"updateInterval\": 5, \"menuBarStyle\": \"inline\"}");
    EXPECT_EQ(told(), (SourceDiagnosis{"Settings", path.toStdString(), SourceState::ok, "2 entries", ""}));
    settings_folder::put(path, "{\"updateInterval\": ");
    EXPECT_EQ(told().state, SourceState::damaged);
    EXPECT_TRUE(QFile::remove(path)) << "it was only looked at";
    ASSERT_TRUE(QDir().mkdir(path));
    EXPECT_THAT(told().reason, HasSubstr("left alone"));
    usual.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", usual);
}

TEST(StatusAreaDiagnosis, FollowsTheOrderOfTheBackEnds) {
    EXPECT_EQ(diagnoseStatusArea({}, TrayAnswer::tray, false).value, "X11 tray");
    EXPECT_EQ(diagnoseStatusArea({}, TrayAnswer::silent, false).state, SourceState::silent);
    EXPECT_THAT(diagnoseStatusArea({}, TrayAnswer::noServer, false).reason, HasSubstr("no display"));
    for (const auto tray : {TrayAnswer::noServer, TrayAnswer::noTray})
        EXPECT_THAT(diagnoseStatusArea({}, tray, true).reason, HasSubstr("a strip on the desktop")) << int(tray);
}

} // namespace
} // namespace vantrix
