#include "app/status_menu.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

#include "popover/popover_host.h"

namespace vantrix {
namespace {

class ShortcutMenu final : public QMenu {
  protected:
    void keyPressEvent(QKeyEvent* event) override {
        for (QAction* action : actions()) {
            if (action->shortcut().isEmpty() || action->shortcut() != QKeySequence(event->keyCombination()))
                continue;
            close();
            action->trigger();
            return;
        }
        QMenu::keyPressEvent(event);
    }
};

} // namespace

std::unique_ptr<QMenu> makeMenu(const std::vector<StatusMenuEntry>& entries) {
    auto menu = std::make_unique<ShortcutMenu>();
    for (const StatusMenuEntry& entry : entries) {
        if (entry.title.isEmpty()) {
            menu->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(entry.title);
        action->setShortcut(entry.shortcut);
        action->setShortcutVisibleInContextMenu(true);
        QObject::connect(action, &QAction::triggered, menu.get(), entry.action);
    }
    return menu;
}

QPoint menuPlace(const QSize& size, const QRect& anchor) {
    const QScreen* screen = QGuiApplication::screenAt(anchor.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? popoverPlace(size, anchor, screen->geometry()).topLeft() : anchor.bottomLeft();
}

} // namespace vantrix
