#include <QPalette>
#include <QWidget>

#include "linux/status_area/status_item_on_bus.h"
#include "linux/status_area/xcb_support.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

/// A host with a panel of the test's own process, as the window manager tells of it.
class HostPanelOnScreen : public StatusItemOnBus {
  protected:
    HostPanelOnScreen() {
        surroundings.lookInterval = std::chrono::milliseconds(0);
        dock.setWindowFlags(Qt::X11BypassWindowManagerHint | Qt::FramelessWindowHint);
        cover.setWindowFlags(dock.windowFlags());
        const auto window = static_cast<xcb_window_t>(dock.winId());
        xcb_connection_t* connection = xcbConnection();
        xcbMakeDock(connection, window);
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, xcbScreen(connection)->root,
                            xcbAtom(connection, "_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, 32, 1, &window);
    }

    static void put(QWidget& widget, const QRect& place, const QColor& color) {
        widget.setGeometry(place);
        widget.setPalette(QPalette(color));
        widget.show();
        widget.raise();
    }

    struct Seen {
        bool light; ///< the letters
        bool haloed;
        bool operator==(const Seen&) const = default;
    };

    /// What the newest item shows after a pass with another value; absent while it is not there.
    std::optional<Seen> pass() {
        item->show(rowOf(++value));
        const NotifierPixmaps pictures = icon(host.properties(host.items.back()));
        if (pictures.isEmpty())
            return std::nullopt;
        const NotifierPixmap& picture = pictures.back();
        int densest = 0;
        int clear = 0;
        Seen seen{};
        for (qsizetype i = 0; i < picture.bytes.size(); i += 4) {
            const int alpha = static_cast<uchar>(picture.bytes[i]);
            clear += alpha == 0 ? 1 : 0;
            if (alpha > std::exchange(densest, std::max(densest, alpha)))
                seen.light = static_cast<uchar>(picture.bytes[i + 1]) > 128;
        }
        seen.haloed = clear * 2 < picture.width * picture.height;
        return seen;
    }

    bool becomes(Seen seen) {
        return spinUntil([&] { return pass() == seen; });
    }

    QWidget dock;
    QWidget cover;
    int value = 10;
};

TEST_F(HostPanelOnScreen, TheRowIsMadeForItsColourAndItsShape) {
    NotifierHost mate = notifierHostNamed("mate-panel");
    mate.pace = std::chrono::milliseconds(0);
    startOn(mate);
    EXPECT_EQ(pass(), (Seen{.light = false, .haloed = true})) << "nothing is known of the panel";

    put(dock, {100, 0, 600, 30}, QColor(20, 20, 20));
    EXPECT_TRUE(becomes({.light = true, .haloed = false}));
    put(dock, {100, 0, 600, 30}, QColor(240, 240, 240));
    EXPECT_TRUE(becomes({.light = false, .haloed = false}));

    put(cover, {0, 0, 1280, 1024}, Qt::black);
    ASSERT_TRUE(spinUntil([] { return xcbScreenColor(xcbConnection(), {400, 10, 4, 4}) == QColor(Qt::black); }));
    EXPECT_EQ(pass(), (Seen{.light = false, .haloed = false})) << "in the colours of what covers the panel";
    cover.hide();

    put(dock, {0, 0, 30, 600}, QColor(240, 240, 240));
    const auto ids = [&] {
        pass();
        QStringList all;
        for (const Item& at : std::vector(host.items)) // more may come meanwhile
            all << host.property(at, u"Id"_s).toString();
        return all.mid(1); // the first was the whole row, and is gone
    };
    EXPECT_TRUE(spinUntil([&] { return ids() == QStringList{u"vantrix-1-cpu"_s, u"vantrix-2-memory"_s}; }));
}

} // namespace
} // namespace vantrix
