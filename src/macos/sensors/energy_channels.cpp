#include "macos/sensors/energy_channels.h"

#include <cstdint>

#include "macos/kernel/cf_values.h"
#include "macos/kernel/run_time_library.h"

namespace vantrix {
namespace {

struct EnergyFunctions {
    RunTimeLibrary library{"/usr/lib/libIOReport.dylib"};
    CFMutableDictionaryRef (*copyChannels)(CFStringRef group, CFStringRef subgroup, std::uint64_t, std::uint64_t,
                                           std::uint64_t) = nullptr;
    CFTypeRef (*createSubscription)(void* allocator, CFMutableDictionaryRef channels,
                                    CFMutableDictionaryRef* subscribed, std::uint64_t, CFTypeRef options) = nullptr;
    CFDictionaryRef (*createSamples)(CFTypeRef subscription, CFMutableDictionaryRef channels,
                                     CFTypeRef options) = nullptr;
    CFDictionaryRef (*createDelta)(CFDictionaryRef before, CFDictionaryRef now, CFTypeRef options) = nullptr;
    CFStringRef (*groupOf)(CFDictionaryRef channel) = nullptr;
    CFStringRef (*nameOf)(CFDictionaryRef channel) = nullptr;
    CFStringRef (*unitOf)(CFDictionaryRef channel) = nullptr;
    std::int64_t (*valueOf)(CFDictionaryRef channel, std::int32_t index) = nullptr;

    bool find() {
        return library.find("IOReportCopyChannelsInGroup", copyChannels) &&
               library.find("IOReportCreateSubscription", createSubscription) &&
               library.find("IOReportCreateSamples", createSamples) &&
               library.find("IOReportCreateSamplesDelta", createDelta) &&
               library.find("IOReportChannelGetGroup", groupOf) &&
               library.find("IOReportChannelGetChannelName", nameOf) &&
               library.find("IOReportChannelGetUnitLabel", unitOf) &&
               library.find("IOReportSimpleGetIntegerValue", valueOf);
    }
};

class EnergyChannels : public IOReportSampler::Source {
  public:
    explicit EnergyChannels(EnergyFunctions functions) : functions_(std::move(functions)) {}

    bool subscribe() {
        const CFRef channels(functions_.copyChannels(CFSTR("Energy Model"), nullptr, 0, 0, 0));
        if (!channels)
            return false;
        subscription_ = CFRef(functions_.createSubscription(nullptr, channels.get(), subscribed_.out(), 0, nullptr));
        return subscription_ && subscribed_;
    }

    bool takeSnapshot() override {
        CFRef snapshot(functions_.createSamples(subscription_.get(), subscribed_.get(), nullptr));
        if (!snapshot)
            return false;
        previous_ = std::move(current_);
        current_ = std::move(snapshot);
        return true;
    }

    bool readDifference(std::vector<IOReportSampler::Channel>& channels) override {
        if (!previous_ || !current_)
            return false;
        const CFRef delta(functions_.createDelta(previous_.get(), current_.get(), nullptr));
        const auto entries = delta ? valueAt<CFArrayRef>(delta.get(), CFSTR("IOReportChannels")) : nullptr;
        if (!entries)
            return false;
        channels.clear();
        for (CFIndex i = 0; i < CFArrayGetCount(entries); ++i) {
            if (const auto entry = as<CFDictionaryRef>(CFArrayGetValueAtIndex(entries, i)))
                channels.push_back({textOf(functions_.groupOf(entry)).value_or(""), textOf(functions_.nameOf(entry)),
                                    textOf(functions_.unitOf(entry)), functions_.valueOf(entry, 0)});
        }
        return true;
    }

  private:
    EnergyFunctions functions_; // first, so that the library is closed last
    CFRef<CFTypeRef> subscription_;
    CFRef<CFMutableDictionaryRef> subscribed_;
    CFRef<CFDictionaryRef> previous_;
    CFRef<CFDictionaryRef> current_;
};

} // namespace

std::unique_ptr<IOReportSampler::Source> makeEnergyChannels() {
    EnergyFunctions functions;
    if (!functions.find())
        return nullptr;
    auto channels = std::make_unique<EnergyChannels>(std::move(functions));
    return channels->subscribe() ? std::move(channels) : nullptr;
}

} // namespace vantrix
