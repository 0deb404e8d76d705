#include "popover/popover_view.h"

#include <algorithm>
#include <array>

#include <QCoreApplication>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include "menubar/preferences.h"
#include "monitor/system_monitor.h"
#include "popover/cards/accessories_card.h"
#include "popover/cards/battery_card.h"
#include "popover/cards/cpu_card.h"
#include "popover/cards/disk_card.h"
#include "popover/cards/gpu_card.h"
#include "popover/cards/memory_card.h"
#include "popover/cards/network_card.h"
#include "popover/cards/sensors_card.h"
#include "samplers/processor_description.h"
#include "support/user_defaults.h"
#include "views/divider.h"
#include "views/scroll_column.h"
#include "views/text_label.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int columnPadding = 12;
constexpr int cardGap = 10;
constexpr double emptyTextSize = 12.0;
constexpr int emptyTextPadding = 24;

/// In the order of the modules.
constexpr std::array cardOfModule{PopoverCard::cpu, PopoverCard::memory,  PopoverCard::network, PopoverCard::disk,
                                  PopoverCard::gpu, PopoverCard::sensors, PopoverCard::battery};
static_assert(cardOfModule.size() == menuBarModules.size());

struct CardKind {
    PopoverCard card;
    Card* (*make)(const CardContext&);
    bool (*applies)(const Readings&);
};

template<typename Kind>
Card* make(const CardContext& context) {
    return new Kind(context);
}

bool always(const Readings&) {
    return true;
}

/// From the top of the column. The settings only switch cards on and off.
constexpr std::array cardKinds{
    CardKind{PopoverCard::cpu, make<CPUCard>, always},
    CardKind{PopoverCard::memory, make<MemoryCard>, always},
    CardKind{PopoverCard::network, make<NetworkCard>, always},
    CardKind{PopoverCard::disk, make<DiskCard>, always},
    CardKind{PopoverCard::gpu, make<GPUCard>, [](const Readings& readings) { return readings.gpu.has_value(); }},
    CardKind{PopoverCard::sensors, make<SensorsCard>,
             [](const Readings& readings) { return readings.sensors != SensorsSample(); }},
    CardKind{PopoverCard::battery, make<BatteryCard>,
             [](const Readings& readings) { return readings.battery.has_value(); }},
    CardKind{PopoverCard::accessories, make<AccessoriesCard>,
             [](const Readings& readings) { return !readings.accessories.empty(); }},
};

} // namespace

PopoverView::PopoverView(const SystemMonitor& monitor, const CardContext& context, HeaderView::MenuEntries menuEntries)
    : View(context.theme), monitor_(monitor), context_(context) {
    setAccessibleName(QStringLiteral("Vantrix"));
    addShortcuts(menuEntries());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(new HeaderView(context.theme, context.processor.brand(), std::move(menuEntries)));
    layout->addWidget(new Divider(context.theme));
    scrolling_ = new ScrollColumn(context.theme, makeColumn());
    layout->addWidget(scrolling_, 1);
    addScrollKeys(*scrolling_->verticalScrollBar());
}

/// Cards that go while they are on the screen change what the monitor tells.
PopoverView::~PopoverView() {
    monitor_.disconnect(this);
}

QWidget* PopoverView::makeColumn() {
    auto* column = new QWidget;
    column->installEventFilter(this);
    column_ = new QVBoxLayout(column);
    column_->setContentsMargins(columnPadding, columnPadding, columnPadding, columnPadding);
    column_->setSpacing(cardGap);
    emptySelection_ = new QWidget;
    auto* padded = new QVBoxLayout(emptySelection_);
    padded->setContentsMargins(0, emptyTextPadding, 0, emptyTextPadding);
    padded->addWidget(new TextLabel(
        theme(), {.points = emptyTextSize, .color = &ThemeColors::secondary, .wraps = true, .side = Qt::AlignHCenter},
        localizedText("No cards selected. Choose what to show in Settings → Popover.")));
    column_->addWidget(emptySelection_);
    column_->addStretch(1);
    return column;
}

/// The menu's shortcuts work in the popover without the menu as well.
void PopoverView::addShortcuts(const std::vector<StatusMenuEntry>& entries) {
    for (const StatusMenuEntry& entry : entries)
        if (!entry.shortcut.isEmpty())
            connect(new QShortcut(entry.shortcut, this), &QShortcut::activated, this, entry.action);
}

/// The keys work without focus: nothing else scrolls.
void PopoverView::addScrollKeys(QScrollBar& bar) {
    using Step = QAbstractSlider;
    const std::pair<Qt::Key, QAbstractSlider::SliderAction> keys[] = {
        {Qt::Key_Up, Step::SliderSingleStepSub},   {Qt::Key_Down, Step::SliderSingleStepAdd},
        {Qt::Key_PageUp, Step::SliderPageStepSub}, {Qt::Key_PageDown, Step::SliderPageStepAdd},
        {Qt::Key_Home, Step::SliderToMinimum},     {Qt::Key_End, Step::SliderToMaximum},
    };
    for (const auto& [key, action] : keys)
        connect(new QShortcut(key, this), &QShortcut::activated, &bar,
                [&bar, action = action] { bar.triggerAction(action); });
}

std::vector<PopoverCard> PopoverView::shownCards() const {
    std::vector<PopoverCard> shown;
    for (const auto& [card, view] : cards_)
        shown.push_back(card);
    return shown;
}

void PopoverView::showCardOf(MenuBarModule module) {
    const auto found = cards_.find(cardOfModule[static_cast<std::size_t>(module)]);
    if (found == cards_.end())
        return;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // it may have just been placed
    scrolling_->verticalScrollBar()->setValue(found->second->y() - columnPadding);
}

QSize PopoverView::sizeHint() const {
    int height = std::max(column_->heightForWidth(contentWidth), column_->minimumSize().height());
    for (int i = 0; i + 1 < layout()->count(); ++i) // what stands above it
        height += layout()->itemAt(i)->sizeHint().height();
    return {contentWidth, height};
}

/// A column that scrolls tells nobody further up that its height has changed.
bool PopoverView::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest)
        QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
    return false;
}

void PopoverView::showEvent(QShowEvent*) {
    connect(&monitor_, &SystemMonitor::changed, this, &PopoverView::scheduleRefresh);
    connect(&context_.defaults, &UserDefaults::changed, this, &PopoverView::scheduleRefresh);
    refresh();
    // Cards post that their heights have changed; whoever shows the view wants to know its own before it appears.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

void PopoverView::hideEvent(QHideEvent*) {
    monitor_.disconnect(this);
    context_.defaults.disconnect(this);
}

/// The many changes of one pass make one refresh.
void PopoverView::scheduleRefresh() {
    if (isScheduled_)
        return;
    isScheduled_ = true;
    QMetaObject::invokeMethod(this, &PopoverView::refresh, Qt::QueuedConnection);
}

void PopoverView::refresh() {
    isScheduled_ = false;
    if (!isVisible())
        return;
    // Else every card that appears would lay all of them out.
    column_->setEnabled(false);
    showCards(monitor_.readings());
    column_->setEnabled(true);
}

void PopoverView::showCards(const Readings& readings) {
    const NameSet chosen = visibleCards(context_.defaults);
    emptySelection_->setVisible(chosen.empty());
    int place = 1; // below the words for an empty selection
    for (const CardKind& kind : cardKinds) {
        const bool wanted = contains(chosen, choiceOf(popoverCards, kind.card).rawValue) && kind.applies(readings);
        const auto present = cards_.find(kind.card);
        if (wanted && present != cards_.end()) {
            present->second->showReadings(readings);
        } else if (wanted) {
            Card* card = kind.make(context_);
            card->showReadings(readings); // while nothing is laid out
            column_->insertWidget(place, card);
            card->show(); // now, not when the layout gets to it
            cards_[kind.card] = card;
        } else if (present != cards_.end()) {
            column_->removeWidget(present->second); // a layout that is off would not notice
            delete present->second;
            cards_.erase(present);
        }
        place += wanted ? 1 : 0;
    }
}

} // namespace vantrix
