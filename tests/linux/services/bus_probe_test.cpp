#include "linux/services/bus_probe.h"

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "linux/bluetooth/bluez_watch.h"
#include "linux/services/private_bus.h"
#include "linux/services/session_bus.h"
#include "posix/file_descriptor.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

/// A daemon that takes connections and never says a word.
class MuteBus {
  public:
    MuteBus() {
        sockaddr_un place{};
        place.sun_family = AF_UNIX;
        std::strncpy(place.sun_path, path().toLocal8Bit().constData(), sizeof place.sun_path - 1);
        EXPECT_EQ(bind(socket_.get(), reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
        EXPECT_EQ(listen(socket_.get(), 8), 0);
    }
    QString address() const { return u"unix:path="_s + path(); }

  private:
    QString path() const { return folder_.filePath(u"bus"_s); }

    QTemporaryDir folder_;
    FileDescriptor socket_{socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
};

TEST(BusAnswers, TellsDaemonsThatWorkFromThoseThatDoNot) {
    const PrivateBus bus;
    const MuteBus mute;
    const std::chrono::milliseconds patience{50};
    EXPECT_TRUE(busAnswers(bus.address(), std::chrono::seconds(10)));
    EXPECT_TRUE(busAnswers(bus.address() + u";unix:path=/nowhere"_s, std::chrono::seconds(10)));
    EXPECT_FALSE(busAnswers(mute.address(), patience));
    EXPECT_FALSE(busAnswers(u"unix:path=/nowhere/bus"_s, patience));
    EXPECT_TRUE(busAnswers(u"tcp:host=localhost,port=1"_s, patience)); // not ours to judge
}

TEST(SessionBus, IsKeptFromTheToolkitWhileItIsMute) {
    const auto isKept = [](const QString& address) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", address.toLocal8Bit());
        keepSilentBusFromToolkit(std::chrono::milliseconds(50));
        EXPECT_EQ(sessionBusAddress(), address);
        ::_exit(testing::Test::HasFailure() ? 2 : qgetenv("DBUS_SESSION_BUS_ADDRESS") == "disabled:");
    };
    const PrivateBus bus;
    const MuteBus mute;
    EXPECT_EXIT(isKept(mute.address()), testing::ExitedWithCode(1), "");
    EXPECT_EXIT(isKept(bus.address()), testing::ExitedWithCode(0), "");
}

/// The toolkit would wait for it for ever, and every other connection with it.
TEST(BluezWatchTest, AMuteSystemBusHoldsUpNoOtherConnection) {
    const MuteBus mute;
    const PrivateBus bus;
    BluezWatch watch(std::make_shared<BusLink>(mute.address()));
    EXPECT_TRUE(BusConnection(bus.address()).isConnected());
    EXPECT_TRUE(spinUntil([&] { return watch.state() == BluetoothState::unsupported; }));
}

TEST(BusLink, ReachesWhateverBusIsThereWithoutWaiting) {
    PrivateBus bus;
    bus.freeze(); // the toolkit would wait for it for ever, with every other connection
    BusLink link(bus.address() + u",guid="_s + QString(32, u'0'), std::chrono::milliseconds(5)); // of a former daemon
    EXPECT_EQ(link.bus(), nullptr);
    const PrivateBus other;
    EXPECT_TRUE(BusConnection(other.address()).isConnected()) << "held up";
    bus.kill();
    bus.start();
    EXPECT_TRUE(spinUntil([&] { return link.bus() != nullptr; }));
}

} // namespace
} // namespace vantrix
