#pragma once

#include <functional>

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

    /// Called before the list opens; may change the entries.
    std::function<void()> willOpen;

    QSize sizeHint() const override;
    /// In less room than it wants its text is set smaller.
    QSize minimumSizeHint() const override;
    void showPopup() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    const Theme& theme_;
    FocusRing& ring_;
};

} // namespace vantrix
