#pragma once

#import <CoreBluetooth/CBAttribute.h>
#import <CoreBluetooth/CBCentralManager.h>
#import <CoreBluetooth/CBCharacteristic.h>
#import <CoreBluetooth/CBManager.h>
#import <CoreBluetooth/CBPeer.h>
#import <CoreBluetooth/CBPeripheral.h>
#import <CoreBluetooth/CBService.h>
#import <CoreBluetooth/CBUUID.h>
