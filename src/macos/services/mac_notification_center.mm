#include "platform/notification_center.h"

#include <utility>
#include <vector>

#include "macos/mac_signature.h"

#import <Foundation/Foundation.h>
#import <UserNotifications/UserNotifications.h>
#import <dispatch/dispatch.h>

namespace vantrix {
class MacNotificationCenter;
}

NS_ASSUME_NONNULL_BEGIN

@interface VantrixNotificationDelegate : NSObject <UNUserNotificationCenterDelegate>
@property(nonatomic, nullable) vantrix::MacNotificationCenter* owner; ///< null once it is gone; main thread only
@end

NS_ASSUME_NONNULL_END

namespace vantrix {

class MacNotificationCenter final : public NotificationCenter {
  public:
    MacNotificationCenter();
    ~MacNotificationCenter() override;

    void post(const QString& identifier, const QString& title, const QString& body) override;
    void requestAuthorization(std::function<void(bool)> answer) override;
    bool canBeAllowed() const override { return center_ && isSignedByIdentity(); }

    void answerAll(bool granted);
    UNNotificationPresentationOptions presentationOptions() const;

  private:
    UNUserNotificationCenter* center_; ///< nil outside a bundle
    VantrixNotificationDelegate* delegate_;
    std::vector<std::function<void(bool)>> answers_; ///< not called yet
};

} // namespace vantrix

@implementation VantrixNotificationDelegate

- (void)userNotificationCenter:(UNUserNotificationCenter*)center
       willPresentNotification:(UNNotification*)notification
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions options))completionHandler {
    // This may come on any thread.
    dispatch_async(dispatch_get_main_queue(), ^{
      completionHandler(self.owner ? self.owner->presentationOptions() : 0);
    });
}

- (void)userNotificationCenter:(UNUserNotificationCenter*)center
    didReceiveNotificationResponse:(UNNotificationResponse*)response
             withCompletionHandler:(void (^)(void))completionHandler {
    NSString* identifier = response.notification.request.identifier;
    const bool isClick = [response.actionIdentifier isEqualToString:UNNotificationDefaultActionIdentifier];
    dispatch_async(dispatch_get_main_queue(), ^{
      if (isClick && self.owner && self.owner->activated)
          self.owner->activated(QString::fromNSString(identifier));
      completionHandler();
    });
}

@end

namespace vantrix {

MacNotificationCenter::MacNotificationCenter() : delegate_([[VantrixNotificationDelegate alloc] init]) {
    // Outside a bundle, asking for the centre ends the program.
    if (NSBundle.mainBundle.bundleIdentifier)
        center_ = [UNUserNotificationCenter currentNotificationCenter];
    delegate_.owner = this;
    center_.delegate = delegate_;
}

MacNotificationCenter::~MacNotificationCenter() {
    delegate_.owner = nullptr;
    center_.delegate = nil;
}

void MacNotificationCenter::post(const QString& identifier, const QString& title, const QString& body) {
    @autoreleasepool {
        UNMutableNotificationContent* content = [[UNMutableNotificationContent alloc] init];
        content.title = title.toNSString();
        content.body = body.toNSString();
        content.sound = UNNotificationSound.defaultSound;
        [center_ addNotificationRequest:[UNNotificationRequest requestWithIdentifier:identifier.toNSString()
                                                                             content:content
                                                                             trigger:nil]
                  withCompletionHandler:nil];
    }
}

void MacNotificationCenter::requestAuthorization(std::function<void(bool)> answer) {
    answers_.push_back(std::move(answer));
    __weak VantrixNotificationDelegate* delegate = delegate_;
    const auto tell = ^(BOOL granted, NSError*) {
      dispatch_async(dispatch_get_main_queue(), ^{
        if (MacNotificationCenter* owner = delegate.owner)
            owner->answerAll(granted);
      });
    };
    if (!center_)
        return tell(NO, nil);
    [center_ requestAuthorizationWithOptions:UNAuthorizationOptionAlert | UNAuthorizationOptionSound
                           completionHandler:tell];
}

void MacNotificationCenter::answerAll(bool granted) {
    for (const auto& answer : std::exchange(answers_, {}))
        answer(granted);
}

UNNotificationPresentationOptions MacNotificationCenter::presentationOptions() const {
    const Presentation wanted = willPresent ? willPresent() : Presentation();
    return (wanted.banner ? UNNotificationPresentationOptionBanner : 0) |
           (wanted.sound ? UNNotificationPresentationOptionSound : 0);
}

std::unique_ptr<NotificationCenter> makeNotificationCenter() {
    return std::make_unique<MacNotificationCenter>();
}

} // namespace vantrix
