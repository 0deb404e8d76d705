#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QKeySequence>
#include <QRect>
#include <QString>
#include <qwindowdefs.h>

#include "menubar/menu_bar_item.h"

namespace vantrix {

class AppearanceSource;
class UserDefaults;

/// What the status item shows. No items: the gauge symbol alone.
struct StatusContent {
    std::vector<MenuBarItem> items;
    MenuBarStyle style = MenuBarStyle::stacked;
    bool colorize = true;
    std::string accessibilityLabel; ///< the whole row as text; "Vantrix" when there are no items
};

struct StatusClick {
    enum class Button { left, right, middle };

    Button button = Button::left;
    bool control = false; ///< the Control key was held
    /// What was clicked; absent where the system does not tell, or nothing but the gauge is shown.
    std::optional<MenuBarModule> module = {};
};

/// One entry of the status item's menu; an empty title is a separator.
struct StatusMenuEntry {
    QString title;
    QKeySequence shortcut;
    std::function<void()> action;
};

/// The program's place in the system's status area. Main thread only.
class StatusItem {
  public:
    struct Handlers {
        std::function<void(const StatusClick&)> clicked;
        /// The menu's entries, asked anew each time it is about to be shown.
        std::function<std::vector<StatusMenuEntry>()> menu;
        /// What the row has no room for, as lines of plain text, of one module or of all; asked when somebody looks at
        /// it or the row changes. The answer may be empty.
        std::function<QString(std::optional<MenuBarModule>)> details;
        /// Called before a menu that the system itself draws opens.
        std::function<void()> menuWillOpen;
        /// Called each time it has found a place on the screen.
        std::function<void()> appeared = {};
    };

    virtual ~StatusItem() = default;

    /// Draws and announces the content only where the picture or the text differs from what is shown.
    virtual void show(const StatusContent& content) = 0;

    /// False while its place is being looked for.
    virtual bool isShown() const { return true; }

    /// The item's rectangle on the screen, or the best guess at it, in device-independent pixels: the popover and the
    /// menu open beside it. Never null once something was shown.
    virtual QRect anchor() const = 0;

    /// True when `anchor` is no guess.
    virtual bool placeIsKnown() const { return false; }

    /// To be called when the popover opens and closes: a tool tip of the panel's must not cover it.
    virtual void popoverShown(bool /*shown*/) const {}

    /// To be called for a click on the item that another window of the program took.
    virtual void click(const StatusClick& /*click*/) const {}

    /// Shows a menu of `entries` the way the system's own items do, and returns when it has closed. False where the
    /// program has to draw its menus itself.
    virtual bool popUpMenu(const std::vector<StatusMenuEntry>& /*entries*/) { return false; }

    /// Where it is shown, in a few English words for a report.
    virtual std::string place() const { return "menu bar"; }

    /// The item's own view, for the system's popover to point at (an NSView on a Mac); 0 where there is none.
    virtual WId nativeView() const { return 0; }
};

/// The status item of this system. `defaults` stores what the user has arranged by hand, such as the place of a
/// floating strip; both it and `appearance` outlive the item.
std::unique_ptr<StatusItem> makeStatusItem(StatusItem::Handlers handlers, UserDefaults& defaults,
                                           const AppearanceSource& appearance);

} // namespace vantrix
