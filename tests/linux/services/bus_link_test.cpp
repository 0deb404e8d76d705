#include "linux/services/private_bus.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

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
