import WidgetKit

/// WidgetCenter is Swift only; this makes it callable from C++.
@_cdecl("vantrixReloadAllTimelines")
public func reloadAllTimelines() {
    WidgetCenter.shared.reloadAllTimelines()
}
