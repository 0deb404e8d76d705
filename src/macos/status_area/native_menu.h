#pragma once

#include <vector>

#include "platform/status_item.h"

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSMenu;

namespace vantrix {

/// A native menu. It copies what it needs from the entries.
NSMenu* makeNativeMenu(const std::vector<StatusMenuEntry>& entries);

} // namespace vantrix

NS_ASSUME_NONNULL_END
