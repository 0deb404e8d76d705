#include "app/accessible_application.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QApplication>
#include <QWidget>

namespace vantrix {
namespace {

class ApplicationInterface final : public QAccessibleObject {
  public:
    ApplicationInterface() : QAccessibleObject(qApp) {}

    QAccessible::Role role() const override { return QAccessible::Application; }
    QAccessible::State state() const override { return {}; }
    QAccessibleInterface* parent() const override { return nullptr; }
    int childCount() const override { return static_cast<int>(windows().size()); }
    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(windows().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(windows().indexOf(qobject_cast<QWidget*>(child->object())));
    }
    QAccessibleInterface* focusChild() const override {
        QWidget* popup = QApplication::activePopupWidget();
        return QAccessible::queryAccessibleInterface(popup != nullptr ? popup : QApplication::activeWindow());
    }
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return QApplication::applicationName();
        return kind == QAccessible::Description ? QApplication::applicationFilePath() : QString();
    }

  private:
    static QWidgetList windows() {
        QWidgetList visible;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && !window->inherits("QDesktopWidget"))
                visible.append(window);
        return visible;
    }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    const bool wanted = object != nullptr && object == qApp && className == u"QApplication";
    return wanted ? new ApplicationInterface : nullptr;
}

} // namespace

void installAccessibleApplication() {
    QAccessible::installFactory(makeInterface);
}

} // namespace vantrix
