#include "settings/module_list.h"

#include <algorithm>
#include <cmath>

#include <QEvent>
#include <QPainter>
#include <QScrollArea>

#include "menubar/preferences.h"
#include "settings/bindings.h"
#include "settings/form_row.h"
#include "settings/module_row.h"
#include "support/user_defaults.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double leastHeight = 27.0;

void scrollTo(QWidget* row) {
    for (QWidget* parent = row->parentWidget(); parent; parent = parent->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(parent))
            return area->ensureWidgetVisible(row, 0, 8);
}

} // namespace

ModuleList::ModuleList(const Theme& theme, UserDefaults& defaults) : View(theme), defaults_(defaults) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    for (const MenuBarModule module : moduleOrder(defaults)) {
        auto* row = new ModuleRow(theme, defaults, module);
        row->setParent(this);
        connect(row, &ModuleRow::moveRequested, this, [this, row](int by) { move(row, by); });
        connect(row, &ModuleRow::dragged, this, [this, row](int from, int to) { drag(row, from, to); });
        connect(row, &ModuleRow::dropped, this, &ModuleList::drop);
        rows_.push_back(row);
    }
    follow(*this, defaults, [this] { showStoredOrder(); });
}

void ModuleList::showStoredOrder() {
    if (dragged_)
        return; // the drop decides
    const auto order = moduleOrder(defaults_);
    const auto place = [&order](const ModuleRow* row) { return std::find(order.begin(), order.end(), row->module()); };
    std::sort(rows_.begin(), rows_.end(),
              [&place](const ModuleRow* a, const ModuleRow* b) { return place(a) < place(b); });
    QWidget* before = nullptr;
    for (ModuleRow* row : rows_) {
        row->setMovable(row != rows_.front(), row != rows_.back());
        row->raise(); // assistive programs read the rows in this order, too
        for (QWidget* control : row->controls()) {
            if (before)
                setTabOrder(before, control);
            before = control;
        }
    }
    placeRows();
}

std::size_t ModuleList::indexOf(const ModuleRow* row) const {
    return static_cast<std::size_t>(std::find(rows_.begin(), rows_.end(), row) - rows_.begin());
}

void ModuleList::move(ModuleRow* row, int by) {
    const std::size_t index = indexOf(row);
    const bool possible = by < 0 ? index > 0 : index + 1 < rows_.size();
    if (!possible || dragged_)
        return;
    std::swap(rows_[index], rows_[by < 0 ? index - 1 : index + 1]);
    store();
    scrollTo(row);
}

void ModuleList::store() {
    std::vector<MenuBarModule> order;
    for (const ModuleRow* row : rows_)
        order.push_back(row->module());
    defaults_.set(preference_key::menuBarOrder, orderText(order));
}

void ModuleList::drag(ModuleRow* row, int from, int to) {
    if (dragged_ != row) {
        dragged_ = row;
        grip_ = mapFromGlobal(QPoint(0, from)).y() - row->y();
    }
    const int top = std::clamp(mapFromGlobal(QPoint(0, to)).y() - grip_, 0, height() - row->height());
    const std::size_t place = placeFor(row, top);
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(indexOf(row)));
    rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(place), row);
    placeRows();
    row->move(0, top);
    scrollTo(row);
}

std::size_t ModuleList::placeFor(const ModuleRow* row, int top) const {
    const auto slots = slotsFor(width());
    const std::size_t from = indexOf(row);
    std::size_t to = from;
    // A row makes way once the dragged one covers half of it.
    while (to > 0 && top < slots[to - 1].top + slots[to - 1].height / 2)
        --to;
    while (to >= from && to + 1 < rows_.size() && top + row->height() > slots[to + 1].top + slots[to + 1].height / 2)
        ++to;
    return to;
}

void ModuleList::drop(bool counts) {
    dragged_ = nullptr;
    if (counts)
        store();
    showStoredOrder();
}

std::vector<ModuleList::Slot> ModuleList::slotsFor(int width) const {
    std::vector<Slot> slots;
    int top = 0;
    for (const ModuleRow* row : rows_) {
        const int least = static_cast<int>(std::lround(theme().scaled(leastHeight)));
        const int height = std::max(row->heightForWidth(width), least);
        slots.push_back({top, height});
        top += height;
    }
    return slots;
}

QSize ModuleList::sizeHint() const {
    return {300, heightForWidth(300)};
}

int ModuleList::heightForWidth(int width) const {
    const Slot last = slotsFor(width).back();
    return last.top + last.height;
}

void ModuleList::placeRows() {
    const auto slots = slotsFor(width());
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const int top = rows_[i] == dragged_ ? rows_[i]->y() : slots[i].top;
        rows_[i]->setGeometry(0, top, width(), slots[i].height);
    }
    update();
}

void ModuleList::resizeEvent(QResizeEvent*) {
    placeRows();
}

bool ModuleList::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        placeRows();
    }
    return View::event(event);
}

void ModuleList::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto slots = slotsFor(width());
    for (std::size_t i = 1; i < slots.size(); ++i)
        painter.fillRect(QRect(FormRow::sidePadding, slots[i].top, width() - 2 * FormRow::sidePadding, 1),
                         theme().colors().separator);
}

} // namespace vantrix
