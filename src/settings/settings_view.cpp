#include "settings/settings_view.h"

#include <QPainter>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "menubar/preferences.h"
#include "settings/bindings.h"
#include "settings/controls/drawing.h"
#include "settings/general_settings.h"
#include "settings/menu_bar_settings.h"
#include "settings/popover_settings.h"
#include "settings/tab_bar.h"
#include "support/user_defaults.h"
#include "views/scroll_column.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int sideMargin = 20;
constexpr int verticalMargin = 10;

/// What scrolls. Its height follows from its width alone: the layout's own minimum is that of the narrowest form.
class Page : public QWidget {
  public:
    QSize minimumSizeHint() const override { return {}; }
};

/// The form with its margins, scrolling.
ScrollColumn* scrolling(const Theme& theme, Form* form) {
    auto* page = new Page;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(sideMargin, verticalMargin, sideMargin, verticalMargin);
    layout->addWidget(form);
    return new ScrollColumn(theme, page);
}

} // namespace

SettingsView::SettingsView(const SettingsParts& parts)
    : View(parts.theme), defaults_(parts.defaults), tabs_(new TabBar(parts.theme)), pages_(new QStackedWidget) {
    setFixedSize(contentSize);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tabs_);
    column->addWidget(pages_, 1);

    addPage(new GeneralSettings(parts.theme, parts.defaults, parts.loginItem));
    addPage(new MenuBarSettings(parts.theme, parts.defaults, parts.monitor));
    addPage(new PopoverSettings(parts.theme, parts.defaults));
    addPage(new AlertsSettings(parts.theme, parts.defaults, parts.sendTest));
    connect(tabs_, &TabBar::chosen, this, &SettingsView::select);
    addShortcuts();
    follow(*this, parts.defaults, [this] { showStoredTab(); });
}

void SettingsView::addPage(Form* form) {
    const auto& tab = settingsTabs[static_cast<std::size_t>(pages_->count())];
    form->setAccessibleName(localizedText(tab.title));
    pages_->addWidget(scrolling(theme(), form));
}

void SettingsView::addShortcuts() {
    const auto on = [this](const QKeySequence& keys, int by) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, by] { selectNext(by); });
    };
    on(Qt::CTRL | Qt::Key_Tab, 1);
    on(Qt::CTRL | Qt::Key_PageDown, 1);
    on(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1);
    on(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1); // what the toolkit makes of the same keys
    on(Qt::CTRL | Qt::Key_PageUp, -1);
}

SettingsTab SettingsView::currentTab() const {
    return settingsTabs[static_cast<std::size_t>(pages_->currentIndex())].value;
}

void SettingsView::focusTab() {
    tabs_->focusCurrent();
}

void SettingsView::showStoredTab() {
    const QString stored = defaults_.string(preference_key::settingsTab).value_or(QString());
    const SettingsTab tab = choiceNamed(settingsTabs, stored.toStdString()).value_or(SettingsTab::general);
    tabs_->setCurrent(tab);
    pages_->setCurrentIndex(static_cast<int>(tab));
}

void SettingsView::select(SettingsTab tab) {
    defaults_.set(preference_key::settingsTab, QString::fromUtf8(choiceOf(settingsTabs, tab).rawValue));
}

void SettingsView::selectNext(int by) {
    const int count = pages_->count();
    select(settingsTabs[static_cast<std::size_t>((pages_->currentIndex() + by + count) % count)].value);
}

void SettingsView::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), theme().colors().window);
}

} // namespace vantrix
