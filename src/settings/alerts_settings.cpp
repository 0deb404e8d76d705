#include "settings/alerts_settings.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QPointer>
#include <QScrollArea>
#include <QTimer>

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
constexpr int testPadding = 7; // around what is in the row of the test
constexpr int roomBelow = 24;  // the rest of the row, and of the page

/// Brings `part` into view, whole, where it stands on a page that scrolls.
void scrollTo(QWidget& part) {
    for (QWidget* around = part.parentWidget(); around != nullptr; around = around->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(around))
            area->ensureWidgetVisible(&part, 0, roomBelow);
}

} // namespace

AlertsSettings::AlertsSettings(const Theme& theme, UserDefaults& defaults, SendTest sendTest)
    : Form(theme), defaults_(defaults), sendTest_(std::move(sendTest)) {
    const QString send = localizedText("Send notifications");
    auto* control = new Switch(theme, send);
    bindSwitch(*control, defaults_, preference_key::alertsEnabled);
    addSection({}, {localizedText("Each alert is sent at most once every 15 minutes."),
                    localizedText("The CPU alert uses the critical threshold from General.")})
        .addRow({.caption = send, .control = control});
    addKinds();
    addConditions();
    addTest();
}

/// Disables the row while one of those switches is off.
void AlertsSettings::enableWhile(FormRow& row, const QStringList& keys) {
    follow(row, defaults_, [this, &row, keys] {
        row.setEnabled(std::all_of(keys.begin(), keys.end(), [this](auto& key) { return defaults_.boolean(key); }));
    });
}

FormRow& AlertsSettings::addKind(FormSection& section, const QString& caption, const QString& key) {
    auto* control = new Switch(theme(), caption);
    FormRow& row = section.addRow({.caption = caption, .control = control});
    bindSwitch(*control, defaults_, key, preference_key::alertsEnabled);
    enableWhile(row, {preference_key::alertsEnabled});
    return row;
}

void AlertsSettings::addKinds() {
    FormSection& section = addSection(localizedText("Notify me about"));
    FormRow& cpu = addKind(section, QString(), preference_key::alertCPU);
    follow(cpu, defaults_, [this, &cpu] {
        const double threshold = defaults_.number(preference_key::criticalThreshold);
        const QString text = localizedText("CPU above %@", thresholdText(threshold));
        cpu.caption().setText(text);
        cpu.control().setAccessibleName(text);
    });
    addKind(section, localizedText("Memory under pressure"), preference_key::alertMemory);
    addKind(section, localizedText("Disk almost full"), preference_key::alertDisk);
    addKind(section, localizedText("Battery at %@ or less, not charging", thresholdText(lowBattery)),
            preference_key::alertBattery);
    addKind(section, localizedText("CPU temperature above 95 °C"), preference_key::alertTemperature);
}

void AlertsSettings::addConditions() {
    FormSection& section = addSection(localizedText("Conditions"));
    const QString lasts = localizedText("Only after it lasts");
    auto* duration = new Picker(theme(), lasts);
    bindSeconds(*duration, defaults_, preference_key::alertDuration, {15, 30, 60, 120},
                [this] { return defaults_.number(preference_key::alertDuration); });
    enableWhile(section.addRow({.caption = lasts, .control = duration}), {preference_key::alertsEnabled});

    auto* full = new Slider(theme(), localizedText("Disk full threshold"), {.least = 80, .most = 99, .step = 1});
    bindSlider(*full, defaults_, preference_key::diskAlertThreshold);
    FormRow& row = section.addRow({.caption = localizedText("Disk full alert at"),
                                   .control = withPercent(theme(), full, defaults_, preference_key::diskAlertThreshold,
                                                          &ThemeColors::secondary)});
    enableWhile(row, {preference_key::alertsEnabled, preference_key::alertDisk});
}

void AlertsSettings::addTest() {
    auto* holder = new QWidget;
    auto* column = new QVBoxLayout(holder);
    column->setContentsMargins(FormRow::sidePadding - focusMargin, testPadding, FormRow::sidePadding, testPadding);
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
        // It stands at the end of the page, which is long; later, when the page has grown by it.
        QTimer::singleShot(0, tab->outcome_, [text = tab->outcome_] { scrollTo(*text); });
    });
}

} // namespace vantrix
