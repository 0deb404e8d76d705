#include "app/app_delegate.h"

#include <utility>

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>
#include <QToolTip>

#include "app/accessible_application.h"
#include "app/status_details.h"
#include "menubar/preferences.h"
#include "platform/desktop_services.h"
#include "platform/popup_input.h"
#include "popover/popover_place.h"
#include "support/localization.h"
#include "support/user_defaults.h"
#include "views/shortcut_menu.h"

namespace vantrix {
namespace {

constexpr std::string_view settingsRequest = "show-settings";

/// The top left corner of a menu of `size` beside `anchor`, inside the screen that the anchor is on.
QPoint menuPlace(const QSize& size, const QRect& anchor) {
    const QScreen* screen = QGuiApplication::screenAt(anchor.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? popoverPlace(size, anchor, screen->geometry()).topLeft() : anchor.bottomLeft();
}

} // namespace

AppDelegate::AppDelegate(Parts parts, UserDefaults& defaults)
    : defaults_(defaults), makeStatusItem_(std::move(parts.makeStatusItem)), loginItem_(std::move(parts.loginItem)),
      notifications_(std::move(parts.notifications)), widgets_(std::move(parts.widgets)),
      onlookers_(std::move(parts.onlookers)), alerts_(*notifications_, defaults),
      widgetBridge_(widgets_.get(), defaults), information_(std::move(parts.sources.information)),
      processor_(*information_), monitor_(std::move(parts.sources), defaults, std::move(parts.timer),
                                          std::make_unique<ThreadTaskRunner>(), std::move(parts.bluetooth)),
      theme_(parts.appearance),
      popover_(parts.makePopover(
          theme_,
          [this] {
              CardContext context{theme_, defaults_, processor_, [this] { monitor_.requestLocationAccess(); }};
              context.watchPrograms = [this] { return monitor_.watchPrograms(); };
              context.keepUnfolded = [this](PopoverCard card, bool isUnfolded) {
                  setShowsPrograms(defaults_, card, isUnfolded);
              };
              auto view = std::make_unique<PopoverView>(monitor_, context, [this] { return menuEntries(); });
              popoverView_ = view.get();
              return view;
          })),
      settings_({theme_, defaults_, monitor_, *loginItem_, [this](auto done) { alerts_.sendTest(std::move(done)); }}) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    installAccessibleApplication();
    registerPreferences(defaults_);
    createStatusItem();
    alerts_.opened = [this](AlertManager::Kind kind) { alertOpened(kind); };
    alerts_.makeProcessSampler = [this] { return monitor_.makeProcessSampler(); };
    monitor_.onUpdate = [delegate = QPointer<AppDelegate>(this)] {
        if (delegate)
            delegate->monitorDidUpdate();
    };
    observeDefaults();
    QToolTip::setPalette(theme_.palette());
    connect(&theme_, &Theme::changed, this, [this] { QToolTip::setPalette(theme_.palette()); });
    monitor_.start();
    refreshStatusItem();
    if (!onlookers_)
        return;
    connect(onlookers_.get(), &Onlookers::changed, this, &AppDelegate::onlookersDidChange);
    onlookersDidChange();
}

void AppDelegate::createStatusItem() {
    statusItem_ = makeStatusItem_({
        .clicked = [this](const StatusClick& click) { statusItemClicked(click); },
        .menu = [this] { return menuEntries(); },
        .details =
            [this](std::optional<MenuBarModule> module) {
                return statusDetails(monitor_.readings(), units(defaults_), module);
            },
        .menuWillOpen = [this] { popover_->close(); },
        .appeared =
            [this] {
                if (std::exchange(popoverAwaitsItem_, false))
                    showPopover();
            },
    });
}

void AppDelegate::observeDefaults() {
    modules_ = enabledMenuBarModules(defaults_);
    connect(&defaults_, &UserDefaults::changed, this, [this] {
        modules_ = enabledMenuBarModules(defaults_);
        monitor_.setInterval(updateInterval(defaults_));
        refreshStatusItem();
    });
}

void AppDelegate::monitorDidUpdate() {
    refreshStatusItem();
    alerts_.evaluate(monitor_.readings());
    if (somebodyLooks_)
        widgetBridge_.update(monitor_.readings());
    if (passesToRest_ > 0 && --passesToRest_ == 0)
        releaseIdleMemory();
}

void AppDelegate::onlookersDidChange() {
    if (onlookers_->somebodyLooks())
        return meetOnlooker();
    popover_->close();
    somebodyLooks_ = false;
    settings_.setDrawn(false);
}

/// Shows the last pass, which may be news. Somebody who clicks looks, whatever the system says.
void AppDelegate::meetOnlooker() {
    if (std::exchange(somebodyLooks_, true))
        return;
    settings_.setDrawn(true);
    refreshStatusItem();
    widgetBridge_.update(monitor_.readings());
}

std::vector<MenuBarItem> AppDelegate::shownItems() const {
    return menuBarItems(modules_, monitor_.readings(), defaults_);
}

void AppDelegate::refreshStatusItem() {
    if (!statusItem_ || !somebodyLooks_)
        return;
    StatusContent content;
    content.items = shownItems();
    content.style = menuBarStyle(defaults_);
    content.colorize = defaults_.boolean(preference_key::menuBarColorize);
    content.accessibilityLabel = content.items.empty() ? "Vantrix" : accessibilityLabel(content.items);
    statusItem_->show(content);
}

void AppDelegate::statusItemClicked(const StatusClick& click) {
    meetOnlooker();
    if (click.button == StatusClick::Button::middle)
        copyRow();
    else if (click.button == StatusClick::Button::right || click.control)
        showMenu();
    else
        togglePopover(click.module);
}

void AppDelegate::copyRow() const {
    if (const auto items = shownItems(); !items.empty())
        QGuiApplication::clipboard()->setText(QString::fromStdString(accessibilityLabel(items)));
}

std::vector<StatusMenuEntry> AppDelegate::menuEntries() {
    return {
        {QString::fromStdString(localized("Settings…")), QKeySequence(Qt::CTRL | Qt::Key_Comma),
         [this] { openSettings(); }},
        {{}, {}, {}},
        {QString::fromStdString(localized("Quit Vantrix")), QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { quitApp(); }},
    };
}

void AppDelegate::showMenu() {
    if (!statusItem_)
        return;
    popover_->close();
    const std::vector<StatusMenuEntry> entries = menuEntries();
    if (statusItem_->popUpMenu(entries))
        return;
    menu_ = makeMenu(entries);
    menu_->setPalette(theme_.palette());
    if (popover_->popUp(*menu_, *statusItem_))
        return;
    menu_->setFixedSize(menu_->sizeHint()); // or it becomes a tile on some Wayland compositors
    menuInput_ = takeInput(statusItem_->placeIsKnown(), [this] { menu_->close(); });
    connect(menu_.get(), &QMenu::aboutToHide, this, [this] { menuInput_.reset(); });
    menu_->popup(menuPlace(menu_->sizeHint(), statusItem_->anchor()));
}

/// Where it opens, it shows the card of `module`.
void AppDelegate::togglePopover(std::optional<MenuBarModule> module) {
    if (!statusItem_)
        return;
    popover_->toggle(*statusItem_);
    if (module && popoverView_ && popover_->isShown())
        popoverView_->showCardOf(*module);
}

void AppDelegate::showPopover() {
    meetOnlooker();
    popoverAwaitsItem_ = statusItem_ && !statusItem_->isShown();
    if (statusItem_ && !popoverAwaitsItem_ && !popover_->isShown())
        popover_->show(*statusItem_);
}

/// Shows the card that the alert was about, with the programs behind it.
void AppDelegate::alertOpened(AlertManager::Kind kind) {
    const auto module = choiceNamed(menuBarModules, AlertManager::kindNames[static_cast<std::size_t>(kind)]);
    if (kind == AlertManager::Kind::cpu || kind == AlertManager::Kind::memory)
        setShowsPrograms(defaults_, kind == AlertManager::Kind::cpu ? PopoverCard::cpu : PopoverCard::memory, true);
    showPopover();
    if (module && popoverView_ && popover_->isShown())
        popoverView_->showCardOf(*module);
}

void AppDelegate::openSettings() {
    showSettings({});
}

/// `tab`: a blank and the tab's name, or empty for the tab that was shown last.
void AppDelegate::showSettings(std::string_view tab) {
    const auto named = tab.starts_with(' ') ? choiceNamed(settingsTabs, tab.substr(1)) : std::nullopt;
    if (!named && !tab.empty())
        return;
    popoverAwaitsItem_ = false;
    popover_->close();
    meetOnlooker();
    activateProgram();
    if (named)
        settings_.show(*named);
    else
        settings_.show();
}

void AppDelegate::quitApp() {
    QCoreApplication::quit();
}

void AppDelegate::handleRequest(const std::string& request) {
    if (request == "show-popover")
        showPopover();
    else if (request == "quit")
        quitApp();
    else if (request.starts_with(settingsRequest))
        showSettings(std::string_view(request).substr(settingsRequest.size()));
}

std::string AppDelegate::answerTo(const std::string& request) const {
    return request == statusItemQuestion && statusItem_ ? statusItem_->place() : std::string();
}

} // namespace vantrix
