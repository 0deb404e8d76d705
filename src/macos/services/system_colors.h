#pragma once

#include <QColor>

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSColor;

namespace vantrix {

/// What a colour of the system is in the appearance that is drawn for at present.
QColor resolved(NSColor* color);

} // namespace vantrix

NS_ASSUME_NONNULL_END
