#include "linux/status_area/status_notifier.h"

#include <QCursor>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>

#include "linux/status_area/click_anchor.h"
#include "linux/status_area/halo.h"
#include "linux/status_area/panel_palette.h"
#include "linux/status_area/plasma_panel.h"
#include "platform/appearance.h"
#include "support/localization.h"

namespace vantrix {

namespace {

const QString firstItemPath = QStringLiteral("/StatusNotifierItem");
const QString menuPath = QStringLiteral("/StatusNotifierItem/Menu");

// Tooltips are looked at rarely, so hosts that fetch them separately need not do so on every pass.
constexpr int toolTipPaceFactor = 3;
constexpr int panelPaceFactor = 3; // a look at another program's windows takes a dozen round trips

constexpr auto toolTipPatience = std::chrono::milliseconds(150); // until a host has read the one that it was told of
constexpr double haloedCaption = 0.75;                           // opacity; its ground is less even than a panel's

constexpr auto registrationPatience = std::chrono::milliseconds(300);

QString nextServiceName() {
    static int count = 0;
    return QStringLiteral("org.kde.StatusNotifierItem-%1-%2").arg(QCoreApplication::applicationPid()).arg(++count);
}

void registerWithWatcher(const QDBusConnection& bus, const QString& service) {
    auto message = QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.StatusNotifierWatcher"), QStringLiteral("/StatusNotifierWatcher"),
        QStringLiteral("org.kde.StatusNotifierWatcher"), QStringLiteral("RegisterStatusNotifierItem"));
    message << service;
    message.setAutoStartService(false);
    bus.send(message);
}

/// The colour of panels on which such text is at home, so that the halo is hardly seen on them.
QColor haloAround(const QColor& text) {
    return text.lightness() > 127 ? QColor(32, 33, 36) : QColor(250, 250, 250);
}

bool onX11() {
    return QGuiApplication::platformName() == QStringLiteral("xcb");
}

} // namespace

StatusNotifier::StatusNotifier(std::optional<QString> busAddress, const NotifierHost& host,
                               const StatusItem::Handlers& handlers, const AppearanceSource& appearance,
                               PanelText panelText, std::chrono::milliseconds lookInterval)
    : busAddress_(std::move(busAddress)), host_(host), handlers_(handlers), appearance_(appearance),
      panelText_(std::move(panelText)), panel_(lookInterval * panelPaceFactor), rowPixmaps_(host.premultiplied),
      paced_(host.pace, [this] { publish(); }),
      pacedToolTips_(host.pace * toolTipPaceFactor, [this] { announceToolTips(); }),
      lookInterval_(lookInterval * panelPaceFactor) {
    panel_.addReader(host_.process);
    lookAtConfiguration();
    connect(&appearance_, &AppearanceSource::changed, this, [this] { panel_.lookSoon(); });
    registration_.setSingleShot(true);
    connect(&registration_, &QTimer::timeout, this, &StatusNotifier::registerNext);
    titleTimer_.setSingleShot(true);
    connect(&titleTimer_, &QTimer::timeout, this, [this] {
        hasTitle_ = false;
        publish();
    });
}

void StatusNotifier::show(const StatusRow& row) {
    row_ = row;
    if (ids_ != wantedIds()) {
        ids_ = wantedIds();
        connectItems();
    } else if (!objects_.empty()) {
        paced_.request();
    }
}

/// Without a tool tip such hosts show the title, and they take an empty title for none only once they know that there
/// is no tool tip.
void StatusNotifier::popoverShown(bool shown) {
    if (!host_.coversPopover || !published_)
        return;
    hasToolTip_ = !shown;
    hasTitle_ = true;
    publish();
    pacedToolTips_.runNow();
    shown ? titleTimer_.start(toolTipPatience) : titleTimer_.stop();
}

/// Panels may change their colours and their places without a word.
void StatusNotifier::lookAround() {
    const bool isConfiguredAnew = lookAtConfiguration();
    if (panel_.look() || isConfiguredAnew)
        show(row_);
}

/// Files are read as rarely as a panel is looked at, and only where none can be. True when they say something else.
bool StatusNotifier::lookAtConfiguration() {
    const bool isDue = !sinceConfigured_.isValid() || sinceConfigured_.hasExpired(lookInterval_.count());
    if (!host_.isPlasma || panel_.ground() || !isDue)
        return false;
    sinceConfigured_.start();
    const auto color = plasmaPanelColor();
    return std::exchange(configured_, color) != color;
}

/// On a panel that is higher than wide, a wide picture would be squeezed.
NotifierLayout StatusNotifier::layout() const {
    const bool squeezed = host_.layout == NotifierLayout::wide && panel_.isUpright();
    return squeezed ? NotifierLayout::tiles : host_.layout;
}

/// The identifiers of the items, by which hosts remember what a user has hidden or moved: a module keeps its own
/// wherever it stands in the row.
QStringList StatusNotifier::wantedIds() const {
    if (single())
        return {QStringLiteral("vantrix")};
    QStringList ids;
    for (std::size_t i = 0; i < row_.tileCount(); ++i) {
        const QString number = host_.sortsIdentifiers ? QString::number(i + 1) + QLatin1Char('-') : QString();
        ids << QStringLiteral("vantrix-") + number + row_.tileName(i);
    }
    return ids;
}

/// A new set of items needs a new connection.
void StatusNotifier::connectItems() {
    dropItems();
    link_ = std::make_unique<BusLink>(busAddress_);
    connect(link_.get(), &BusLink::disconnected, this, &StatusNotifier::dropItems);
    link_->whenConnected(this, [this](QDBusConnection& bus) {
        dropItems();
        makeItems(bus);
        paced_.runNow();
        registerFirst();
    });
}

void StatusNotifier::dropItems() {
    registration_.stop();
    staleToolTips_.clear();
    published_.reset();
    objects_.clear();
    menu_.reset();
}

void StatusNotifier::makeItems(QDBusConnection& bus) {
    const auto count = static_cast<std::size_t>(ids_.size());
    menu_ = std::make_unique<DBusMenu>(
        bus, menuPath,
        DBusMenu::Source{[this] { return menuEntries(); }, [this] { handlers_.menuWillOpen(); }, host_.hasQtKeys});
    for (std::size_t i = 0; i < count; ++i) {
        QString path = firstItemPath;
        if (!objects_.empty())
            path += QLatin1Char('/') + QString::number(objects_.size() + 1);
        objects_.push_back(std::make_unique<NotifierObject>(
            bus, path, ids_[static_cast<qsizetype>(tileOf(i))], menuPath,
            [this, i](const StatusClick& click, QPoint point) { clicked(i, click, point); }));
        connect(objects_.back().get(), &NotifierObject::asked, this,
                [this, number = objects_.size()](const QString& reader) {
                    if (number == registered_ && number < objects_.size())
                        registerNext();
                    noteReader(reader);
                });
    }
}

/// Whoever reads the items may be the one that shows them.
void StatusNotifier::noteReader(const QString& name) {
    constexpr std::size_t mostReaders = 64; // of whom one shows the items
    if (readers_.size() >= mostReaders)
        readers_.clear();
    QDBusConnection* bus = link_->bus(); // none when it went after the question had come
    if (!HostPanel::canLook() || bus == nullptr || !readers_.insert(name).second)
        return;
    auto question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetConnectionUnixProcessID"));
    auto* watcher = new QDBusPendingCallWatcher(bus->asyncCall(question << name), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        const QDBusPendingReply<uint> process = *done;
        if (process.isValid() && panel_.addReader(process.value()) && !registration_.isActive())
            settle();
    });
}

/// The first item is registered by a bus name, as the protocol asks; a name stands for one item only, so the others
/// are registered by path. The bus keeps messages in order: by the time the watcher hears of the name, it is ours.
void StatusNotifier::registerFirst() {
    QDBusConnection& bus = *link_->bus();
    const QString service = nextServiceName();
    auto request =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
    request << service << 4U; // fail rather than queue
    bus.send(request);
    registerWithWatcher(bus, service);
    registered_ = 1;
    registration_.start(registrationPatience);
}

/// Hosts order items by when they finish reading them, so each is registered once the one before it has been read.
void StatusNotifier::registerNext() {
    if (registered_ >= objects_.size())
        return settle();
    registerWithWatcher(*link_->bus(), objects_[registered_]->path());
    ++registered_;
    registration_.start(registrationPatience);
}

/// What was sent to begin with may have been a guess. Mended only once all items have been read, because hosts drop one
/// that changes meanwhile.
void StatusNotifier::settle() {
    if (ids_ != wantedIds())
        return show(row_);
    if (published_ && publishedLook_ != look())
        paced_.runNow();
    // GNOME draws a label only once it has changed, when it was busy while it read the item.
    for (const auto& object : objects_)
        if (object->content().label)
            object->announce(QStringLiteral("XAyatanaNewLabel"),
                             {*object->content().label, object->content().labelGuide});
}

/// The row's tile that object `index` shows; objects are in the order of their registration.
std::size_t StatusNotifier::tileOf(std::size_t index) const {
    const auto count = static_cast<std::size_t>(ids_.size());
    return host_.newestFirst ? count - 1 - index : index;
}

void StatusNotifier::publish() {
    const Look now = look();
    for (std::size_t i = 0; i < objects_.size(); ++i)
        update(i, now);
    published_ = row_;
    publishedLook_ = now;
}

StatusNotifier::Look StatusNotifier::look() const {
    const std::optional<QColor> ground = panel_.ground() ? panel_.ground() : configured_;
    const std::optional<QColor> text = panelText_();
    if (ground)
        return {paletteOn(*ground, text)};
    if (text)
        return {paletteForText(*text)};
    Look guess{paletteForPanel(host_.darkPanel || appearance_.appearance().dark), true};
    guess.palette.captionOpacity = haloedCaption;
    return guess;
}

void StatusNotifier::update(std::size_t index, const Look& look) {
    NotifierObject& object = *objects_[index];
    const NotifierContent before = object.content();
    const NotifierContent content = contentOf(index, look);
    if (content == before)
        return;
    object.set(content);
    if (!published_)
        return; // not registered yet, so nobody listens
    const bool newIcon = content.icon != before.icon;
    if (newIcon)
        object.announce(QStringLiteral("NewIcon"));
    if (content.title.isEmpty() != before.title.isEmpty())
        object.announce(QStringLiteral("NewTitle"));
    if (content.label != before.label)
        object.announce(QStringLiteral("XAyatanaNewLabel"), {*content.label, content.labelGuide});
    // Those that fetch everything already have it.
    if (content.toolTip == before.toolTip || (newIcon && host_.fetchesAll))
        return;
    staleToolTips_.insert(&object);
    pacedToolTips_.request();
}

NotifierContent StatusNotifier::contentOf(std::size_t index, const Look& look) {
    const std::size_t tile = tileOf(index);
    NotifierContent content;
    content.icon = samePixmaps(tile, look) ? objects_[index]->content().icon : pixmapsOf(tile, look);
    content.title = hasTitle_ ? titleOf(tile) : QString();
    // Only the first tile has the text of the whole row: if all had, all would have to be sent whenever one changes.
    // Hosts that show labels show no tool tips.
    if (layout() == NotifierLayout::labelled) {
        content.label = row_.label();
        content.labelGuide = row_.labelGuide();
    } else if (hasToolTip_) {
        content.toolTip = toolTipOf(tile);
    }
    return content;
}

/// Plasma shows items in the order of their categories and, within one, of their titles, however they registered. With
/// a number before what changes, titles are in the order of the row, and no other program's item gets between them.
QString StatusNotifier::titleOf(std::size_t tile) const {
    if (ids_.size() == 1)
        return row_.text();
    return QStringLiteral("Vantrix %1: %2").arg(QString::number(tile + 1), row_.tileText(tile));
}

/// The first tile's is that of the whole row; the others tell of their own module alone, so that few change at once.
QString StatusNotifier::toolTipOf(std::size_t tile) const {
    QString details = handlers_.details(tile == 0 ? std::nullopt : row_.tileModule(tile));
    if (!details.isEmpty())
        return details;
    return tile == 0 ? row_.text() : row_.tileText(tile);
}

NotifierPixmaps StatusNotifier::pixmapsOf(std::size_t tile, const Look& look) {
    const auto halo = look.haloed ? std::optional(haloAround(look.palette.label)) : std::nullopt;
    if (layout() == NotifierLayout::wide)
        return rowPixmaps_.draw(row_, look.palette, halo);
    NotifierPixmaps pixmaps;
    for (const int scale : {1, 2}) {
        const int side = 22 * scale;
        const bool labelled = layout() == NotifierLayout::labelled; // the label says the rest
        const QImage drawn = labelled ? gaugeTile(look.palette, side) : row_.tile(tile, look.palette, side);
        pixmaps << toNotifierPixmap(halo ? withHalo(drawn, *halo, scale) : drawn, host_.premultiplied);
    }
    return pixmaps;
}

/// True when the pictures that the host has are still right.
bool StatusNotifier::samePixmaps(std::size_t tile, const Look& look) const {
    if (!published_ || publishedLook_ != look)
        return false;
    switch (layout()) {
    case NotifierLayout::wide:
        return published_->looksLike(row_);
    case NotifierLayout::labelled:
        return true;
    case NotifierLayout::tiles:
        return published_->sameTile(row_, tile);
    }
    return false;
}

void StatusNotifier::announceToolTips() {
    for (NotifierObject* object : std::exchange(staleToolTips_, {}))
        object->announce(QStringLiteral("NewToolTip"));
}

void StatusNotifier::clicked(std::size_t index, StatusClick click, QPoint point) {
    clickRect_.reset();
    if (onX11())
        point = fromNativePoint(point);
    if (host_.tellsClickPoint && isOnScreenEdge(point))
        clickRect_ = panelRectAt(point);
    // In a Wayland session the pointer is unknown while it is over a panel.
    else if (onX11() && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && isOnScreenEdge(QCursor::pos()))
        clickRect_ = panelRectAt(QCursor::pos());
    if (!single())
        click.module = row_.tileModule(tileOf(index));
    handlers_.clicked(click);
}

QRect StatusNotifier::anchor() const {
    const QRect item = clickRect_.value_or(panelCorner(single() ? row_.size().width() : 22));
    return panel_.place().isEmpty() ? item : acrossPanel(item, fromNativeRect(panel_.place()));
}

std::vector<StatusMenuEntry> StatusNotifier::menuEntries() const {
    auto entries = handlers_.menu();
    if (!host_.clickOpensMenu)
        return entries;
    const auto open = [this] { handlers_.clicked({}); };
    entries.insert(entries.begin(), {{QString::fromStdString(localized("Open Vantrix")), {}, open}, {{}, {}, {}}});
    return entries;
}

} // namespace vantrix
