#include "linux/network/proc_net_dev.h"

#include "linux/kernel/text_scan.h"
#include "linux/network/port_role.h"

namespace vantrix {
namespace {

/// The last colon ends the name, which may hold another one ("eth0:1").
std::size_t findNameEnd(std::string_view line) {
    auto end = line.find(':');
    for (auto next = end; next != std::string_view::npos; next = line.find(':', next + 1))
        end = next;
    return end;
}

std::optional<NetworkSampler::Counters> parseCounters(std::string_view text) {
    Fields fields(text);
    const auto received = fields.number();
    fields.skip(7); // packets, errors and the like
    const auto sent = fields.number();
    if (!received || !sent)
        return std::nullopt;
    return NetworkSampler::Counters{*received, *sent};
}

} // namespace

bool parseNetDev(std::string_view text, std::vector<NetDevLine>& lines) {
    lines.clear();
    while (const auto line = takeLine(text)) {
        const auto end = findNameEnd(*line);
        if (end == std::string_view::npos)
            continue; // a heading
        const auto begin = std::min(line->find_first_not_of(' '), end);
        lines.push_back({line->substr(begin, end - begin), parseCounters(line->substr(end + 1))});
    }
    return text.empty();
}

void nameLink(std::string_view name, bool isCounted, std::string& shown) {
    const bool hasPrefix = name.starts_with("en");
    shown.clear();
    if (isCounted && !hasPrefix)
        shown += "en";
    else if (!isCounted && hasPrefix)
        shown += '~';
    shown += name;
}

NetDevSource::NetDevSource(const std::string& path, std::unique_ptr<LinkStates> states,
                           std::unique_ptr<LinkStates> fallback)
    : file_(path, KernelFile::Kind::records), states_(std::move(states)), fallback_(std::move(fallback)) {}

bool NetDevSource::read(std::vector<NetworkSampler::Link>& links) {
    if (!states_->refresh() && fallback_)
        states_ = std::move(fallback_);
    const auto text = file_.read();
    if (!text || !parseNetDev(*text, lines_))
        return false;
    linkStates_.resize(lines_.size());
    for (std::size_t i = 0; i < lines_.size(); ++i)
        linkStates_[i] = states_->state(lines_[i].name, i);
    links.resize(lines_.size());
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const bool isCounted = roleOf(linkStates_[i], linkStates_) == PortRole::counted;
        nameLink(lines_[i].name, isCounted, links[i].name);
        links[i].isNamedAnew = links[i].name.size() != lines_[i].name.size();
        links[i].flags = linkStates_[i].flags;
        links[i].counters = lines_[i].counters;
        links[i].index = linkStates_[i].index;
    }
    return true;
}

} // namespace vantrix
