#include "settings/controls/picker.h"

#include <algorithm>
#include <cmath>

#include <QAbstractItemView>
#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include "menubar/symbol.h"
#include "settings/controls/control_accessibility.h"
#include "settings/controls/drawing.h"
#include "views/focus_ring.h"
#include "views/shapes.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double fieldHeight = 24.0;
constexpr double sidePadding = 10.0;
constexpr double chevron = 12.0;
constexpr int leastWidth = 160;
constexpr double markRoom = 26.0;
constexpr double entryHeight = 26.0;

/// Draws an entry of the opened list: a tick before the present one, the accent colour behind the highlighted one.
class EntryDelegate : public QStyledItemDelegate {
  public:
    EntryDelegate(Picker& picker, const Theme& theme) : QStyledItemDelegate(&picker), picker_(picker), theme_(theme) {}

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override {
        const QString text = index.data().toString();
        const double width = QFontMetricsF(theme_.font(bodyPoints)).horizontalAdvance(text);
        return QSizeF(std::ceil(width + theme_.scaled(markRoom + sidePadding)), theme_.scaled(entryHeight)).toSize();
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const bool chosen = option.state.testFlag(QStyle::State_Selected);
        const ThemeColors& colors = theme_.colors();
        const QColor color = chosen ? ThemeColors::textOn(colors.accent) : colors.label;
        const QRectF row = option.rect;
        if (chosen) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(colors.accent);
            painter->drawRoundedRect(row.adjusted(3, 1, -3, -1), 5, 5);
        }
        const bool rightToLeft = option.direction == Qt::RightToLeft;
        const double room = theme_.scaled(markRoom);
        QRectF mark(0, 0, theme_.scaled(chevron), theme_.scaled(chevron));
        mark.moveCenter({rightToLeft ? row.right() - room / 2.0 : row.left() + room / 2.0, row.center().y()});
        if (index.row() == picker_.currentIndex())
            paintSymbol(*painter, "checkmark", mark, color);
        painter->setFont(theme_.font(bodyPoints));
        painter->setPen(color);
        const auto side = QStyle::visualAlignment(option.direction, Qt::AlignLeft);
        painter->drawText(row.adjusted(rightToLeft ? 0 : room, 0, rightToLeft ? -room : 0, 0),
                          static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine, index.data().toString());
        painter->restore();
    }

  private:
    Picker& picker_;
    const Theme& theme_;
};

} // namespace

Picker::Picker(const Theme& theme, const QString& name) : theme_(theme), ring_(*new FocusRing(*this, theme)) {
    installControlAccessibility();
    setAccessibleName(name);
    setAttribute(Qt::WA_Hover);
    setItemDelegate(new EntryDelegate(*this, theme));
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize Picker::sizeHint() const {
    const QFontMetricsF metrics(theme_.font(bodyPoints));
    double text = 0.0;
    for (int i = 0; i < count(); ++i)
        text = std::max(text, metrics.horizontalAdvance(itemText(i)));
    const double width = text + theme_.scaled(2.5 * sidePadding + chevron);
    return withRing(QSizeF(std::ceil(width), theme_.scaled(fieldHeight)).toSize());
}

QSize Picker::minimumSizeHint() const {
    return {std::min(sizeHint().width(), leastWidth), sizeHint().height()};
}

void Picker::pick(int index) {
    if (index < 0 || index >= count() || index == currentIndex())
        return;
    setCurrentIndex(index);
    Q_EMIT activated(index);
}

void Picker::showPopup() {
    if (willOpen)
        willOpen();
    for (QWidget* widget : {static_cast<QWidget*>(view()), view()->parentWidget()})
        widget->setPalette(theme_.palette());
    view()->setFrameShape(QFrame::NoFrame);
    const int widest = view()->sizeHintForColumn(0);
    view()->setMinimumWidth(std::max(widest, width() - 2 * focusMargin));
    QComboBox::showPopup();
}

void Picker::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ground = insideRing(*this);
    paintButtonGround(painter, *this, theme_, ground, false);
    ring_.paint(painter, ground, theme_.scaled(6.0));

    const double padding = theme_.scaled(sidePadding);
    const double side = theme_.scaled(chevron);
    QRectF mark(ground.right() - padding * 0.8 - side, 0.0, side, side);
    mark.moveCenter({mark.center().x(), ground.center().y()});
    paintSymbol(painter, "chevron.down", mirrored(*this, mark),
                isEnabled() ? theme_.colors().secondary : theme_.colors().disabled);
    painter.setPen(textColor(*this, theme_));
    const QRectF room(ground.left() + padding, ground.top(), mark.left() - ground.left() - padding, ground.height());
    painter.setFont(fittingFont(theme_, currentText(), QFont::Normal, room.width()));
    const auto alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter;
    painter.drawText(mirrored(*this, room), static_cast<int>(alignment) | Qt::TextSingleLine, currentText());
}

void Picker::wheelEvent(QWheelEvent* event) {
    event->ignore(); // scrolling the page must not change what lies under the pointer
}

} // namespace vantrix
