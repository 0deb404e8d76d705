#include "settings/general_settings.h"

#include <cmath>

#include <QPainter>

#include "menubar/preferences.h"
#include "platform/login_item.h"
#include "settings/bindings.h"
#include "settings/choice_control.h"
#include "settings/controls/picker.h"
#include "settings/controls/slider.h"
#include "settings/controls/switch.h"
#include "settings/fraction_slider.h"
#include "settings/thresholds.h"
#include "support/user_defaults.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double dotSide = 8.0;

/// The colour that a threshold stands for.
class Dot : public View {
  public:
    Dot(const Theme& theme, ColorRole color) : View(theme), color_(color) {}

    QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }
    QSize sizeHint() const override {
        const int side = static_cast<int>(std::lround(theme().scaled(dotSide)));
        return {side, side};
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme().colors().*color_);
        painter.drawEllipse(QRectF(rect()));
    }

  private:
    ColorRole color_;
};

} // namespace

GeneralSettings::GeneralSettings(const Theme& theme, UserDefaults& defaults, LoginItem& loginItem)
    : Form(theme), defaults_(defaults), loginItem_(loginItem) {
    addLoginItem();
    addThresholds();
    addUnits();
}

void GeneralSettings::addLoginItem() {
    FormSection& section = addSection();
    const QString launch = localizedText("Launch at login");
    launchAtLogin_ = new Switch(theme(), launch);
    section.addRow({.caption = launch, .control = launchAtLogin_});
    readLoginItem();
    connect(launchAtLogin_, &QAbstractButton::clicked, this, [this](bool on) {
        loginItem_.setEnabled(on);
        readLoginItem();
    });

    const QString every = localizedText("Update every");
    auto* interval = new Picker(theme(), every);
    bindSeconds(*interval, defaults_, preference_key::updateInterval, {1, 2, 3, 5, 10},
                [this] { return updateInterval(defaults_); });
    section.addRow({.caption = every, .control = interval});
}

void GeneralSettings::addThresholds() {
    FormSection& section =
        addSection(localizedText("Color thresholds"),
                   {localizedText("Bars, rings and the menu bar turn orange and red above these values.")});
    auto* warning =
        new Slider(theme(), localizedText("Warning threshold"), {.least = 50, .most = 95, .step = 5, .last = 100});
    addThreshold(section, warning, preference_key::warningThreshold, localizedText("Warning"), &ThemeColors::orange);
    connect(warning, &Slider::fractionChosen, this, [this](double w) { setWarningThreshold(defaults_, w); });

    auto* critical =
        new Slider(theme(), localizedText("Critical threshold"), {.least = 55, .most = 100, .step = 5, .first = 50});
    addThreshold(section, critical, preference_key::criticalThreshold, localizedText("Critical"), &ThemeColors::red);
    connect(critical, &Slider::fractionChosen, this, [this](double c) { setCriticalThreshold(defaults_, c); });

    TextLabel& remark =
        section.addFooter(localizedText("Nothing turns orange: the warning threshold is not below the critical one."),
                          &ThemeColors::label);
    follow(remark, defaults_, [this, &remark] {
        remark.setVisible(defaults_.number(preference_key::warningThreshold) >=
                          defaults_.number(preference_key::criticalThreshold));
    });
}

void GeneralSettings::addThreshold(FormSection& section, Slider* slider, const QString& key, const QString& caption,
                                   ColorRole color) {
    follow(*slider, defaults_, [this, slider, key] { slider->setFraction(defaults_.number(key)); });
    section.addRow({.caption = caption,
                    .control = withPercent(theme(), slider, defaults_, key, &ThemeColors::label),
                    .mark = new Dot(theme(), color)});
}

void GeneralSettings::addUnits() {
    FormSection& section =
        addSection(localizedText("Units"), {localizedText("Memory is counted in steps of 1024 under either name.")});
    const auto addRow = [&](const QString& caption, const QString& key, const auto& choices) {
        section.addRow({.caption = caption, .control = choiceControl(theme(), defaults_, key, caption, choices)});
    };
    addRow(localizedText("Temperature"), preference_key::temperatureUnit, temperatureUnits);
    addRow(localizedText("Network"), preference_key::networkUnit, networkUnits);
    addRow(localizedText("Memory"), preference_key::memoryUnit, memoryUnits);
}

void GeneralSettings::readLoginItem() {
    launchAtLogin_->setChecked(loginItem_.isEnabled());
}

void GeneralSettings::showEvent(QShowEvent*) {
    readLoginItem();
}

} // namespace vantrix
