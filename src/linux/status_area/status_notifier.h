#pragma once

#include <memory>
#include <optional>
#include <set>
#include <vector>

#include <QElapsedTimer>
#include <QObject>

#include "linux/services/bus_link.h"
#include "linux/status_area/dbus_menu.h"
#include "linux/status_area/host_panel.h"
#include "linux/status_area/notifier_host.h"
#include "linux/status_area/notifier_object.h"
#include "linux/status_area/paced_update.h"
#include "linux/status_area/row_pixmaps.h"
#include "linux/status_area/status_backend.h"
#include "linux/status_area/status_row.h"

namespace vantrix {

class AppearanceSource;

/// The row as one or several StatusNotifierItems, laid out for the host at hand. Lives as long as that host does.
/// Nothing here waits for an answer.
class StatusNotifier : public QObject, public StatusBackend {
    Q_OBJECT
  public:
    /// The colour of the panel's own text, where it is known.
    using PanelText = std::function<std::optional<QColor>()>;

    StatusNotifier(std::optional<QString> busAddress, const NotifierHost& host, const StatusItem::Handlers& handlers,
                   const AppearanceSource& appearance, PanelText panelText, std::chrono::milliseconds lookInterval);

    void show(const StatusRow& row) override;
    void popoverShown(bool shown) override;
    void lookAround() override;
    QRect anchor() const override;
    bool placeIsKnown() const override { return clickRect_.has_value(); }

  private:
    /// How the row is drawn for what is known of the panel.
    struct Look {
        MenuBarPalette palette;
        bool haloed = false; ///< because it is not known
        QFont font = QGuiApplication::font();

        bool operator==(const Look&) const = default;
    };

    NotifierLayout layout() const;
    bool single() const { return layout() != NotifierLayout::tiles; }
    QStringList wantedIds() const;
    void connectItems();
    void makeItems(QDBusConnection& bus);
    void dropItems();
    void registerFirst();
    void registerNext();
    bool lookAtConfiguration();
    void settle();
    void noteReader(const QString& name);
    Look look() const;
    std::size_t tileOf(std::size_t index) const;
    void publish();
    void update(std::size_t index, const Look& look);
    NotifierContent contentOf(std::size_t index, const Look& look);
    QString titleOf(std::size_t tile) const;
    QString toolTipOf(std::size_t tile) const;
    NotifierPixmaps pixmapsOf(std::size_t tile, const Look& look);
    bool samePixmaps(std::size_t tile, const Look& look) const;
    void announceToolTips();
    void clicked(std::size_t index, StatusClick click, QPoint point);
    std::vector<StatusMenuEntry> menuEntries() const;

    std::optional<QString> busAddress_;
    NotifierHost host_;
    StatusItem::Handlers handlers_;
    const AppearanceSource& appearance_;
    PanelText panelText_;
    HostPanel panel_;
    std::set<QString> readers_; ///< whose processes were asked for

    std::unique_ptr<BusLink> link_; ///< of its own, because hosts drop an item only when its connection ends
    std::unique_ptr<DBusMenu> menu_;
    std::vector<std::unique_ptr<NotifierObject>> objects_; ///< none while there is no connection
    std::size_t registered_ = 0;
    QTimer registration_;
    std::set<NotifierObject*> staleToolTips_; ///< changed, but not told to the host

    QStringList ids_;
    StatusRow row_;                      ///< what is to be shown
    std::optional<StatusRow> published_; ///< what the host was told
    Look publishedLook_;
    RowPixmaps rowPixmaps_;
    PacedUpdate paced_;
    PacedUpdate pacedToolTips_;
    bool hasToolTip_ = true;
    bool hasTitle_ = true;
    QTimer titleTimer_;
    std::optional<QRect> clickRect_;
    std::chrono::milliseconds lookInterval_;
    QElapsedTimer sinceConfigured_;
    std::optional<QColor> configured_; ///< the panel's colour as its configuration last had it
};

} // namespace vantrix
