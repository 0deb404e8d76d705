#pragma once

#include <memory>
#include <string_view>

namespace vantrix {

/// What the program shares with its widgets, which run in processes of their own. Main thread only; reports no
/// failures.
class WidgetCenter {
  public:
    virtual ~WidgetCenter() = default;

    /// Replaces what widgets read under `key` in the store of the program's group by a JSON value. On failure the old
    /// value stays.
    virtual void store(std::string_view key, std::string_view json) = 0;

    /// Tells every widget to read again.
    virtual void reloadAllTimelines() = 0;
};

/// Null where the program belongs to no group.
///
/// On Linux the store is the file `$XDG_RUNTIME_DIR/vantrix/defaults.json` (without that folder,
/// `$XDG_STATE_HOME/vantrix/defaults.json`), an object with one entry per key that only the user may read. Widgets are
/// told by the signal `Reload` of the interface `vantrix.WidgetCenter` from the object `/vantrix/WidgetCenter` on the
/// session bus, with the file's path as its only argument.
std::unique_ptr<WidgetCenter> makeWidgetCenter();

} // namespace vantrix
