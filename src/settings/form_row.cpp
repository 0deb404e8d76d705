#include "settings/form_row.h"

#include <algorithm>
#include <cmath>

#include <QEvent>
#include <QStyle>

#include "settings/controls/drawing.h"
#include "views/focus_ring.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int gap = 12;
constexpr int markGap = 8;
constexpr double leastHeight = 32.0;
constexpr double verticalPadding = 6.0;
constexpr int stackedGap = 4;

int rounded(double length) {
    return static_cast<int>(std::lround(length));
}

int centred(int room, int length) {
    return (room - length) / 2;
}

} // namespace

FormRow::FormRow(const Theme& theme, const Content& content)
    : View(theme),
      caption_(new TextLabel(theme, {.points = bodyPoints, .color = content.color, .wraps = true}, content.caption)),
      control_(content.control), mark_(content.mark) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    for (QWidget* child : {mark_, static_cast<QWidget*>(caption_), control_})
        if (child)
            child->setParent(this);
}

FormRow::Plan FormRow::plan(int width) const {
    const int padding = rounded(theme().scaled(verticalPadding));
    const int usual = rounded(theme().scaled(leastHeight));
    const QSize mark = mark_ ? mark_->sizeHint() : QSize();
    const QSize control = control_->sizeHint();
    const int start = sidePadding + (mark_ ? mark.width() + markGap : 0);
    const int end = width - sidePadding + focusMargin; // the ring may reach into the padding
    const int room = end - focusMargin - start;
    const int roomBeside = end - control.width() - gap - start;
    const int least = rounded(widestWord(theme().font(bodyPoints), caption_->text()));
    const int natural = caption_->sizeHint().width() + 1;
    const bool beside = roomBeside >= std::max(least, std::min(natural, room * 2 / 5));

    const int captionWidth = beside ? roomBeside : room;
    const int captionHeight = caption_->heightForWidth(captionWidth);
    const int textHeight = std::max(captionHeight, mark.height());
    int line = std::max(textHeight + 2 * padding, beside ? std::max(control.height() + 2, usual) : usual);
    if (beside)
        line += (line - control.height()) % 2; // or the middle of the control would be half a point higher
    const int controlWidth = std::min(control.width(), end - sidePadding + focusMargin);
    const int controlTop =
        beside ? centred(line, control.height()) : centred(line, textHeight) + textHeight + stackedGap;
    return {.mark = {QPoint(sidePadding, centred(line, mark.height())), mark},
            .caption = beside ? QRect(start, 0, captionWidth, line)
                              : QRect(start, centred(line, captionHeight), captionWidth, captionHeight),
            .control = {end - controlWidth, controlTop, controlWidth, control.height()},
            .height = beside ? line : controlTop + control.height() + padding - focusMargin};
}

void FormRow::place() {
    const Plan plan = this->plan(width());
    const auto visual = [this](const QRect& place) { return QStyle::visualRect(layoutDirection(), rect(), place); };
    if (mark_)
        mark_->setGeometry(visual(plan.mark));
    caption_->setGeometry(visual(plan.caption));
    control_->setGeometry(visual(plan.control));
}

QSize FormRow::sizeHint() const {
    const int width = 2 * sidePadding + caption_->sizeHint().width() + gap + control_->sizeHint().width();
    return {width, plan(width).height};
}

QSize FormRow::minimumSizeHint() const {
    return {2 * sidePadding + control_->minimumSizeHint().width(), rounded(theme().scaled(leastHeight))};
}

int FormRow::heightForWidth(int width) const {
    return plan(width).height;
}

void FormRow::resizeEvent(QResizeEvent*) {
    place();
}

bool FormRow::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        place();
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        place();
    }
    return View::event(event);
}

} // namespace vantrix
