#include "macos/sensors/smc_connection.h"

#include <mach/mach.h>

#include "macos/kernel/registry.h"
#include "sensors/smc.h"

namespace vantrix {
namespace {

constexpr std::uint32_t exchangeRecords = 2; // the user client's method

class SMCConnection : public SMC::Transport {
  public:
    explicit SMCConnection(io_connect_t connection) : connection_(connection) {}
    SMCConnection(const SMCConnection&) = delete;
    SMCConnection& operator=(const SMCConnection&) = delete;
    ~SMCConnection() override { IOServiceClose(connection_); }

    bool call(const SMC::Record& question, SMC::Record& answer) override {
        std::size_t size = answer.size();
        return IOConnectCallStructMethod(connection_, exchangeRecords, question.data(), question.size(), answer.data(),
                                         &size) == KERN_SUCCESS &&
               size == answer.size();
    }

  private:
    io_connect_t connection_;
};

} // namespace

std::unique_ptr<SensorKeys> makeSensorKeys() {
    const IOObject service = firstService("AppleSMC");
    io_connect_t connection = IO_OBJECT_NULL;
    if (!service || IOServiceOpen(service.get(), mach_task_self(), 0, &connection) != KERN_SUCCESS)
        return nullptr;
    return std::make_unique<SMC>(std::make_unique<SMCConnection>(connection));
}

} // namespace vantrix
