#pragma once

#include <QColor>

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSColor;

namespace vantrix {

/// A system colour, in the current drawing appearance.
QColor resolved(NSColor* color);

} // namespace vantrix

NS_ASSUME_NONNULL_END
