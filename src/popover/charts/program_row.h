#pragma once

#include <string>

#include <QIcon>

#include "views/view.h"

namespace vantrix {

/// One program: its icon, its name, what it takes of something, in words and as a thin bar. Empty until it is told of
/// one, but as tall.
class ProgramRow : public View {
    Q_OBJECT
  public:
    explicit ProgramRow(const Theme& theme);

    /// `icon` as in `ProgramShare`. A name that does not fit ends in an ellipsis and is shown whole in the tool tip.
    void show(const std::string& name, const std::string& icon, const QString& value, double fraction);
    void clear() { show({}, {}, {}, 0.0); }

    QAccessible::Role accessibleRole() const override;
    QString accessibleText() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {60, sizeHint().height()}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    double iconSide() const;
    QRectF nameRoom() const;
    void setIcon(const std::string& icon);
    void updateToolTip();

    QString name_;
    QString value_;
    double fraction_ = 0.0;
    std::string iconName_;
    QIcon icon_; // null: none is known
};

} // namespace vantrix
