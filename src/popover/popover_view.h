#pragma once

#include <map>

#include "menubar/display_choices.h"
#include "popover/cards/card.h"
#include "popover/header_view.h"

class QScrollBar;
class QVBoxLayout;

namespace vantrix {

class ScrollColumn;
class SystemMonitor;

/// What the popover shows: a header, and the chosen cards in a column that scrolls. It follows the monitor and the
/// settings while it is visible and costs nothing while it is not.
class PopoverView : public View {
    Q_OBJECT
  public:
    static constexpr int contentWidth = 340;

    /// `monitor` and what `context` names outlive the view.
    PopoverView(const SystemMonitor& monitor, const CardContext& context, HeaderView::MenuEntries menuEntries);
    ~PopoverView() override;

    /// The cards in the column, from the top.
    std::vector<PopoverCard> shownCards() const;

    /// Scrolls as far as it can to the card that tells more about `module`, if it is in the column.
    void showCardOf(MenuBarModule module);

    /// As tall as all its cards.
    QSize sizeHint() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    QWidget* makeColumn();
    void addShortcuts(const std::vector<StatusMenuEntry>& entries);
    void addScrollKeys(QScrollBar& bar);
    void scheduleRefresh();
    void refresh();
    void showCards(const Readings& readings);

    const SystemMonitor& monitor_;
    CardContext context_;
    ScrollColumn* scrolling_ = nullptr;
    QVBoxLayout* column_ = nullptr;
    QWidget* emptySelection_ = nullptr;  // says so
    std::map<PopoverCard, Card*> cards_; // those in the column; it owns them
    bool isScheduled_ = false;
};

} // namespace vantrix
