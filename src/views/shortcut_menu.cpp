#include "views/shortcut_menu.h"

#include <QKeyEvent>

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

} // namespace vantrix
