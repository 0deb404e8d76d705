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
#include "support/text_format.h"
#include "support/user_defaults.h"
#include "views/focus_ring.h"

namespace vantrix {
namespace {

constexpr double usualLimit = 95.0; // °C: the one that the fixed text names
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
    FormSection& section = addSection({}, {localizedText("Each alert is sent at most once every 15 minutes."),
                                           localizedText("The CPU alert uses the critical threshold from General.")});
    section.addRow({.caption = send, .control = control});
    addKind(section, localizedText("Name the programs responsible"), preference_key::alertNamesProcesses);
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

/// A kind whose caption tells its limit.
void AlertsSettings::addKind(FormSection& section, const std::function<QString()>& caption, const QString& key) {
    FormRow& row = addKind(section, QString(), key);
    follow(row, defaults_, [&row, caption] {
        const QString text = caption();
        row.caption().setText(text);
        row.control().setAccessibleName(text);
    });
}

QString AlertsSettings::batteryLimit() const {
    return thresholdText(defaults_.number(preference_key::batteryAlertPercent) / 100.0);
}

QString AlertsSettings::temperatureLimit() const {
    const double celsius = defaults_.number(preference_key::temperatureAlertCelsius);
    return QString::fromStdString(degreesText(celsius, units(defaults_).temperature));
}

void AlertsSettings::addKinds() {
    FormSection& section = addSection(localizedText("Notify me about"));
    const auto cpu = [this] {
        return localizedText("CPU above %@", thresholdText(defaults_.number(preference_key::criticalThreshold)));
    };
    const auto battery = [this] { return localizedText("Battery at %@ or less, not charging", batteryLimit()); };
    const auto temperature = [this] {
        const bool isUsual = defaults_.number(preference_key::temperatureAlertCelsius) == usualLimit &&
                             units(defaults_).temperature == TemperatureUnit::celsius;
        return isUsual ? localizedText("CPU temperature above 95 °C")
                       : localizedText("CPU temperature above %@", temperatureLimit());
    };
    addKind(section, cpu, preference_key::alertCPU);
    addKind(section, localizedText("Memory under pressure"), preference_key::alertMemory);
    addKind(section, localizedText("Disk almost full"), preference_key::alertDisk);
    addKind(section, battery, preference_key::alertBattery);
    addKind(section, temperature, preference_key::alertTemperature);
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
    const auto fullText = [this] { return thresholdText(defaults_.number(preference_key::diskAlertThreshold)); };
    addLimit(section, localizedText("Disk full alert at"), full, preference_key::alertDisk, fullText);

    const QString low = localizedText("Battery low alert at");
    auto* charge = new Slider(theme(), low, {.least = 5, .most = 50, .step = 1});
    bindWholeSlider(*charge, defaults_, preference_key::batteryAlertPercent);
    addLimit(section, low, charge, preference_key::alertBattery, [this] { return batteryLimit(); });

    const QString hot = localizedText("CPU temperature alert at");
    auto* degrees = new Slider(theme(), hot, {.least = 60, .most = 105, .step = 1});
    bindWholeSlider(*degrees, defaults_, preference_key::temperatureAlertCelsius);
    addLimit(section, hot, degrees, preference_key::alertTemperature, [this] { return temperatureLimit(); });
}

/// A row for the limit of the kind that the setting `kind` switches on.
void AlertsSettings::addLimit(FormSection& section, const QString& caption, Slider* slider, const QString& kind,
                              const std::function<QString()>& text) {
    slider->valueText = text;
    const auto widest = QString::fromStdString(degreesText(usualLimit, TemperatureUnit::fahrenheit)); // of all limits
    FormRow& row = section.addRow(
        {.caption = caption, .control = withValue(theme(), slider, defaults_, text, widest, &ThemeColors::secondary)});
    enableWhile(row, {preference_key::alertsEnabled, kind});
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
