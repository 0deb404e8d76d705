#pragma once

#include <memory>
#include <vector>

#include <QMenu>

#include "platform/status_item.h"

namespace vantrix {

/// A menu of `entries`. Unlike the toolkit's own, it obeys the entries' shortcuts while it is open.
std::unique_ptr<QMenu> makeMenu(const std::vector<StatusMenuEntry>& entries);

} // namespace vantrix
