#pragma once

#include <string>

#include <QCheckBox>

namespace vantrix {

class FocusRing;
class Theme;

/// A box to tick, with a symbol and a text that takes as many lines as it needs.
class CheckBox : public QCheckBox {
    Q_OBJECT
  public:
    CheckBox(const Theme& theme, std::string_view symbol, const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

  private:
    double textStart() const;
    void paintBox(QPainter& painter, const QRectF& box) const;

    const Theme& theme_;
    FocusRing& ring_;
    std::string symbol_;
};

} // namespace vantrix
