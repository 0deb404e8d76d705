#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <gmock/gmock.h>

#include "fakes/fake_appearance.h"
#include "fakes/fake_defaults.h"
#include "fakes/fake_login_item.h"
#include "fakes/fake_sources.h"
#include "monitor/system_monitor.h"
#include "settings/settings_window_controller.h"
#include "views/theme.h"

/// What the tests of the settings window share.
namespace vantrix::settings_window {

inline void press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent down(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers);
    QApplication::sendEvent(&widget, &up);
}

inline void mouse(QWidget& widget, QEvent::Type type, QPoint at) {
    const bool held = type != QEvent::MouseButtonRelease;
    QMouseEvent event(type, at, widget.mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

struct SettingsWindowTest : ::testing::Test {
    SettingsView& show(SettingsTab tab) {
        controller.show(tab);
        QApplication::processEvents();
        return *controller.window();
    }

    /// The control of that name in the open tab; fails the test when there is none.
    template<typename Control>
    Control& control(const char* name) {
        for (Control* candidate : controller.window()->findChildren<Control*>()) {
            QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(candidate);
            if (candidate->isVisible() && interface->text(QAccessible::Name) == QString::fromUtf8(name))
                return *candidate;
        }
        throw std::runtime_error(std::string("no such control: ") + name);
    }

    /// The label of the open tab with that text; null when there is none.
    const TextLabel* shows(const char* text) {
        for (const auto* label : controller.window()->findChildren<TextLabel*>())
            if (label->isVisible() && label->text() == QString::fromUtf8(text))
                return label;
        return nullptr;
    }

    QString stored(const QString& key) const { return defaults.string(key).value_or(QStringLiteral("<none>")); }
    void store(const QString& key, const QVariant& value) {
        defaults.set(key, value);
        QApplication::processEvents();
    }

    fakes::FakeAppearance appearance{{.reducesMotion = true}};
    Theme theme{appearance};
    fakes::FakeDefaults defaults;
    fakes::FakeMachine machine;
    SystemMonitor monitor{machine.makeSources(), defaults, std::make_unique<QtRepeatingTimer>(),
                          std::make_unique<ThreadTaskRunner>()};
    fakes::FakeLoginItem loginItem;
    std::function<void(const QString&)> reportTest;
    SettingsWindowController controller{
        {theme, defaults, monitor, loginItem, [this](auto report) { reportTest = report; }}};
};

} // namespace vantrix::settings_window
