#pragma once

#import <Foundation/Foundation.h>

// In Objective-C a queue is an object.
@protocol OS_dispatch_queue <NSObject>
@end
@protocol OS_dispatch_queue_main <OS_dispatch_queue>
@end

typedef NSObject<OS_dispatch_queue>* dispatch_queue_t;
typedef NSObject<OS_dispatch_queue_main>* dispatch_queue_main_t;
typedef void (^dispatch_block_t)(void);

extern "C" dispatch_queue_main_t _Nonnull dispatch_get_main_queue(void);
extern "C" void dispatch_async(dispatch_queue_t _Nonnull queue, dispatch_block_t _Nonnull block);
