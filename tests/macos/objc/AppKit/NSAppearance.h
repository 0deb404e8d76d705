#pragma once

#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSAppearanceName NS_TYPED_EXTENSIBLE_ENUM;

APPKIT_EXTERN NSAppearanceName const NSAppearanceNameAqua;
APPKIT_EXTERN NSAppearanceName const NSAppearanceNameDarkAqua API_AVAILABLE(macos(10.14));

API_AVAILABLE(macos(10.9))
@interface NSAppearance : NSObject

@property(class, strong, readonly) NSAppearance* currentDrawingAppearance API_AVAILABLE(macos(11.0));

+ (nullable NSAppearance*)appearanceNamed:(NSAppearanceName)name;
- (void)performAsCurrentDrawingAppearance:(void(NS_NOESCAPE ^)(void))block API_AVAILABLE(macos(11.0));
- (nullable NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray<NSAppearanceName>*)appearances
    API_AVAILABLE(macos(10.14));

@end

@protocol NSAppearanceCustomization <NSObject>

@property(nullable, strong) NSAppearance* appearance API_AVAILABLE(macos(10.9));
@property(readonly, strong) NSAppearance* effectiveAppearance API_AVAILABLE(macos(10.9));

@end

NS_ASSUME_NONNULL_END
