#pragma once

#include "linux/bluetooth/bluez_objects.h"

namespace vantrix::bluez {

/// True while the device at `path` is connected through an adapter that is on.
bool isConnected(const BluezObjects& objects, const QString& path);

/// True for a device that is read as an LE peripheral with a battery: it offers the battery service, or tells a level
/// and has no class of device, which all of classic Bluetooth have. A device of both kinds counts once, as this one.
bool isPeripheral(const BluezObjects& objects, const QString& path);

/// What the user calls the device, else what it calls itself; empty when it has no name.
QString nameOf(const BluezObjects& objects, const QString& path);

QString addressOf(const BluezObjects& objects, const QString& path);

/// What org.bluez.Battery1 tells: 0 to 255, in percent.
std::optional<uchar> percentageOf(const BluezObjects& objects, const QString& path);

/// The major device class within a class of device.
int majorClass(uint deviceClass);

} // namespace vantrix::bluez
