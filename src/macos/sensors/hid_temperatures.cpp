#include "macos/sensors/hid_temperatures.h"

#include <cstdint>

#include "macos/kernel/cf_values.h"
#include "macos/kernel/run_time_library.h"

namespace vantrix {
namespace {

constexpr std::int64_t temperatureEvent = 15;
constexpr std::int32_t temperatureLevel = temperatureEvent << 16;

struct HIDFunctions {
    RunTimeLibrary program{nullptr};
    CFTypeRef (*createClient)(CFAllocatorRef) = nullptr;
    void (*setMatching)(CFTypeRef client, CFDictionaryRef matching) = nullptr;
    CFArrayRef (*copyServices)(CFTypeRef client) = nullptr;
    CFTypeRef (*copyProperty)(CFTypeRef service, CFStringRef key) = nullptr;
    // The width of the options is not documented: 64 zero bits are zero at any width.
    CFTypeRef (*copyEvent)(CFTypeRef service, std::int64_t type, std::int64_t options, std::int64_t more) = nullptr;
    double (*getFloat)(CFTypeRef event, std::int32_t field) = nullptr;

    bool find() {
        return program.find("IOHIDEventSystemClientCreate", createClient) &&
               program.find("IOHIDEventSystemClientSetMatching", setMatching) &&
               program.find("IOHIDEventSystemClientCopyServices", copyServices) &&
               program.find("IOHIDServiceClientCopyProperty", copyProperty) &&
               program.find("IOHIDServiceClientCopyEvent", copyEvent) &&
               program.find("IOHIDEventGetFloatValue", getFloat);
    }
};

class HIDTemperatures : public HIDTemperatureSampler::Source {
  public:
    HIDTemperatures(HIDFunctions functions, CFRef<CFTypeRef> client)
        : functions_(std::move(functions)), client_(std::move(client)) {}

    bool read(std::vector<HIDTemperatureSampler::Service>& services) override {
        const CFRef held(functions_.copyServices(client_.get()));
        const auto list = as<CFArrayRef>(held.get());
        if (!list)
            return false;
        services.resize(static_cast<std::size_t>(CFArrayGetCount(list)));
        for (std::size_t i = 0; i < services.size(); ++i) {
            const CFTypeRef service = CFArrayGetValueAtIndex(list, static_cast<CFIndex>(i));
            services[i].product = service ? productOf(service) : std::nullopt;
            services[i].temperature = service ? temperatureOf(service) : std::nullopt;
        }
        return true;
    }

  private:
    std::optional<std::string> productOf(CFTypeRef service) const {
        return textOf(CFRef(functions_.copyProperty(service, CFSTR("Product"))).get());
    }

    std::optional<double> temperatureOf(CFTypeRef service) const {
        const CFRef event(functions_.copyEvent(service, temperatureEvent, 0, 0));
        return event ? std::optional(functions_.getFloat(event.get(), temperatureLevel)) : std::nullopt;
    }

    HIDFunctions functions_; // first, so that the library is closed last
    CFRef<CFTypeRef> client_;
};

/// Matches temperature sensors on the vendor's usage page.
CFRef<CFDictionaryRef> temperatureSensors() {
    const std::int32_t vendorPage = 0xff00;
    const std::int32_t temperatureSensor = 5;
    const CFRef page(CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &vendorPage));
    const CFRef usage(CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &temperatureSensor));
    if (!page || !usage)
        return {};
    const void* keys[] = {CFSTR("PrimaryUsagePage"), CFSTR("PrimaryUsage")};
    const void* values[] = {page.get(), usage.get()};
    return CFRef(CFDictionaryCreate(kCFAllocatorDefault, keys, values, 2, &kCFTypeDictionaryKeyCallBacks,
                                    &kCFTypeDictionaryValueCallBacks));
}

} // namespace

std::unique_ptr<HIDTemperatureSampler::Source> makeHIDTemperatures() {
    HIDFunctions functions;
    const auto sensors = temperatureSensors();
    if (!sensors || !functions.find())
        return nullptr;
    CFRef client(functions.createClient(kCFAllocatorDefault));
    if (!client)
        return nullptr;
    functions.setMatching(client.get(), sensors.get());
    return std::make_unique<HIDTemperatures>(std::move(functions), std::move(client));
}

} // namespace vantrix
