#pragma once

#import <IOBluetooth/IOBluetoothDevice.h>
