#pragma once

#include <functional>
#include <optional>

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QPoint>
#include <QVariantMap>

#include "linux/status_area/notifier_types.h"
#include "platform/status_item.h"

namespace vantrix {

/// What one item offers its host.
struct NotifierContent {
    NotifierPixmaps icon;
    QString title;
    QString toolTip;
    /// A text that some hosts show beside the icon, and the widest it gets. The properties exist only where this is
    /// set, because other hosts hide the icon when there is a label, even an empty one.
    std::optional<QString> label;
    QString labelGuide;

    bool operator==(const NotifierContent&) const = default;
};

/// One org.kde.StatusNotifierItem on the bus. A virtual object, because which properties exist depends on the host;
/// answers come from values made ready when the content changed.
class NotifierObject : public QDBusVirtualObject {
    Q_OBJECT
  public:
    using Clicked = std::function<void(const StatusClick&, QPoint)>;

    NotifierObject(const QDBusConnection& bus, QString path, QString id, const QString& menuPath, Clicked clicked);
    ~NotifierObject() override;

    /// Replaces the content without a signal.
    void set(const NotifierContent& content);

    /// Emits a signal of the item's interface.
    void announce(const QString& signal, const QVariantList& arguments = {});

    const NotifierContent& content() const { return content_; }
    const QString& path() const { return path_; }

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

  Q_SIGNALS:
    /// A host, of that name on the bus, has asked for the properties.
    void asked(const QString& reader);

  private:
    QDBusMessage answerProperties(const QDBusMessage& message) const;
    QDBusMessage answerItem(const QDBusMessage& message);

    QDBusConnection bus_;
    QString path_;
    Clicked clicked_;
    NotifierContent content_;
    QVariantMap properties_;
};

} // namespace vantrix
