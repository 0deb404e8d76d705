#include "linux/status_area/row_window.h"

#include <QAccessibleWidget>

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

RowWindow::RowWindow(Qt::WindowFlags flags, std::function<void(const StatusClick&)> clicked)
    : QWidget(nullptr, flags), clicked_(std::move(clicked)) {
    QAccessible::installFactory(makeInterface); // once only, however often it is called
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setAttribute(Qt::WA_QuitOnClose, false);
}

void RowWindow::tell(const QString& text) {
    if (toolTip() == text)
        return;
    setToolTip(text);
    setAccessibleName(text);
}

} // namespace vantrix
