import WidgetKit

/// The widget centre can be reached from Swift alone; this is its one door for the rest of the program.
@_cdecl("vantrixReloadAllTimelines")
public func reloadAllTimelines() {
    WidgetCenter.shared.reloadAllTimelines()
}
