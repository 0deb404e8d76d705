#pragma once

#include <algorithm>
#include <string_view>

#include <QString>

namespace vantrix::fuzz {

/// Each reads what it makes of an input, and expects of the outcome what has to hold for any.
using Target = void(std::string_view input);
Target textFiles, netlink, machine, settings, desktopEntry, bluezObjects, statusItem;

inline constexpr struct {
    std::string_view name; ///< of the folders of its seeds and reproducers
    Target* run;
    bool isQuick = false; ///< takes microseconds
} targets[] = {{"text_files", textFiles, true},
               {"netlink", netlink, true},
               {"machine", machine},
               {"settings", settings},
               {"desktop_entry", desktopEntry, true},
               {"bluez", bluezObjects, true},
               {"status_item", statusItem}};

inline const auto* targetNamed(std::string_view name) {
    const auto* found = std::ranges::find(targets, name, [](const auto& each) { return each.name; });
    return found == std::end(targets) ? nullptr : found;
}

/// Takes an input apart, from its front.
class Input {
  public:
    explicit Input(std::string_view rest) : rest_(rest) {}

    bool isEmpty() const { return rest_.empty(); }

    /// At most `count` of them.
    std::string_view bytes(std::size_t count) {
        const auto taken = rest_.substr(0, count);
        rest_.remove_prefix(taken.size());
        return taken;
    }

    /// 0 where none is left.
    unsigned char byte() { return isEmpty() ? '\0' : static_cast<unsigned char>(bytes(1).front()); }

    template<typename T>
    const auto& oneOf(const T& choices) {
        return choices[byte() % std::size(choices)];
    }

    /// Up to the next bar, or all that is left.
    std::string_view text() {
        const auto taken = bytes(std::min(rest_.find('|'), rest_.size()));
        bytes(1);
        return taken;
    }

    QString string() {
        const auto taken = text();
        return QString::fromUtf8(taken.data(), static_cast<qsizetype>(taken.size()));
    }

  private:
    std::string_view rest_;
};

} // namespace vantrix::fuzz
