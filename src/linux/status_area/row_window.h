#pragma once

#include <QWidget>

#include "platform/status_item.h"

namespace vantrix {

/// A window that is the status item: one button to assistive programs, named after what the row says. Its tool tip, put
/// together when it is asked for, tells the rest.
class RowWindow : public QWidget {
    Q_OBJECT
  public:
    RowWindow(Qt::WindowFlags flags, const StatusItem::Handlers& handlers);

    void click(const StatusClick& click) { handlers_.clicked(click); }

  protected:
    bool event(QEvent* event) override;
    /// What the row says.
    void tell(const QString& text);

  private:
    StatusItem::Handlers handlers_;
};

} // namespace vantrix
