#include "settings/alerts_settings.h"

#include <QHBoxLayout>
#include <QPointer>

#include "menubar/preferences.h"
#include "settings/bindings.h"
#include "settings/controls/picker.h"
#include "settings/controls/push_button.h"
#include "settings/controls/slider.h"
#include "settings/controls/switch.h"
#include "settings/fraction_slider.h"
#include "settings/settings_texts.h"
#include "support/user_defaults.h"
#include "views/focus_ring.h"

namespace vantrix {
namespace {

constexpr double lowBattery = 0.15;
constexpr double footnotePoints = 11.0;

} // namespace

AlertsSettings::AlertsSettings(const Theme& theme, UserDefaults& defaults, SendTest sendTest)
    : Form(theme), defaults_(defaults), sendTest_(std::move(sendTest)) {
    addSwitch(addSection({}, {localizedText("Each alert is sent at most once every 15 minutes."),
                              localizedText("The CPU alert uses the critical threshold from General.")}),
              localizedText("Send notifications"), preference_key::alertsEnabled);
    addKinds();
    addConditions();
    addTest();
}

FormRow& AlertsSettings::addSwitch(FormSection& section, const QString& caption, const QString& key) {
    auto* control = new Switch(theme(), caption);
    bindSwitch(*control, defaults_, key);
    return section.addRow({.caption = caption, .control = control});
}

void AlertsSettings::addKinds() {
    FormSection& section = addSection(localizedText("Notify me about"));
    FormRow& cpu = addSwitch(section, QString(), preference_key::alertCPU);
    follow(cpu, defaults_, [this, &cpu] {
        const double threshold = defaults_.number(preference_key::criticalThreshold);
        const QString text = localizedText("CPU above %@", thresholdText(threshold));
        cpu.caption().setText(text);
        cpu.control().setAccessibleName(text);
    });
    addSwitch(section, localizedText("Memory under pressure"), preference_key::alertMemory);
    addSwitch(section, localizedText("Disk almost full"), preference_key::alertDisk);
    addSwitch(section, localizedText("Battery at %@ or less, not charging", thresholdText(lowBattery)),
              preference_key::alertBattery);
    addSwitch(section, localizedText("CPU temperature above 95 °C"), preference_key::alertTemperature);
}

void AlertsSettings::addConditions() {
    FormSection& section = addSection(localizedText("Conditions"));
    const QString lasts = localizedText("Only after it lasts");
    auto* duration = new Picker(theme(), lasts);
    bindSeconds(*duration, defaults_, preference_key::alertDuration, {15, 30, 60, 120},
                [this] { return defaults_.number(preference_key::alertDuration); });
    section.addRow({.caption = lasts, .control = duration});

    auto* full = new Slider(theme(), localizedText("Disk full threshold"), {.least = 80, .most = 99, .step = 1});
    bindSlider(*full, defaults_, preference_key::diskAlertThreshold);
    section.addRow(
        {.caption = localizedText("Disk full alert at"),
         .control = withPercent(theme(), full, defaults_, preference_key::diskAlertThreshold, &ThemeColors::secondary),
         .color = &ThemeColors::secondary});
}

void AlertsSettings::addTest() {
    auto* holder = new QWidget;
    auto* column = new QVBoxLayout(holder);
    column->setContentsMargins(FormRow::sidePadding - focusMargin, 3, FormRow::sidePadding, 3);
    column->setSpacing(6);
    auto* button = new PushButton(theme(), localizedText("Send test notification"));
    button->setEnabled(sendTest_ != nullptr);
    connect(button, &QAbstractButton::clicked, this, &AlertsSettings::requestTest);
    column->addWidget(button, 0, Qt::AlignLeading);
    outcome_ = new TextLabel(theme(), {.points = footnotePoints, .color = &ThemeColors::secondary, .wraps = true});
    outcome_->hide();
    auto* line = new QHBoxLayout;
    line->addSpacing(focusMargin); // in line with the button's edge
    line->addWidget(outcome_, 1);
    column->addLayout(line);
    addSection().addRow(holder);
}

void AlertsSettings::requestTest() {
    sendTest_([tab = QPointer<AlertsSettings>(this)](const QString& outcome) {
        if (!tab)
            return;
        tab->outcome_->setText(outcome);
        tab->outcome_->setVisible(!outcome.isEmpty());
    });
}

} // namespace vantrix
