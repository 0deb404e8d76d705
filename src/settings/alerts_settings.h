#pragma once

#include <functional>

#include "settings/form.h"

namespace vantrix {

class Slider;
class UserDefaults;

/// Asks for a test notification. Says, perhaps much later, how it went.
using SendTest = std::function<void(std::function<void(const QString& outcome)>)>;

/// The tab for notifications.
class AlertsSettings : public Form {
    Q_OBJECT
  public:
    /// `defaults` outlives the tab. Without `sendTest` the button for it is disabled.
    AlertsSettings(const Theme& theme, UserDefaults& defaults, SendTest sendTest);

  private:
    FormRow& addKind(FormSection& section, const QString& caption, const QString& key);
    void addKind(FormSection& section, const std::function<QString()>& caption, const QString& key);
    void addLimit(FormSection& section, const QString& caption, Slider* slider, const QString& kind,
                  const std::function<QString()>& text);
    QString batteryLimit() const;
    QString temperatureLimit() const;
    void enableWhile(FormRow& row, const QStringList& keys);
    void addKinds();
    void addConditions();
    void addTest();
    void requestTest();

    UserDefaults& defaults_;
    SendTest sendTest_;
    TextLabel* outcome_;
};

} // namespace vantrix
