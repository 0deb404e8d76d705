#pragma once

#include <vector>

#include <QStringList>

#include "views/view.h"

class QRadioButton;

namespace vantrix {

/// A row of exclusive choices. Its segments are radio buttons: the arrow keys move among them.
class SegmentedControl : public View {
    Q_OBJECT
  public:
    SegmentedControl(const Theme& theme, const QString& name, const QStringList& choices);

    int current() const;
    /// Shows that choice, without announcing it.
    void setCurrent(int index);

  Q_SIGNALS:
    /// By the user.
    void chosen(int index);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::vector<QRadioButton*> segments_;
};

} // namespace vantrix
