#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "linux/kernel/kernel_file.h"
#include "linux/network/link_states.h"
#include "samplers/network_sampler.h"

namespace vantrix {

/// One interface of /proc/net/dev.
struct NetDevLine {
    std::string_view name; ///< part of the text that was parsed
    std::optional<NetworkSampler::Counters> counters;
};

/// Replaces `lines` by the interfaces of /proc/net/dev. False when the text is cut short.
bool parseNetDev(std::string_view text, std::vector<NetDevLine>& lines);

/// Replaces `shown` by a name for the sampler, which counts what begins with "en". What is to be counted gets that
/// prefix where it lacks it; anything else that has it gets another character before it.
void nameLink(std::string_view name, bool isCounted, std::string& shown);

/// Counters from /proc/net/dev, joined with the state of each link. Ports whose bytes another port counts as well are
/// left out.
class NetDevSource : public NetworkSampler::Source {
  public:
    /// `fallback` takes over for good once `states` does not work.
    NetDevSource(const std::string& path, std::unique_ptr<LinkStates> states, std::unique_ptr<LinkStates> fallback);

    bool read(std::vector<NetworkSampler::Link>& links) override;
    /// The file prints 64 bits, also of a 32-bit kernel; a driver that counts in 32 there seems to start over.
    NetworkSampler::CounterWidth counterWidth() const override { return NetworkSampler::CounterWidth::bits64; }

  private:
    KernelFile file_;
    std::unique_ptr<LinkStates> states_;
    std::unique_ptr<LinkStates> fallback_;
    std::vector<NetDevLine> lines_;
    std::vector<LinkState> linkStates_; // of each line
};

} // namespace vantrix
