#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/status_item.h"
#include "views/view.h"

class QMenu;

namespace vantrix {

class SymbolButton;

/// The top of the popover: the program's name, the processor, and the menu.
class HeaderView : public View {
  public:
    using MenuEntries = std::function<std::vector<StatusMenuEntry>()>;

    HeaderView(const Theme& theme, const std::string& processor, MenuEntries menuEntries);
    ~HeaderView() override;

    void openMenu();

  private:
    MenuEntries menuEntries_;
    SymbolButton* button_;
    std::unique_ptr<QMenu> menu_; // the last one that the program drew itself
};

} // namespace vantrix
