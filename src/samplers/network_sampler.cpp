#include "samplers/network_sampler.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "support/checked.h"

namespace vantrix {
namespace {

constexpr std::string_view hardware = "en"; // how the names of ports begin

bool isPort(const NetworkSampler::Link& link) {
    return link.counters && link.name.starts_with(hardware);
}

bool isActivePort(const NetworkSampler::Link& link) {
    constexpr auto active = NetworkSampler::linkUp | NetworkSampler::linkRunning;
    return isPort(link) && (link.flags & active) == active;
}

std::string_view ownName(const NetworkSampler::Link& link) {
    return std::string_view(link.name).substr(link.isNamedAnew ? hardware.size() : 0);
}

template<typename Ports>
auto findPort(Ports& ports, std::size_t count, const std::string& name) {
    const auto end = ports.begin() + static_cast<std::ptrdiff_t>(count);
    return std::find_if(ports.begin(), end, [&](const auto& port) { return port.name == name; });
}

} // namespace

void NetworkSampler::collectPorts() {
    std::size_t count = 0;
    for (const Link& link : links_) {
        if (!isActivePort(link))
            continue;
        const auto known = findPort(current_, count, link.name);
        if (known != current_.begin() + static_cast<std::ptrdiff_t>(count)) {
            known->index = link.index; // a name listed twice: the later entry stands
            known->counters = *link.counters;
            continue;
        }
        if (count == current_.size())
            current_.emplace_back();
        current_[count].name = link.name;
        current_[count].isChosen = chosen_.empty() || ownName(link) == chosen_;
        current_[count].index = link.index;
        current_[count].counters = *link.counters;
        ++count;
    }
    current_.resize(count);
}

/// Absent for a counter that started over.
std::optional<std::uint64_t> NetworkSampler::growth(std::uint64_t now, std::uint64_t before) const {
    if (source_.counterWidth() == CounterWidth::bits32)
        return wrappingDifference(static_cast<std::uint32_t>(now), static_cast<std::uint32_t>(before));
    return now >= before ? std::optional(now - before) : std::nullopt;
}

NetworkSample NetworkSampler::rates(double elapsed) const {
    double received = 0.0;
    double sent = 0.0;
    for (const Port& port : current_) {
        if (!port.isChosen)
            continue;
        const auto before = findPort(previous_, previous_.size(), port.name);
        if (before == previous_.end() || before->index != port.index)
            continue; // new since the last call: counted from the next one
        const auto newlyReceived = growth(port.counters.received, before->counters.received);
        const auto newlySent = growth(port.counters.sent, before->counters.sent);
        if (!newlyReceived || !newlySent)
            continue; // where one counter started over, so did the other
        received += static_cast<double>(*newlyReceived);
        sent += static_cast<double>(*newlySent);
    }
    return {received / elapsed, sent / elapsed};
}

std::optional<NetworkSample> NetworkSampler::sample() {
    if (!source_.read(links_) || links_.empty())
        return std::nullopt;
    collectPorts();
    const double now = clock_.uptime();
    const auto before = std::exchange(previousTime_, now);
    NetworkSample sample = before && *before < now ? rates(now - *before) : NetworkSample();
    sample.isThere = chosen_.empty() || std::any_of(current_.begin(), current_.end(), std::mem_fn(&Port::isChosen));
    previous_.swap(current_);
    return sample;
}

std::vector<std::string> NetworkSampler::ports() const {
    std::vector<std::string> names;
    for (const Link& link : links_)
        if (isPort(link))
            names.emplace_back(ownName(link));
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

} // namespace vantrix
