#pragma once

#include <chrono>
#include <memory>
#include <optional>

#include <QObject>
#include <QTimer>
#include <unistd.h>

#include "linux/services/bus_link.h"
#include "linux/status_area/notifier_watch.h"
#include "linux/status_area/status_row.h"
#include "platform/status_item.h"

namespace vantrix {

class AppearanceSource;
class StatusBackend;
class TrayWindow;
class X11Tray;

/// What the status item finds on the desktop; tests set up their own.
struct StatusSurroundings {
    std::shared_ptr<BusLink> bus = sharedSessionBus();
    /// How long a desktop may take to bring up its status area before the strip is shown.
    std::chrono::milliseconds stripDelay{4000};
    /// How long a tray may cut the row before it is given up.
    std::chrono::milliseconds trayPatience{2500};
    /// How often at most the panel's colour is looked at, while the row changes.
    std::chrono::milliseconds lookInterval{4000};
    NotifierWatch::HostOfProcess hostOfProcess = notifierHostOfProcess;
    /// Somebody started the program by hand, and wonders where it is.
    bool isOnTerminal = ::isatty(STDERR_FILENO) == 1;
};

/// Shows the row in the best place there is at any time: the X11 tray where it grants the row's width, else a
/// StatusNotifier host, else a strip of its own.
class LinuxStatusItem : public QObject, public StatusItem {
    Q_OBJECT
  public:
    enum class Kind { none, tray, notifier, strip };

    LinuxStatusItem(Handlers handlers, UserDefaults& defaults, const AppearanceSource& appearance,
                    const StatusSurroundings& surroundings = {});
    ~LinuxStatusItem() override;

    void show(const StatusContent& content) override;
    bool isShown() const override { return kind_ != Kind::none; }
    QRect anchor() const override;
    bool placeIsKnown() const override;
    void popoverShown(bool shown) const override;
    void click(const StatusClick& click) const override { handlers_.clicked(click); }

    std::string place() const override;

    Kind kind() const { return kind_; }

  private:
    void choose();
    void redraw();
    void tryTray();
    void traySettled(bool readable);
    void tellWhere();
    void use(Kind kind, std::unique_ptr<StatusBackend> backend);
    void hide();
    void trayChanged();

    Handlers handlers_;
    UserDefaults& defaults_;
    const AppearanceSource& appearance_;
    StatusSurroundings surroundings_;
    NotifierWatch watch_;
    std::unique_ptr<X11Tray> tray_;

    std::unique_ptr<TrayWindow> candidate_; ///< in the tray; whether there is room for it is not known yet
    std::unique_ptr<StatusBackend> backend_;
    Kind kind_ = Kind::none;
    bool wasTold_ = false;           ///< that the panel shows it
    std::uint32_t rejectedTray_ = 0; ///< owner of a tray that has no room for the row
    QTimer stripTimer_;
    std::optional<StatusRow> row_;
};

} // namespace vantrix
