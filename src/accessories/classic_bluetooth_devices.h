#pragma once

#include <string>
#include <vector>

#include "accessories/accessory_levels.h"

namespace vantrix {

/// The paired devices of classic Bluetooth (BR/EDR).
class ClassicBluetoothDevices {
  public:
    struct Device {
        std::string name;    ///< empty when unknown
        std::string address; ///< as the system writes it, which a nameless device shows; empty when unknown
        bool isConnected = false;
        int majorClass = 0; ///< of the class of device; 4 is audio and video
        AccessoryLevels levels;
    };

    virtual ~ClassicBluetoothDevices() = default;
    /// Answers at once. Main thread only.
    virtual std::vector<Device> paired() = 0;
};

} // namespace vantrix
