#include "macos/services/popover_content.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include "popover/popover_place.h"
#include "popover/popover_view.h"
#include "views/theme.h"

namespace vantrix {

QSize popoverContentSize(double visibleHeight) {
    return {PopoverView::contentWidth, popoverHeight(visibleHeight)};
}

// A sub-window: the toolkit makes a native view for it and no native window.
PopoverContent::PopoverContent(const Theme& theme, std::unique_ptr<QWidget> view, std::function<void()> dismiss)
    : QWidget(nullptr, Qt::Window | Qt::SubWindow), dismiss_(std::move(dismiss)) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(QStringLiteral("Vantrix"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetNoConstraint); // the screen decides how large the popover is
    layout->addWidget(view.release());
    setPalette(theme.palette());
    connect(&theme, &Theme::changed, this, [this, &theme] { setPalette(theme.palette()); });
}

void PopoverContent::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        return dismiss_();
    QWidget::keyPressEvent(event);
}

} // namespace vantrix
