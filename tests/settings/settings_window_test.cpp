#include "settings/settings_window.h"

#include <QRadioButton>

#include "posix/spin_until.h"
#include "settings/controls/picker.h"
#include "settings/controls/push_button.h"
#include "settings/controls/segmented_control.h"
#include "settings/controls/slider.h"
#include "settings/controls/switch.h"
#include "settings/form_row.h"
#include "support/localization.h"

namespace vantrix {
namespace {

using namespace settings_window;

TEST_F(SettingsWindowTest, LaunchAtLoginMirrorsTheSystem) {
    show(SettingsTab::general);
    auto& launch = control<Switch>("Launch at login");
    launch.click();
    EXPECT_TRUE(loginItem.enabled);
    EXPECT_TRUE(launch.isChecked());
    loginItem.refuses = true;
    launch.click();
    EXPECT_TRUE(launch.isChecked()) << "springs back when the system refuses";
    show(SettingsTab::alerts);
    loginItem.enabled = false;
    show(SettingsTab::general);
    EXPECT_FALSE(launch.isChecked()) << "changed behind the window's back";
}

TEST_F(SettingsWindowTest, TheKeyboardStartsAtTheTabAskedForAndEntersTheChosenSegment) {
    const SettingsView& window = show(SettingsTab::menuBar);
    const auto focused = [&window] { return qobject_cast<QAbstractButton*>(window.focusWidget()); };
    EXPECT_EQ(focused()->text(), u"Menu Bar");
    press(*focused(), Qt::Key_Tab);
    EXPECT_EQ(focused()->text(), u"Stacked");
    press(*focused(), Qt::Key_Right);
    EXPECT_EQ(focused()->text(), u"With graph");
    press(*focused(), Qt::Key_Backtab);
    EXPECT_EQ(focused()->text(), u"Menu Bar");
}

TEST_F(SettingsWindowTest, SlidersStoreCleanNumbersAndPushTheOtherOne) {
    show(SettingsTab::general);
    auto& warning = control<Slider>("Warning threshold");
    press(warning, Qt::Key_Right);
    press(warning, Qt::Key_Right);
    EXPECT_EQ(defaults.number(preference_key::warningThreshold), 0.85);
    press(warning, Qt::Key_End);
    EXPECT_EQ(defaults.number(preference_key::warningThreshold), 0.95);
    EXPECT_TRUE(shows("100%"));
    press(control<Slider>("Critical threshold"), Qt::Key_Home);
    EXPECT_EQ(warning.fraction(), 0.5);
    show(SettingsTab::alerts);
    EXPECT_TRUE(shows("CPU above 55%")) << "the critical threshold";
}

TEST_F(SettingsWindowTest, AlertLimitsAreWholeNumbersInTheUnitOfTheSettings) {
    show(SettingsTab::alerts);
    store(preference_key::alertsEnabled, true);
    auto& hot = control<Slider>("CPU temperature alert at");
    press(hot, Qt::Key_Left);
    EXPECT_EQ(defaults.number(preference_key::temperatureAlertCelsius), 94.0);
    EXPECT_TRUE(shows("CPU temperature above 94°C"));
    store(preference_key::temperatureUnit, QStringLiteral("fahrenheit"));
    EXPECT_TRUE(shows("CPU temperature above 201°F"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&hot)->text(QAccessible::Value), u"201°F");
    press(control<Slider>("Battery low alert at"), Qt::Key_Right);
    EXPECT_EQ(defaults.number(preference_key::batteryAlertPercent), 16.0);
    EXPECT_TRUE(shows("Battery at 16% or less, not charging"));
}

TEST_F(SettingsWindowTest, ThresholdsStandOnOneScaleAndAreMarkedWhereTheyMeet) {
    show(SettingsTab::general);
    auto& warning = control<Slider>("Warning threshold");
    auto& critical = control<Slider>("Critical threshold");
    store(preference_key::warningThreshold, 0.83);
    store(preference_key::criticalThreshold, 0.83);
    EXPECT_EQ(warning.grab().toImage(), critical.grab().toImage()) << "equal values stand at equal places";
    EXPECT_TRUE(shows("Nothing turns orange: the warning threshold is not below the critical one."));
    const QPoint at = warning.rect().center();
    for (Slider* slider : {&warning, &critical}) {
        mouse(*slider, QEvent::MouseButtonPress, at);
        mouse(*slider, QEvent::MouseButtonRelease, at);
        EXPECT_EQ(slider->fraction(), 0.75) << "the middle of the scale";
    }
}

TEST_F(SettingsWindowTest, ANumberStoredByHandShowsAndStays) {
    store(preference_key::criticalThreshold, 1e300);
    store(preference_key::warningThreshold, 0.83);
    store(preference_key::updateInterval, 2.5);
    show(SettingsTab::general);
    auto& interval = control<Picker>("Update every");
    EXPECT_EQ(interval.currentText(), u"2.5 seconds");
    EXPECT_TRUE(shows("83%"));
    EXPECT_EQ(defaults.number(preference_key::updateInterval), 2.5);
    EXPECT_EQ(defaults.number(preference_key::warningThreshold), 0.83);
    press(interval, Qt::Key_Down);
    EXPECT_EQ(defaults.number(preference_key::updateInterval), 3.0);
    EXPECT_EQ(interval.count(), 5) << "the extra entry goes";
}

TEST_F(SettingsWindowTest, SwitchesFollowAndStore) {
    show(SettingsTab::alerts);
    const std::pair<const char*, QString> cases[] = {
        {"Send notifications", preference_key::alertsEnabled},
        {"CPU above 90%", preference_key::alertCPU},
        {"Memory under pressure", preference_key::alertMemory},
        {"Disk almost full", preference_key::alertDisk},
        {"Battery at 15% or less, not charging", preference_key::alertBattery},
        {"CPU temperature above 95 °C", preference_key::alertTemperature},
    };
    for (const auto& [name, key] : cases) {
        store(preference_key::alertsEnabled, key != preference_key::alertsEnabled);
        auto& control = this->control<Switch>(name);
        const bool before = defaults.boolean(key);
        EXPECT_EQ(control.isChecked(), before) << name;
        press(control, Qt::Key_Space);
        EXPECT_EQ(defaults.boolean(key), !before) << name;
        store(key, before);
        EXPECT_EQ(control.isChecked(), before) << name;
    }
}

TEST_F(SettingsWindowTest, SegmentsFollowAndStore) {
    show(SettingsTab::general);
    store(preference_key::temperatureUnit, QStringLiteral("Kelvin"));
    EXPECT_EQ(control<SegmentedControl>("Temperature").current(), 0) << "what has no such name is the standard";
    control<QRadioButton>("°F").click();
    EXPECT_EQ(stored(preference_key::temperatureUnit), u"fahrenheit");
    store(preference_key::memoryUnit, QStringLiteral("gib"));
    EXPECT_TRUE(control<QRadioButton>("GiB").isChecked());
}

TEST_F(SettingsWindowTest, WhatASwitchedOffMasterLeavesWithoutEffectIsOffAndDisabled) {
    show(SettingsTab::alerts);
    const auto& disk = control<Switch>("Disk almost full");
    const auto& threshold = control<Slider>("Disk full threshold");
    EXPECT_FALSE(disk.isChecked() || disk.isEnabled() || threshold.isEnabled());
    EXPECT_TRUE(defaults.boolean(preference_key::alertDisk)) << "what is stored stays";
    control<Switch>("Send notifications").click();
    EXPECT_TRUE(disk.isChecked() && disk.isEnabled() && threshold.isEnabled());
    store(preference_key::alertDisk, false);
    EXPECT_FALSE(threshold.isEnabled());
}

std::string inLongWords(std::string_view english, std::optional<long long>) {
    std::string text;
    for (const char letter : english)
        text += letter == 'e' ? std::string("eeee") : std::string(1, letter);
    return text;
}

TEST_F(SettingsWindowTest, TheTestNotificationsOutcomeShowsEvenWhenItComesLate) {
    show(SettingsTab::alerts);
    control<PushButton>("Send test notification").click();
    ASSERT_TRUE(reportTest);
    const std::string outcome = inLongWords("There is nobody here to tell anything to, not even between the lines", {});
    reportTest(QString::fromStdString(outcome));
    const TextLabel* text = shows(outcome.c_str());
    ASSERT_TRUE(text);
    EXPECT_TRUE(spinUntil([&] { return text->visibleRegion() == text->rect(); })) << "out of sight";
    EXPECT_EQ(text->height(), text->heightForWidth(text->width()));
    {
        SettingsView other({theme, defaults, monitor, loginItem, [this](auto report) { reportTest = report; }});
        other.findChild<PushButton*>()->click();
    }
    reportTest(QStringLiteral("too late"));
    EXPECT_FALSE(shows("too late"));
}

/// What is wrong with how the texts and controls of the open tab are laid out; empty when nothing is.
std::string faultIn(const SettingsView& window) {
    for (const auto* row : window.findChildren<FormRow*>()) {
        if (!row->isVisible())
            continue;
        const TextLabel& caption = row->caption();
        const std::string name = caption.text().toStdString();
        if (caption.heightForWidth(caption.width()) > caption.height())
            return name + ": cut";
        if (caption.geometry().intersects(row->control().geometry()))
            return name + ": under its control";
        if (!row->rect().contains(row->control().geometry()) || !row->rect().contains(caption.geometry()))
            return name + ": beyond its row";
        if (!row->parentWidget()->rect().contains(row->geometry()))
            return name + ": beyond its group";
    }
    return {};
}

TEST_F(SettingsWindowTest, LargeTextsLongWordsAndMirroringNeitherCutNorOverlap) {
    const QFont usual = QApplication::font();
    installTranslator(inLongWords);
    for (const int pixels : {13, 20, 27, 40})
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QFont font = usual;
            font.setPixelSize(pixels);
            QApplication::setFont(font);
            QApplication::processEvents();
            SettingsView window({theme, defaults, monitor, loginItem, {}});
            window.setLayoutDirection(direction);
            window.show();
            for (const auto& tab : settingsTabs) {
                store(preference_key::settingsTab, QString::fromUtf8(tab.rawValue));
                EXPECT_EQ(window.size(), SettingsView::contentSize);
                EXPECT_EQ(faultIn(window), "") << tab.title << " at " << pixels << " pixels";
            }
        }
    installTranslator(nullptr);
    QApplication::setFont(usual);
}

} // namespace
} // namespace vantrix
