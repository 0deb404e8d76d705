#pragma once

#include "views/text_label.h"

namespace vantrix {

/// One row of a form: an optional mark and the setting's name on the leading side, its control on the trailing one.
/// Where the two do not fit side by side the control takes a line of its own. Every text is shown whole.
class FormRow : public View {
    Q_OBJECT
  public:
    struct Content {
        QString caption;
        QWidget* control = nullptr; ///< becomes the row's child; sizeHint() counts
        QWidget* mark = nullptr;    ///< becomes the row's child; optional
        ColorRole color = &ThemeColors::label;
    };

    static constexpr int sidePadding = 14; ///< points

    FormRow(const Theme& theme, const Content& content);

    TextLabel& caption() const { return *caption_; }
    QWidget& control() const { return *control_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    struct Plan {
        QRect mark;
        QRect caption;
        QRect control;
        int height = 0;
    };
    Plan plan(int width) const;
    void place();

    TextLabel* caption_;
    QWidget* control_;
    QWidget* mark_;
};

} // namespace vantrix
