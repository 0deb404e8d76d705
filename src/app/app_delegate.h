#pragma once

#include <memory>
#include <optional>
#include <string>

#include <QObject>
#include <QPointer>

#include "alerts/alert_manager.h"
#include "monitor/system_monitor.h"
#include "platform/login_item.h"
#include "platform/notification_center.h"
#include "platform/onlookers.h"
#include "platform/popover_window.h"
#include "platform/status_item.h"
#include "platform/widget_center.h"
#include "popover/popover_view.h"
#include "samplers/processor_description.h"
#include "settings/settings_window_controller.h"
#include "views/theme.h"
#include "widget/widget_bridge.h"

class QMenu;

namespace vantrix {

class UserDefaults;

/// The program while it lives in the status area: starts the monitor, hands each pass to the status item, the alerts
/// and the widgets, and answers clicks. While nobody looks, the alerts alone hear of a pass.
class AppDelegate : public QObject {
    Q_OBJECT
  public:
    struct Parts {
        SamplingSources sources;
        const AppearanceSource& appearance; ///< outlives the delegate
        std::function<std::unique_ptr<StatusItem>(StatusItem::Handlers)> makeStatusItem;
        std::unique_ptr<LoginItem> loginItem;
        std::unique_ptr<NotificationCenter> notifications;
        std::unique_ptr<WidgetCenter> widgets;     ///< may be null
        std::unique_ptr<Onlookers> onlookers = {}; ///< null: somebody always looks
        Bluetooth bluetooth = {};                  ///< may be empty
        std::unique_ptr<RepeatingTimer> timer = std::make_unique<QtRepeatingTimer>();
        std::function<std::unique_ptr<PopoverWindow>(const Theme&, PopoverWindow::MakeView)> makePopover =
            makePopoverWindow;
    };

    /// `defaults` outlives the delegate.
    AppDelegate(Parts parts, UserDefaults& defaults);
    ~AppDelegate() override;

    /// Registers the defaults, starts the monitor and shows the status item.
    void applicationDidFinishLaunching();

    void statusItemClicked(const StatusClick& click);
    /// As soon as the status item is on the screen.
    void showPopover();
    /// On the tab that was shown last.
    void openSettings();
    void quitApp();

    /// A request from another process: "show-popover", "show-settings", "show-settings TAB" or "quit"; anything else is
    /// ignored.
    void handleRequest(const std::string& request);
    /// The answer to a question of another process; empty when the request is none.
    std::string answerTo(const std::string& request) const;

  private:
    void createStatusItem();
    void observeDefaults();
    void monitorDidUpdate();
    void onlookersDidChange();
    void meetOnlooker();
    void refreshStatusItem();
    void showMenu();
    void togglePopover(std::optional<MenuBarModule> module);
    void alertOpened(AlertManager::Kind kind);
    void showSettings(std::string_view tab);
    std::vector<StatusMenuEntry> menuEntries();
    std::vector<MenuBarItem> shownItems() const;
    void copyRow() const;

    UserDefaults& defaults_;
    std::vector<MenuBarModule> modules_; // those shown in the row
    std::function<std::unique_ptr<StatusItem>(StatusItem::Handlers)> makeStatusItem_;
    std::unique_ptr<LoginItem> loginItem_;
    std::unique_ptr<NotificationCenter> notifications_;
    std::unique_ptr<WidgetCenter> widgets_;
    std::unique_ptr<Onlookers> onlookers_;
    bool somebodyLooks_ = true;
    int passesToRest_ = 5; ///< until what the start alone took up is given back; 0 from then on
    AlertManager alerts_;
    WidgetBridge widgetBridge_;
    std::unique_ptr<SystemInformation> information_;
    ProcessorDescription processor_;
    SystemMonitor monitor_;
    Theme theme_;
    QPointer<PopoverView> popoverView_; // the popover's; null until it is first shown
    std::unique_ptr<PopoverWindow> popover_;
    SettingsWindowController settings_;
    std::unique_ptr<StatusItem> statusItem_; // none until launch has finished
    bool popoverAwaitsItem_ = false;
    std::unique_ptr<QMenu> menu_;     // the one that was shown last
    std::shared_ptr<void> menuInput_; // while it is open
};

} // namespace vantrix
