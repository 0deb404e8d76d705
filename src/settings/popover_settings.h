#pragma once

#include "settings/form.h"

namespace vantrix {

class UserDefaults;

/// The tab for the cards of the popover.
class PopoverSettings : public Form {
    Q_OBJECT
  public:
    /// `defaults` outlives the tab.
    PopoverSettings(const Theme& theme, UserDefaults& defaults);
};

} // namespace vantrix
