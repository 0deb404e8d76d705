#include "settings/controls/segmented_control.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QPainter>

#include "settings/controls/choice_button.h"
#include "settings/controls/drawing.h"
#include "views/focus_ring.h"
#include "views/shapes.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double segmentHeight = 24.0;
constexpr double sidePadding = 11.0;
constexpr double inset = 2.0;
constexpr double radius = 7.0;

class Segment : public ChoiceButton {
  public:
    Segment(const Theme& theme, const QString& text) : ChoiceButton(theme, text) {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override {
        // In the heavier weight of the chosen one, or the row would move with the choice.
        const double text = QFontMetricsF(theme().font(bodyPoints, QFont::Medium)).horizontalAdvance(this->text());
        return QSizeF(std::ceil(text + theme().scaled(2.0 * sidePadding)), theme().scaled(segmentHeight)).toSize() +
               QSize(0, 2 * focusMargin);
    }
    QSize minimumSizeHint() const override {
        return {static_cast<int>(theme().scaled(3.0 * sidePadding)), sizeHint().height()};
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const ThemeColors& colors = theme().colors();
        const double margin = focusMargin + inset;
        const QRectF ground = QRectF(rect()).adjusted(inset, margin, -inset, -margin);
        const double corner = theme().scaled(radius) - inset;
        if (isChecked()) {
            painter.setPen(QPen(colors.separator, 0.5));
            painter.setBrush(theme().isDark() ? withAlpha(colors.label, 0.22) : colors.control);
            painter.drawRoundedRect(ground, corner, corner);
            paintOutline(painter, *this, theme(), ground, corner);
        } else if (underMouse()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(withAlpha(colors.label, 0.05));
            painter.drawRoundedRect(ground, corner, corner);
        }
        ring().paint(painter, ground, corner);
        const QFont::Weight weight = isChecked() ? QFont::Medium : QFont::Normal;
        painter.setFont(fittingFont(theme(), text(), weight, ground.width() - 4.0));
        painter.setPen(textColor(*this, theme()));
        painter.drawText(ground, Qt::AlignCenter | Qt::TextSingleLine, text());
    }
};

} // namespace

SegmentedControl::SegmentedControl(const Theme& theme, const QString& name, const QStringList& choices) : View(theme) {
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(focusMargin, 0, focusMargin, 0);
    row->setSpacing(0);
    for (const QString& choice : choices) {
        auto* segment = new Segment(theme, choice);
        const int index = static_cast<int>(segments_.size());
        connect(segment, &QRadioButton::clicked, this, [this, index] { Q_EMIT chosen(index); });
        row->addWidget(segment);
        segments_.push_back(segment);
    }
}

int SegmentedControl::current() const {
    const auto checked =
        std::find_if(segments_.begin(), segments_.end(), [](const QRadioButton* s) { return s->isChecked(); });
    return checked == segments_.end() ? -1 : static_cast<int>(checked - segments_.begin());
}

void SegmentedControl::setCurrent(int index) {
    segments_[static_cast<std::size_t>(index)]->setChecked(true);
}

void SegmentedControl::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme().colors().quaternary);
    const double corner = theme().scaled(radius);
    painter.drawRoundedRect(insideRing(*this), corner, corner);
    paintOutline(painter, *this, theme(), insideRing(*this), corner);
}

} // namespace vantrix
