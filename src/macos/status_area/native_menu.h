#pragma once

#include <vector>

#include "platform/status_item.h"

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSMenu;

namespace vantrix {

/// A menu of the system's. It keeps what it needs of the entries.
NSMenu* makeNativeMenu(const std::vector<StatusMenuEntry>& entries);

} // namespace vantrix

NS_ASSUME_NONNULL_END
