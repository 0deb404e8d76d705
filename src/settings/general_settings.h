#pragma once

#include "settings/form.h"

namespace vantrix {

class LoginItem;
class Slider;
class Switch;
class UserDefaults;

/// The tab for what concerns the whole program.
class GeneralSettings : public Form {
    Q_OBJECT
  public:
    /// Everything passed in outlives the tab.
    GeneralSettings(const Theme& theme, UserDefaults& defaults, LoginItem& loginItem);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void addLoginItem();
    void addThreshold(FormSection& section, Slider* slider, const QString& key, const QString& caption,
                      ColorRole color);
    void addThresholds();
    void addUnits();
    void readLoginItem();

    UserDefaults& defaults_;
    LoginItem& loginItem_;
    Switch* launchAtLogin_;
};

} // namespace vantrix
