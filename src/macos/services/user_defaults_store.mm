#include "platform/desktop_services.h"

#import <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>
#import <dispatch/dispatch.h>

namespace vantrix {
class NativeDefaultsStore;
}

NS_ASSUME_NONNULL_BEGIN

@interface VantrixDefaultsObserver : NSObject
@property(nonatomic, nullable) vantrix::NativeDefaultsStore* owner; ///< null once it is gone; main thread only
@end

NS_ASSUME_NONNULL_END

namespace vantrix {
namespace {

QVariant variantOf(id value) {
    if ([value isKindOfClass:[NSString class]])
        return QString::fromNSString(value);
    if (![value isKindOfClass:[NSNumber class]])
        return {};
    // Booleans are numbers to Foundation.
    if (CFGetTypeID((__bridge CFTypeRef)value) == CFBooleanGetTypeID())
        return [value boolValue] ? true : false;
    return [value doubleValue];
}

id nativeValue(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return [NSNumber numberWithBool:value.toBool()];
    case QMetaType::Double:
        return [NSNumber numberWithDouble:value.toDouble()];
    default:
        return value.toString().toNSString();
    }
}

} // namespace

/// NSUserDefaults, which this program and others may change at any time. Each key is observed from its first read: the
/// system reports other programs' changes only to key-value observers.
class NativeDefaultsStore final : public DefaultsStore {
  public:
    explicit NativeDefaultsStore(NSUserDefaults* defaults);
    ~NativeDefaultsStore() override;

    QVariant value(const QString& key) const override;
    void setValue(const QString& key, const QVariant& value) override;
    void flush() override {
        @autoreleasepool {
            [defaults_ synchronize];
        }
    }

    bool isWriting() const { return isWriting_; }
    void tellOfChange() const;

  private:
    NSUserDefaults* defaults_;
    VantrixDefaultsObserver* observer_;
    NSMutableSet<NSString*>* watched_;
    bool isWriting_ = false;
};

} // namespace vantrix

@implementation VantrixDefaultsObserver

- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(void*)context {
    // The store's own writes arrive here synchronously.
    if (NSThread.isMainThread && self.owner && self.owner->isWriting())
        return;
    dispatch_async(dispatch_get_main_queue(), ^{
      if (self.owner)
          self.owner->tellOfChange();
    });
}

@end

namespace vantrix {

NativeDefaultsStore::NativeDefaultsStore(NSUserDefaults* defaults)
    : defaults_(defaults), observer_([[VantrixDefaultsObserver alloc] init]), watched_([[NSMutableSet alloc] init]) {
    observer_.owner = this;
}

NativeDefaultsStore::~NativeDefaultsStore() {
    observer_.owner = nullptr;
    for (NSString* key in watched_)
        [defaults_ removeObserver:observer_ forKeyPath:key context:nullptr];
}

QVariant NativeDefaultsStore::value(const QString& key) const {
    @autoreleasepool {
        NSString* name = key.toNSString();
        if (![watched_ containsObject:name]) {
            [watched_ addObject:name];
            [defaults_ addObserver:observer_ forKeyPath:name options:0 context:nullptr];
        }
        return variantOf([defaults_ objectForKey:name]);
    }
}

void NativeDefaultsStore::setValue(const QString& key, const QVariant& value) {
    @autoreleasepool {
        NSString* name = key.toNSString();
        isWriting_ = true;
        if (value.isValid())
            [defaults_ setObject:nativeValue(value) forKey:name];
        else
            [defaults_ removeObjectForKey:name];
        isWriting_ = false;
    }
}

void NativeDefaultsStore::tellOfChange() const {
    if (changedOutside)
        changedOutside();
}

std::unique_ptr<DefaultsStore> makeStandardDefaultsStore() {
    return std::make_unique<NativeDefaultsStore>([NSUserDefaults standardUserDefaults]);
}

} // namespace vantrix
