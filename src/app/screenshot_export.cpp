#include "app/screenshot_export.h"

#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <thread>

#include <QDir>
#include <QPainter>

#include "app/export_log.h"
#include "app/offscreen_window.h"
#include "menubar/menu_bar_renderer.h"
#include "menubar/preferences.h"
#include "monitor/system_monitor.h"
#include "platform/appearance.h"
#include "platform/login_item.h"
#include "popover/popover_view.h"
#include "samplers/processor_description.h"
#include "settings/settings_view.h"
#include "support/user_defaults.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr QSize popoverCanvas(PopoverView::contentWidth, 2000);
constexpr QSize rowPadding(12, 4);
constexpr int timeoutStatus = 2;

/// The user's settings; what this run changes is kept in memory only.
class OverlayStore final : public DefaultsStore {
  public:
    explicit OverlayStore(std::unique_ptr<DefaultsStore> stored) : stored_(std::move(stored)) {}

    QVariant value(const QString& key) const override {
        const auto own = own_.find(key);
        return own != own_.end() ? *own : stored_->value(key);
    }
    void setValue(const QString& key, const QVariant& value) override { own_[key] = value; }

  private:
    std::unique_ptr<DefaultsStore> stored_;
    QHash<QString, QVariant> own_;
};

/// The appearance of a picture; without animations, which a picture would catch halfway.
class FixedAppearance final : public AppearanceSource {
  public:
    explicit FixedAppearance(bool dark) : dark_(dark) {}
    Appearance appearance() const override { return {dark_, std::nullopt, true}; }

  private:
    bool dark_;
};

/// The switch is on in the pictures.
class DemoLoginItem final : public LoginItem {
  public:
    bool isEnabled() const override { return true; }
    void setEnabled(bool) override {}
};

/// Describes the machine of the demo readings.
class DemoInformation final : public SystemInformation {
  public:
    std::optional<std::int64_t> integer(std::string_view name) const override {
        if (name == "hw.logicalcpu")
            return 10;
        if (name == "hw.perflevel0.logicalcpu")
            return 8;
        return name == "hw.perflevel1.logicalcpu" ? std::optional<std::int64_t>(2) : std::nullopt;
    }
    std::optional<std::string> text(std::string_view) const override { return "Example Processor 10"; }
    int processorCount() const override { return 10; }
};

/// Ends the process when an export hangs.
class Watchdog {
  public:
    explicit Watchdog(ExportLog& log) : thread_([this, &log] { watch(log); }) {}
    ~Watchdog() {
        {
            const std::lock_guard lock(mutex_);
            finished_ = true;
        }
        condition_.notify_one();
        thread_.join();
    }
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

  private:
    void watch(ExportLog& log) {
        std::unique_lock lock(mutex_);
        if (condition_.wait_for(lock, std::chrono::seconds(90), [this] { return finished_; }))
            return;
        log.log(QStringLiteral("TIMEOUT: nessun risultato dopo 90 s"));
        std::_Exit(timeoutStatus);
    }

    std::mutex mutex_;
    std::condition_variable condition_;
    bool finished_ = false;
    std::thread thread_; // last: it uses what stands above
};

class Export {
  public:
    Export(ExportLog& log, SamplingSources sources, UserDefaults& defaults)
        : log_(log), defaults_(defaults), processor_(information_),
          monitor_(std::move(sources), defaults, std::make_unique<QtRepeatingTimer>(),
                   std::make_unique<ThreadTaskRunner>()) {}

    void run() {
        log_.log(QStringLiteral("creo il monitor"));
        monitor_.loadDemo();
        log_.log(QStringLiteral("dati di esempio caricati"));
        defaults_.set(preference_key::alertsEnabled, true); // or all of their page would be disabled
        drawAll(true);
        drawAll(false);
    }

  private:
    void drawAll(bool dark) {
        const FixedAppearance source(dark);
        const Theme theme(source);
        const QString appearance = dark ? QStringLiteral("dark") : QStringLiteral("light");
        drawPopover(theme, appearance);
        log_.log(appearance + QStringLiteral(": barra dei menu"));
        for (const auto& style : menuBarStyles)
            drawRow(theme, style.value,
                    QStringLiteral("menubar-%1-%2").arg(QString::fromUtf8(style.rawValue), appearance));
        for (const auto& tab : settingsTabs)
            drawSettings(theme, QString::fromUtf8(tab.rawValue), appearance);
    }

    void drawPopover(const Theme& theme, const QString& appearance) {
        log_.log(appearance + QStringLiteral(": popover"));
        CardContext context{theme, defaults_, processor_};
        context.watchPrograms = [this] { return monitor_.watchPrograms(); };
        auto view = std::make_unique<PopoverView>(monitor_, context, [] { return std::vector<StatusMenuEntry>(); });
        const auto image = OffscreenWindow(theme, std::move(view), popoverCanvas).picture();
        if (!image)
            return log_.lose(appearance + QStringLiteral(": popover NON disegnato"));
        log_.log(appearance + QStringLiteral(": popover disegnato, ritaglio"));
        log_.save(QStringLiteral("popover-") + appearance, croppedBelowContent(*image));
    }

    void drawRow(const Theme& theme, MenuBarStyle style, const QString& name) {
        const auto items = menuBarItems(moduleOrder(defaults_), monitor_.readings(), defaults_);
        const QSize size = MenuBarRenderer::size(items, style).toSize() + 2 * rowPadding;
        QImage image = makePicture(size, theme.colors().window);
        if (image.isNull())
            return log_.lose(name + QStringLiteral(" NON disegnato"));
        QPainter painter(&image);
        painter.translate(rowPadding.width(), rowPadding.height());
        const auto palette = theme.isDark() ? MenuBarPalette::onDark() : MenuBarPalette::onLight();
        MenuBarRenderer::paint(painter, items, style, true, palette);
        painter.end();
        log_.save(name, image);
    }

    void drawSettings(const Theme& theme, const QString& tab, const QString& appearance) {
        defaults_.set(preference_key::settingsTab, tab);
        log_.log(appearance + QStringLiteral(": impostazioni ") + tab);
        auto view = std::make_unique<SettingsView>(SettingsParts{theme, defaults_, monitor_, loginItem_, [](auto) {}});
        const auto image = OffscreenWindow(theme, std::move(view), SettingsView::contentSize).picture();
        const QString name = QStringLiteral("settings-%1-%2").arg(tab, appearance);
        if (image)
            log_.save(name, *image);
        else
            log_.lose(name + QStringLiteral(" NON disegnato"));
    }

    ExportLog& log_;
    UserDefaults& defaults_;
    DemoInformation information_;
    ProcessorDescription processor_;
    SystemMonitor monitor_;
    DemoLoginItem loginItem_;
};

} // namespace

int exportScreenshots(const QString& folder, const std::function<SamplingSources()>& makeSources,
                      const std::function<std::unique_ptr<DefaultsStore>()>& makeStore) {
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "vantrix: cannot create the folder %s\n", qUtf8Printable(folder));
        return EXIT_FAILURE;
    }
    ExportLog log(folder);
    log.log(QStringLiteral("avvio, cartella: ") + folder);
    const Watchdog watchdog(log); // before anything that may hang
    UserDefaults defaults(std::make_unique<OverlayStore>(makeStore()));
    registerPreferences(defaults);
    Export(log, makeSources(), defaults).run();
    log.log(QStringLiteral("finito"));
    return log.hasLostPictures() ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace vantrix
