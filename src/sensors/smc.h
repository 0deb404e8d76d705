#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "sensors/sensor_keys.h"

namespace vantrix {

/// Keys of the system management controller. It is never written to.
class SMC : public SensorKeys {
  public:
    /// What is exchanged with the controller, in one layout for questions and answers.
    using Record = std::array<std::uint8_t, 80>;

    class Transport {
      public:
        /// Closes the connection.
        virtual ~Transport() = default;
        /// One call of the controller. False when it fails or answers with anything but a whole record; `answer` is
        /// then unspecified.
        virtual bool call(const Record& question, Record& answer) = 0;
    };

    /// `transport` is an open connection.
    explicit SMC(std::unique_ptr<Transport> transport) : transport_(std::move(transport)) {}

    /// Two calls of the controller: one for the key's type and size, one for its bytes.
    std::optional<double> value(std::string_view key) override;

    /// The number in a key's bytes by the name of their type: four characters, "ui8 ". Integers and fixed-point numbers
    /// are big-endian, "flt " is little-endian. Absent for other types, for too few bytes and for a float that is not
    /// finite.
    static std::optional<double> decode(std::string_view type, std::span<const std::uint8_t> bytes);

  private:
    std::unique_ptr<Transport> transport_;
};

} // namespace vantrix
