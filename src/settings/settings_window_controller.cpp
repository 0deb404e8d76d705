#include "settings/settings_window_controller.h"

#include <QGuiApplication>
#include <QIcon>
#include <QScreen>
#include <QShortcut>

#include "menubar/preferences.h"
#include "settings/controls/drawing.h"
#include "support/user_defaults.h"

namespace vantrix {

SettingsWindowController::SettingsWindowController(SettingsParts parts) : parts_(std::move(parts)) {}

SettingsWindowController::~SettingsWindowController() = default;

void SettingsWindowController::show(SettingsTab tab) {
    parts_.defaults.set(preference_key::settingsTab, QString::fromUtf8(choiceOf(settingsTabs, tab).rawValue));
    show();
    window_->focusTab();
}

void SettingsWindowController::show() {
    if (!window_)
        createWindow();
    if (!window_->isVisible())
        window_->focusTab();
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void SettingsWindowController::setDrawn(bool isDrawn) {
    if (window_)
        window_->setUpdatesEnabled(isDrawn);
}

void SettingsWindowController::createWindow() {
    window_ = std::make_unique<SettingsView>(parts_);
    const QString title = localizedText("Vantrix Settings");
    window_->setWindowTitle(title);
    window_->setWindowIcon(QIcon(QStringLiteral(":/vantrix.svg"))); // not at start-up: it loads a plug-in
    window_->setAccessibleName(title);
    window_->setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    window_->setAttribute(Qt::WA_QuitOnClose, false);
    for (const QKeySequence& keys : {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W)})
        QObject::connect(new QShortcut(keys, window_.get()), &QShortcut::activated, window_.get(), &QWidget::close);
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        QRect place(QPoint(), SettingsView::contentSize);
        place.moveCenter(screen->availableGeometry().center());
        window_->move(place.topLeft());
    }
}

} // namespace vantrix
