#pragma once

#include <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

#define APPKIT_EXTERN extern "C"
#define IBAction void

NS_ASSUME_NONNULL_END
