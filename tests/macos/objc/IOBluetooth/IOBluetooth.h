#pragma once

#include <CoreFoundation/CoreFoundation.h>

#import <Foundation/Foundation.h>

// This framework's headers say nothing of which values may be nil.

typedef UInt32 BluetoothDeviceClassMajor;

@interface IOBluetoothDevice : NSObject

@property(nonatomic, readonly) BluetoothDeviceClassMajor deviceClassMajor;
@property(nonatomic, readonly) NSString* name;
@property(nonatomic, readonly) NSString* addressString;

+ (NSArray*)pairedDevices;
- (BOOL)isConnected;

@end
