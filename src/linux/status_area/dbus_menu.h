#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QDBusConnection>
#include <QDBusVirtualObject>

#include "linux/status_area/menu_types.h"
#include "platform/status_item.h"

namespace vantrix {

/// The status item's menu for hosts that draw menus themselves: com.canonical.dbusmenu, version 3.
class DBusMenu : public QDBusVirtualObject {
    Q_OBJECT
  public:
    struct Source {
        std::function<std::vector<StatusMenuEntry>()> entries;
        std::function<void()> willOpen;
        /// The host makes the toolkit's key sequences of the names of keys, which are GTK's for others.
        bool hasQtKeys = false;
    };

    DBusMenu(const QDBusConnection& bus, QString path, Source source);
    ~DBusMenu() override;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

  private:
    QDBusMessage answerMenu(const QDBusMessage& message);
    QDBusMessage answerProperties(const QDBusMessage& message) const;
    QDBusMessage layout(const QDBusMessage& message);
    QDBusMessage groupProperties(const QDBusMessage& message);
    QDBusMessage property(const QDBusMessage& message);
    QDBusMessage event(const QDBusMessage& message);
    QDBusMessage eventGroup(const QDBusMessage& message);
    QDBusMessage aboutToShow(const QDBusMessage& message);
    QDBusMessage aboutToShowGroup(const QDBusMessage& message);

    bool refresh();
    bool has(int id) const;
    bool handleEvent(int id, const QString& kind);
    QVariantMap propertiesOf(int id, const QStringList& wanted) const;

    QDBusConnection bus_;
    QString path_;
    Source source_;
    std::vector<StatusMenuEntry> entries_; ///< entry i has the identifier i + 1; 0 is the root
    uint revision_ = 0;
};

} // namespace vantrix
