#pragma once

#include <QComboBox>

namespace vantrix {

class FocusRing;
class Theme;

/// Chooses one of a few entries from a list that opens over the field.
class Picker : public QComboBox {
    Q_OBJECT
  public:
    Picker(const Theme& theme, const QString& name);

    /// As if the user had picked that entry; does nothing where there is none.
    void pick(int index);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    void showPopup() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    const Theme& theme_;
    FocusRing& ring_;
};

} // namespace vantrix
