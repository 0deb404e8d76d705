#include "popover/charts/metric_card.h"

#include <QHBoxLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "views/shapes.h"
#include "views/symbol_view.h"
#include "views/text_label.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int padding = 12;
constexpr int contentSpacing = 10;
constexpr int headerSpacing = 6;
constexpr double cardRadius = 12.0;
constexpr double borderWidth = 0.5;
constexpr double titleSize = 12.0;
constexpr int controlRoom = 5;   // around a control's symbol, which lines up with the content's edge
constexpr int cornerExtent = 17; // beyond it the edges are straight

} // namespace

MetricCard::MetricCard(const Theme& theme, const QString& title, std::string_view symbol)
    : View(theme), symbol_(new SymbolView(theme, symbol, titleSize, &ThemeColors::secondary)),
      title_(new TextLabel(theme, {titleSize, QFont::DemiBold}, title)),
      subtitle_(new TextLabel(theme, {11.0, QFont::Normal, &ThemeColors::secondary})), header_(new QHBoxLayout),
      content_(new QVBoxLayout) {
    header_->setSpacing(headerSpacing);
    header_->addWidget(symbol_);
    header_->addWidget(title_);
    header_->addWidget(subtitle_);
    header_->addStretch(1);
    subtitle_->hide();

    content_->setContentsMargins(padding, padding, padding, padding);
    content_->setSpacing(contentSpacing);
    content_->addLayout(header_);
    setLayout(content_);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void MetricCard::setSymbol(std::string_view symbol) {
    symbol_->setSymbol(symbol);
}

void MetricCard::addToHeader(QWidget& control) {
    control.setParent(this);
    control_ = &control;
}

bool MetricCard::event(QEvent* event) {
    const bool isHandled = View::event(event);
    const bool isLaidOut = event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
    if (control_ != nullptr && isLaidOut) { // by the layout, which is told of it first
        QRect place({}, control_->sizeHint());
        place.moveCenter(header_->geometry().center());
        place.moveRight(rect().right() - padding + controlRoom);
        control_->setGeometry(mirrored(*this, place).toRect());
    }
    return isHandled;
}

void MetricCard::setSubtitle(const QString& subtitle) {
    subtitle_->setText(subtitle);
    subtitle_->setVisible(!subtitle.isEmpty());
}

QString MetricCard::accessibleText() const {
    return subtitle_->text().isEmpty() ? title_->text() : title_->text() + QStringLiteral(", ") + subtitle_->text();
}

void MetricCard::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QColor ground = theme().colors().card;
    // A reading that changed inside the card repaints no edge of it.
    if (rect().adjusted(cornerExtent, 1, -cornerExtent, -1).contains(event->rect()) ||
        rect().adjusted(1, cornerExtent, -1, -cornerExtent).contains(event->rect()))
        return painter.fillRect(event->rect(), ground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(continuousRect(rect(), cardRadius), ground);
    const ThemeColors& colors = theme().colors();
    painter.setPen(QPen(colors.areHighContrast() ? colors.outline : ground, borderWidth));
    const double inset = borderWidth / 2.0;
    painter.drawPath(continuousRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), cardRadius - inset));
}

} // namespace vantrix
