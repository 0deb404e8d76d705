#include "views/text_measure.h"

namespace vantrix {
namespace {

constexpr qsizetype mostWidths = 512; // some texts change; start over rather than grow

} // namespace

double TextMeasure::width(const QString& text) const {
    if (const auto known = widths_.constFind(text); known != widths_.constEnd())
        return *known;
    if (widths_.size() >= mostWidths)
        widths_.clear();
    return *widths_.insert(text, metrics_.horizontalAdvance(text));
}

} // namespace vantrix
