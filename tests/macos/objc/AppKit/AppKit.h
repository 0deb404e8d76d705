#pragma once

#include <CoreGraphics/CoreGraphics.h>

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSPopover, NSScreen, NSWindow;

// Appearance and colours.

typedef NSString* NSAppearanceName NS_TYPED_EXTENSIBLE_ENUM;
extern "C" NSAppearanceName const NSAppearanceNameAqua;
extern "C" NSAppearanceName const NSAppearanceNameDarkAqua;

@interface NSAppearance : NSObject
@property(class, strong, readonly) NSAppearance* currentDrawingAppearance;
- (void)performAsCurrentDrawingAppearance:(void(NS_NOESCAPE ^)(void))block;
- (nullable NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray<NSAppearanceName>*)appearances;
@end

@protocol NSAppearanceCustomization <NSObject>
@property(nullable, strong) NSAppearance* appearance;
@property(readonly, strong) NSAppearance* effectiveAppearance;
@end

@interface NSColorSpace : NSObject
@property(class, strong, readonly) NSColorSpace* sRGBColorSpace;
@end

@interface NSColor : NSObject
@property(class, strong, readonly) NSColor* labelColor;
@property(class, strong, readonly) NSColor* controlAccentColor;
@property(class, strong, readonly) NSColor* systemOrangeColor;
@property(class, strong, readonly) NSColor* systemRedColor;
@property(class, strong, readonly) NSColor* systemGreenColor;
@property(class, strong, readonly) NSColor* systemPurpleColor;
- (nullable NSColor*)colorUsingColorSpace:(NSColorSpace*)space;
- (void)getRed:(nullable CGFloat*)red
         green:(nullable CGFloat*)green
          blue:(nullable CGFloat*)blue
         alpha:(nullable CGFloat*)alpha;
@end

extern "C" NSNotificationName const NSSystemColorsDidChangeNotification;

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
@property(readonly, strong) NSNotificationCenter* notificationCenter;
@property(readonly) BOOL accessibilityDisplayShouldReduceMotion;
- (BOOL)openURL:(NSURL*)url;
@end

extern "C" NSNotificationName const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification;
extern "C" NSNotificationName const NSWorkspaceScreensDidSleepNotification;
extern "C" NSNotificationName const NSWorkspaceScreensDidWakeNotification;
extern "C" NSNotificationName const NSWorkspaceSessionDidBecomeActiveNotification;
extern "C" NSNotificationName const NSWorkspaceSessionDidResignActiveNotification;

// Pictures.

@interface NSGraphicsContext : NSObject
@property(class, nullable, strong) NSGraphicsContext* currentContext;
@property(readonly) CGContextRef CGContext NS_RETURNS_INNER_POINTER;
+ (NSGraphicsContext*)graphicsContextWithCGContext:(CGContextRef)graphicsPort flipped:(BOOL)initialFlippedState;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
@end

typedef CGFloat NSFontWeight NS_TYPED_EXTENSIBLE_ENUM;
extern "C" const NSFontWeight NSFontWeightMedium;

@interface NSImageSymbolConfiguration : NSObject <NSCopying>
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight;
@end

typedef NS_ENUM(NSUInteger, NSImageCacheMode) { NSImageCacheNever = 3 };

@interface NSImage : NSObject <NSCopying>
@property NSSize size;
@property NSImageCacheMode cacheMode;
@property(nullable, copy) NSString* accessibilityDescription;
// The setter alone: the property's name is a keyword here.
- (void)setTemplate:(BOOL)isTemplate;
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description;
+ (instancetype)imageWithSize:(NSSize)size
                      flipped:(BOOL)drawingHandlerShouldBeCalledWithFlippedContext
               drawingHandler:(BOOL (^)(NSRect dstRect))drawingHandler;
- (nullable NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration;
- (void)drawInRect:(NSRect)rect;
@end

// The application and its events.

typedef NS_ENUM(NSUInteger, NSEventType) {
    NSEventTypeLeftMouseDown = 1,
    NSEventTypeLeftMouseUp = 2,
    NSEventTypeRightMouseUp = 4,
    NSEventTypeOtherMouseUp = 26,
};
typedef NS_OPTIONS(unsigned long long, NSEventMask) {
    NSEventMaskLeftMouseUp = 1ULL << NSEventTypeLeftMouseUp,
    NSEventMaskRightMouseUp = 1ULL << NSEventTypeRightMouseUp,
    NSEventMaskOtherMouseUp = 1ULL << NSEventTypeOtherMouseUp,
};
typedef NS_OPTIONS(NSUInteger, NSEventModifierFlags) { NSEventModifierFlagControl = 1 << 18 };

@interface NSEvent : NSObject <NSCopying>
@property(readonly) NSEventType type;
@property(readonly) NSEventModifierFlags modifierFlags;
@property(nullable, readonly, weak) NSWindow* window;
@property(readonly) NSInteger eventNumber; // of mouse events alone
@property(readonly) NSInteger buttonNumber;
@property(readonly) NSPoint locationInWindow;
+ (nullable id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask
                                            handler:(NSEvent* _Nullable (^)(NSEvent* event))block;
+ (void)removeMonitor:(id)eventMonitor;
@end

@interface NSResponder : NSObject
- (instancetype)init NS_DESIGNATED_INITIALIZER;
@end

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyAccessory = 1,
};

@interface NSApplication : NSResponder <NSAppearanceCustomization>
@property(nullable, readonly, strong) NSEvent* currentEvent;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (void)activateIgnoringOtherApps:(BOOL)flag;
@end

extern "C" __kindof NSApplication* _Null_unspecified NSApp;

// Views and windows.

@protocol NSAccessibility <NSObject>
@property(nullable, copy) NSString* accessibilityLabel;
@end

typedef NS_OPTIONS(NSUInteger, NSAutoresizingMaskOptions) {
    NSViewWidthSizable = 2,
    NSViewHeightSizable = 16,
};

@interface NSView : NSResponder <NSAppearanceCustomization, NSAccessibility>
@property(nullable, readonly, assign) NSWindow* window;
@property NSRect frame;
@property NSRect bounds;
@property NSAutoresizingMaskOptions autoresizingMask;
@property(nullable, copy) NSString* toolTip;
- (instancetype)initWithFrame:(NSRect)frameRect NS_DESIGNATED_INITIALIZER;
- (void)setFrameSize:(NSSize)newSize;
- (void)addSubview:(NSView*)view;
- (NSRect)convertRect:(NSRect)rect toView:(nullable NSView*)view;
- (NSPoint)convertPoint:(NSPoint)point fromView:(nullable NSView*)view;
@end

@interface NSControl : NSView
@property(nullable, weak) id target;
@property(nullable) SEL action;
- (NSInteger)sendActionOn:(NSEventMask)mask;
- (void)performClick:(nullable id)sender;
@end

typedef NS_ENUM(NSUInteger, NSCellImagePosition) { NSImageOnly = 1 };

@interface NSButton : NSControl
@property(nullable, strong) NSImage* image;
@property NSCellImagePosition imagePosition;
@end

@interface NSScreen : NSObject
@property(class, readonly, copy) NSArray<NSScreen*>* screens;
@property(class, nullable, readonly, strong) NSScreen* mainScreen;
@property(readonly) NSRect frame;
@property(readonly) NSRect visibleFrame;
@property(readonly) CGFloat backingScaleFactor;
@end

@interface NSWindow : NSResponder <NSAppearanceCustomization>
@property(nullable, readonly, strong) NSScreen* screen;
@property(readonly) CGFloat backingScaleFactor;
- (void)makeKeyWindow;
- (BOOL)makeFirstResponder:(nullable NSResponder*)responder;
- (NSRect)convertRectToScreen:(NSRect)rect;
@end

typedef NSString* NSNibName NS_TYPED_EXTENSIBLE_ENUM;

@interface NSViewController : NSResponder
@property(strong) NSView* view;
- (instancetype)initWithNibName:(nullable NSNibName)nibNameOrNil
                         bundle:(nullable NSBundle*)nibBundleOrNil NS_DESIGNATED_INITIALIZER;
@end

// The status item, its menu and its popover.

@interface NSMenuItem : NSObject <NSCopying>
@property(nullable, weak) id target;
@property(nullable, strong) id representedObject;
+ (NSMenuItem*)separatorItem;
- (instancetype)initWithTitle:(NSString*)string
                       action:(nullable SEL)selector
                keyEquivalent:(NSString*)charCode NS_DESIGNATED_INITIALIZER;
@end

@interface NSMenu : NSObject <NSCopying>
- (instancetype)initWithTitle:(NSString*)title NS_DESIGNATED_INITIALIZER;
- (void)addItem:(NSMenuItem*)newItem;
- (BOOL)popUpMenuPositioningItem:(nullable NSMenuItem*)item atLocation:(NSPoint)location inView:(nullable NSView*)view;
@end

@interface NSStatusBarButton : NSButton
@end

@interface NSStatusItem : NSObject
@property(nullable, strong) NSMenu* menu;
@property(nullable, readonly, strong) NSStatusBarButton* button;
@end

static const CGFloat NSVariableStatusItemLength = -1;

@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end

@protocol NSPopoverDelegate <NSObject>
// The system calls these optional; here they are required, so that a misspelt one is found.
- (void)popoverWillClose:(NSNotification*)notification;
- (void)popoverDidClose:(NSNotification*)notification;
@end

typedef NS_ENUM(NSInteger, NSPopoverBehavior) { NSPopoverBehaviorTransient = 1 };

@interface NSPopover : NSResponder <NSAppearanceCustomization>
@property(nullable, weak) id<NSPopoverDelegate> delegate;
@property NSPopoverBehavior behavior;
@property BOOL animates;
@property(nullable, strong) NSViewController* contentViewController;
@property NSSize contentSize;
@property(readonly, getter=isShown) BOOL shown;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (void)showRelativeToRect:(NSRect)positioningRect
                    ofView:(NSView*)positioningView
             preferredEdge:(NSRectEdge)preferredEdge;
- (void)close;
@end

NS_ASSUME_NONNULL_END
