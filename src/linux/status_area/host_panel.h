#pragma once

#include <chrono>
#include <optional>
#include <set>

#include <QColor>
#include <QElapsedTimer>
#include <QRect>
#include <QtGlobal>

namespace vantrix {

/// The panel that shows a host's items, as the X server has it; nothing is known of it elsewhere. A look costs a few
/// round trips and a picture of at most 4 kB.
class HostPanel {
  public:
    explicit HostPanel(std::chrono::milliseconds lookInterval) : lookInterval_(lookInterval) {}

    /// True where a screen can be looked at: under Wayland the X server's shows nothing but its own clients.
    static bool canLook();

    /// A process that reads the items: the panel is a dock of its, or one in which it has a window. True when something
    /// is known by that which was not.
    bool addReader(uint process);

    /// Looks how the panel is by now, unless the last look is less than the interval ago, which is up to four times as
    /// long where nothing changes. True when it changed.
    bool look();

    /// The next call looks.
    void lookSoon();

    /// The usual colour where the items are; while it is hidden or covered, the one seen last.
    const std::optional<QColor>& ground() const { return ground_; }

    /// Where it is on the root window, in device pixels; empty while that is not known.
    const QRect& place() const { return place_; }

    /// It is higher than wide, so that only squares fit.
    bool isUpright() const { return upright_; }

  private:
    bool lookNow();
    void find();

    std::chrono::milliseconds lookInterval_;
    QElapsedTimer sinceLook_;
    std::set<std::uint32_t> processes_;
    int searches_ = 0;         ///< in vain
    int sameLooks_ = 0;        ///< in succession
    std::uint32_t dock_ = 0;   ///< 0 while there is none
    std::uint32_t window_ = 0; ///< the dock, or the window of the reader's in it
    std::optional<QColor> ground_;
    QRect place_;
    bool upright_ = false;
};

} // namespace vantrix
