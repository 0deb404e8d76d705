#include "linux/network/proc_net_dev.h"

#include "linux/kernel/text_scan.h"
#include "linux/network/port_role.h"

namespace vantrix {
namespace {

/// The name and the first number, where they are not apart.
struct Head {
    std::size_t begin = 0;
    std::size_t nameEnd = std::string_view::npos; ///< the last colon, as a name may hold another one ("eth0:1")
};

Head findHead(std::string_view line) {
    Head head{std::min(line.find_first_not_of(' '), line.size())};
    for (std::size_t i = head.begin; i < line.size() && line[i] != ' '; ++i)
        if (line[i] == ':')
            head.nameEnd = i;
    return head;
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
        const Head head = findHead(*line);
        if (head.nameEnd == std::string_view::npos)
            continue; // a heading
        lines.push_back(
            {line->substr(head.begin, head.nameEnd - head.begin), parseCounters(line->substr(head.nameEnd + 1))});
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
