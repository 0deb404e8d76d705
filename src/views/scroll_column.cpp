#include "views/scroll_column.h"

#include <algorithm>

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int indicatorWidth = 10;
constexpr double thickness = 5.0;
constexpr double gap = 2.0; // to the edges
constexpr double leastLength = 28.0;

} // namespace

/// Shows the position of a hidden scroll bar, and lets it be dragged.
class ScrollIndicator final : public QWidget {
  public:
    ScrollIndicator(const Theme& theme, QScrollBar& bar, QWidget* parent) : QWidget(parent), theme_(theme), bar_(bar) {
        connect(&bar, &QScrollBar::valueChanged, this, qOverload<>(&QWidget::update));
        connect(&bar, &QScrollBar::rangeChanged, this, [this] {
            setVisible(bar_.maximum() > bar_.minimum());
            update();
        });
        connect(&theme, &Theme::changed, this, qOverload<>(&QWidget::update));
        setVisible(false);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        const ThemeColors& colors = theme_.colors();
        painter.setBrush(colors.areHighContrast() ? colors.outline : withAlpha(colors.label, grabbedAt_ ? 0.5 : 0.28));
        painter.drawRoundedRect(thumb(), thickness / 2.0, thickness / 2.0);
    }

    void mousePressEvent(QMouseEvent* event) override {
        const QRectF place = thumb();
        const double y = event->position().y();
        if (!place.adjusted(-width(), 0, width(), 0).contains(event->position())) {
            bar_.triggerAction(y < place.top() ? QScrollBar::SliderPageStepSub : QScrollBar::SliderPageStepAdd);
            return;
        }
        grabbedAt_ = y - place.top();
        update();
    }

    void mouseMoveEvent(QMouseEvent* event) override {
        const double room = height() - 2.0 * gap - thumb().height();
        if (!grabbedAt_ || room <= 0.0)
            return;
        const double share = (event->position().y() - *grabbedAt_ - gap) / room;
        bar_.setValue(bar_.minimum() + static_cast<int>(share * (bar_.maximum() - bar_.minimum())));
    }

    void mouseReleaseEvent(QMouseEvent*) override {
        grabbedAt_.reset();
        update();
    }

  private:
    QRectF thumb() const {
        const double room = height() - 2.0 * gap;
        const double range = bar_.maximum() - bar_.minimum();
        const double length =
            std::clamp(room * bar_.pageStep() / (range + bar_.pageStep()), std::min(leastLength, room), room);
        const double start = range > 0.0 ? (room - length) * (bar_.value() - bar_.minimum()) / range : 0.0;
        const bool mirrored = layoutDirection() == Qt::RightToLeft;
        return {mirrored ? gap : width() - gap - thickness, gap + start, thickness, length};
    }

    const Theme& theme_;
    QScrollBar& bar_;
    std::optional<double> grabbedAt_; ///< distance from the thumb's upper edge
};

ScrollColumn::ScrollColumn(const Theme& theme, QWidget* column) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus); // it follows the focus of what it holds
    setWidget(column);
    // The window paints the background.
    viewport()->setAutoFillBackground(false);
    column->setAutoFillBackground(false);
    indicator_ = new ScrollIndicator(theme, *verticalScrollBar(), this);
}

void ScrollColumn::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    place();
}

void ScrollColumn::place() {
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    indicator_->setGeometry(mirrored ? 0 : width() - indicatorWidth, 0, indicatorWidth, height());
    indicator_->raise();
}

} // namespace vantrix
