#include "settings/module_row.h"

#include <cmath>

#include <QApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>

#include "menubar/preferences.h"
#include "settings/bindings.h"
#include "settings/controls/check_box.h"
#include "settings/controls/drawing.h"
#include "settings/form_row.h"
#include "settings/settings_texts.h"
#include "support/user_defaults.h"
#include "views/focus_ring.h"
#include "views/shapes.h"
#include "views/symbol_button.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double chevronSize = 11.0;

constexpr int handleRoom = 20;
constexpr double handleDot = 2.0;
constexpr double handleStep = 4.0;

QString titleOf(MenuBarModule module) {
    return localizedText(choiceOf(menuBarModules, module).title);
}

} // namespace

ModuleRow::ModuleRow(const Theme& theme, UserDefaults& defaults, MenuBarModule module) : View(theme), module_(module) {
    const auto& choice = choiceOf(menuBarModules, module);
    const QString title = titleOf(module);
    shown_ = new CheckBox(theme, choice.symbolName, title);
    up_ = new SymbolButton(theme, "chevron.up", chevronSize, localizedText("Move %@ up", title));
    down_ = new SymbolButton(theme, "chevron.down", chevronSize, localizedText("Move %@ down", title));
    bindMember(*shown_, defaults, preference_key::menuBarEnabled, choice.rawValue);

    setAttribute(Qt::WA_Hover);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(FormRow::sidePadding - focusMargin, 0, FormRow::sidePadding - focusMargin, 0);
    row->setSpacing(0);
    row->addSpacing(handleRoom);
    row->addWidget(shown_, 1);
    row->addWidget(up_);
    row->addWidget(down_);

    connect(up_, &QAbstractButton::clicked, this, [this] { Q_EMIT moveRequested(-1); });
    connect(down_, &QAbstractButton::clicked, this, [this] { Q_EMIT moveRequested(1); });
    for (QWidget* control : controls())
        control->installEventFilter(this);
}

std::vector<QWidget*> ModuleRow::controls() const {
    return {shown_, up_, down_};
}

void ModuleRow::setMovable(bool up, bool down) {
    SymbolButton* const stuck = !up && up_->hasFocus() ? up_ : !down && down_->hasFocus() ? down_ : nullptr;
    up_->setEnabled(up || stuck == up_);
    down_->setEnabled(down || stuck == down_);
    if (!stuck)
        return;
    (stuck == up_ ? down_ : up_)->setFocus(Qt::TabFocusReason);
    stuck->setEnabled(false);
}

void ModuleRow::setLifted(bool lifted) {
    if (lifted == lifted_)
        return;
    lifted_ = lifted;
    if (lifted)
        raise();
    update();
}

bool ModuleRow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool arrow = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down;
        if (arrow && key->modifiers().testFlag(Qt::AltModifier)) {
            Q_EMIT moveRequested(key->key() == Qt::Key_Up ? -1 : 1);
            return true;
        }
    }
    return watched == shown_ && filterCheckBox(event);
}

bool ModuleRow::filterCheckBox(QEvent* event) {
    // The check box fills most of the row: what begins as a click on it may become a drag.
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        hold(*static_cast<QMouseEvent*>(event));
        return false;
    case QEvent::MouseMove:
        return drag(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
        return drop(true);
    default:
        return false;
    }
}

void ModuleRow::hold(const QMouseEvent& event) {
    if (event.button() == Qt::LeftButton)
        held_ = event.globalPosition();
}

bool ModuleRow::drag(const QMouseEvent& event) {
    if (!event.buttons().testFlag(Qt::LeftButton))
        drop(false); // the release went elsewhere
    if (!held_)
        return false;
    const int from = static_cast<int>(std::lround(held_->y()));
    const int to = static_cast<int>(std::lround(event.globalPosition().y()));
    if (!lifted_ && std::abs(to - from) < QApplication::startDragDistance())
        return false;
    shown_->setDown(false);
    setLifted(true);
    Q_EMIT dragged(from, to);
    return true;
}

bool ModuleRow::drop(bool counts) {
    held_.reset();
    if (!lifted_)
        return false;
    setLifted(false);
    shown_->setDown(false);
    Q_EMIT dropped(counts);
    return true;
}

void ModuleRow::mousePressEvent(QMouseEvent* event) {
    hold(*event);
}

void ModuleRow::mouseMoveEvent(QMouseEvent* event) {
    drag(*event);
}

void ModuleRow::mouseReleaseEvent(QMouseEvent*) {
    drop(true);
}

void ModuleRow::hideEvent(QHideEvent*) {
    drop(false); // the window went away under the pointer
}

void ModuleRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ThemeColors& colors = theme().colors();
    if (lifted_) {
        painter.setPen(QPen(withAlpha(colors.label, 0.25), 1.0));
        painter.setBrush(over(colors.control, over(colors.card, colors.window)));
        painter.drawRoundedRect(QRectF(rect()).adjusted(4.5, 0.5, -4.5, -0.5), 8.0, 8.0);
    }
    painter.setPen(Qt::NoPen);
    const QColor handle = withAlpha(colors.label, underMouse() || lifted_ ? 0.5 : 0.28);
    painter.setBrush(colors.areHighContrast() ? colors.outline : handle);
    const double top = height() / 2.0 - handleStep - handleDot / 2.0;
    for (int line = 0; line < 3; ++line)
        for (int column = 0; column < 2; ++column)
            painter.drawEllipse(mirrored(
                *this, {FormRow::sidePadding + column * handleStep, top + line * handleStep, handleDot, handleDot}));
}

} // namespace vantrix
