#include "views/disclosure_button.h"

#include <cmath>

#include <QAccessibleWidget>
#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>

#include "menubar/symbol.h"
#include "views/focus_ring.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double textSize = 11.0;
constexpr double symbolSize = 12.0;
constexpr double cornerRadius = 4.0;
constexpr int padding = 2; // around a chevron alone

/// The toolkit takes every button that can be checked for a check box.
class DisclosureInterface final : public QAccessibleWidget {
  public:
    explicit DisclosureInterface(DisclosureButton* button) : QAccessibleWidget(button, QAccessible::Button) {}

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name || button().text().isEmpty())
            return QAccessibleWidget::text(kind);
        return button().text();
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = button().isChecked();
        state.collapsed = !button().isChecked();
        return state;
    }

    QStringList actionNames() const override { return QStringList{pressAction()} + QAccessibleWidget::actionNames(); }

    void doAction(const QString& name) override {
        if (name == pressAction())
            button().click();
        else
            QAccessibleWidget::doAction(name);
    }

  private:
    DisclosureButton& button() const { return *static_cast<DisclosureButton*>(widget()); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* button = qobject_cast<DisclosureButton*>(object);
    return button ? new DisclosureInterface(button) : nullptr;
}

} // namespace

DisclosureButton::DisclosureButton(const Theme& theme) : Button(theme) {
    static const bool installed = (QAccessible::installFactory(makeInterface), true);
    Q_UNUSED(installed);
    setCheckable(true);
    connect(this, &QAbstractButton::toggled, this, [this] {
        QAccessible::State changed;
        changed.expanded = true;
        changed.collapsed = true;
        QAccessibleStateChangeEvent event(this, changed);
        QAccessible::updateAccessibility(&event);
    });
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

DisclosureButton::DisclosureButton(const Theme& theme, const QString& name) : DisclosureButton(theme) {
    isAlone_ = true;
    setAccessibleName(name);
    setToolTip(name);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

int DisclosureButton::symbolSide() const {
    return static_cast<int>(std::lround(theme().scaled(symbolSize)));
}

QSize DisclosureButton::sizeHint() const {
    if (isAlone_)
        return withRing({symbolSide() + 2 * padding, symbolSide() + 2 * padding});
    const QFontMetricsF metrics(theme().font(textSize));
    const double width = metrics.horizontalAdvance(text()) + theme().scaled(symbolSize) + 2.0 * focusMargin;
    return QSizeF(std::ceil(width), std::ceil(metrics.height()) + 2.0 * focusMargin).toSize();
}

QSize DisclosureButton::minimumSizeHint() const {
    if (isAlone_)
        return sizeHint();
    return {static_cast<int>(theme().scaled(60.0)), sizeHint().height()};
}

void DisclosureButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    ring().paint(painter, insideRing(*this), cornerRadius);
    const int side = symbolSide();
    if (isAlone_ && (isDown() || underMouse())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? theme().colors().control : theme().colors().card);
        painter.drawRoundedRect(insideRing(*this), cornerRadius, cornerRadius);
    }
    const QRect mark(isAlone_ ? (width() - side) / 2 : width() - side, (height() - side) / 2, side, side);
    paintSymbol(painter, isChecked() ? "chevron.up" : "chevron.down",
                QStyle::visualRect(layoutDirection(), rect(), mark), theme().colors().secondary);
    painter.setFont(theme().font(textSize));
    painter.setPen(theme().colors().secondary);
    const QRect room = QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(0, 0, -side, 0));
    const auto alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    painter.drawText(room, static_cast<int>(alignment) | Qt::TextSingleLine, text());
}

} // namespace vantrix
