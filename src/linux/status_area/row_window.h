#pragma once

#include <functional>

#include <QWidget>

#include "platform/status_item.h"

namespace vantrix {

/// A window that is the status item: one button to assistive programs, named after what the row says.
class RowWindow : public QWidget {
    Q_OBJECT
  public:
    RowWindow(Qt::WindowFlags flags, std::function<void(const StatusClick&)> clicked);

    void click(const StatusClick& click) { clicked_(click); }

  protected:
    /// What the row says, also as a tool tip.
    void tell(const QString& text);

  private:
    std::function<void(const StatusClick&)> clicked_;
};

} // namespace vantrix
