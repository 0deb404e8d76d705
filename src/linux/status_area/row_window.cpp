#include "linux/status_area/row_window.h"

#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QToolTip>

namespace vantrix {
namespace {

class RowInterface final : public QAccessibleWidget {
  public:
    explicit RowInterface(RowWindow* row) : QAccessibleWidget(row, QAccessible::Button) {}

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction())
            static_cast<RowWindow*>(widget())->click({});
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* row = qobject_cast<RowWindow*>(object);
    return row != nullptr ? new RowInterface(row) : nullptr;
}

} // namespace

RowWindow::RowWindow(Qt::WindowFlags flags, const StatusItem::Handlers& handlers)
    : QWidget(nullptr, flags), handlers_(handlers) {
    QAccessible::installFactory(makeInterface); // once only, however often it is called
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setAttribute(Qt::WA_QuitOnClose, false);
}

void RowWindow::tell(const QString& text) {
    if (accessibleName() != text)
        setAccessibleName(text);
}

bool RowWindow::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const QString details = handlers_.details({});
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), details.isEmpty() ? accessibleName() : details,
                       this);
    return true;
}

} // namespace vantrix
