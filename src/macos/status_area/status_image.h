#pragma once

#include "platform/status_item.h"

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSImage;
@class NSView;

namespace vantrix {

/// The image that `button` shows for the content. It is redrawn whenever the button is, in the colours of the button's
/// appearance at that moment; without items it is the gauge, which the system colours.
NSImage* statusImage(const StatusContent& content, NSView* button);

} // namespace vantrix

NS_ASSUME_NONNULL_END
