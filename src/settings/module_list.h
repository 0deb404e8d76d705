#pragma once

#include "menubar/display_choices.h"
#include "views/view.h"

namespace vantrix {

class ModuleRow;
class UserDefaults;

/// The modules of the status item in order; each can be switched on and off, and moved.
class ModuleList : public View {
    Q_OBJECT
  public:
    /// `defaults` outlives the list.
    ModuleList(const Theme& theme, UserDefaults& defaults);

    QAccessible::Role accessibleRole() const override { return QAccessible::Grouping; }
    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void showStoredOrder();
    void placeRows();
    void move(ModuleRow* row, int by);
    void drag(ModuleRow* row, int from, int to);
    void drop(bool counts);
    void store();

    struct Slot {
        int top = 0;
        int height = 0;
    };
    std::vector<Slot> slotsFor(int width) const;
    /// The index of the row while its top is dragged to `top`.
    std::size_t placeFor(const ModuleRow* row, int top) const;
    std::size_t indexOf(const ModuleRow* row) const;

    UserDefaults& defaults_;
    std::vector<ModuleRow*> rows_; // in the order shown
    ModuleRow* dragged_ = nullptr;
    int grip_ = 0; // how far below the dragged row's top the pointer holds it
};

} // namespace vantrix
