#pragma once

#include "linux/bluetooth/bluez_objects.h"

namespace vantrix::bluez {

/// True while the device at `path` is connected through an adapter that is on.
bool isConnected(const BluezObjects& objects, const QString& path);

/// True for a device that is read as an LE peripheral with a battery: it offers the battery service, or reports a level
/// and has no class of device, which all classic devices have. A device of both kinds counts as LE only.
bool isPeripheral(const BluezObjects& objects, const QString& path);

/// The name that the user gave the device, else its own; empty when it has none.
QString nameOf(const BluezObjects& objects, const QString& path);

QString addressOf(const BluezObjects& objects, const QString& path);

/// The level in org.bluez.Battery1: 0 to 255, in percent.
std::optional<uchar> percentageOf(const BluezObjects& objects, const QString& path);

/// The major device class within a class of device.
int majorClass(uint deviceClass);

} // namespace vantrix::bluez
