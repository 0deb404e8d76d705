#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace vantrix {

/// Where the system grants location access, which some systems require before they reveal a Wi-Fi network's name.
class LocationManager {
  public:
    virtual ~LocationManager() = default;
    /// The system's own numbers: 0 not determined, 3 authorised always.
    virtual std::int32_t authorizationStatus() const = 0;
    /// Asks the user; the answer arrives through `authorizationChanged`.
    virtual void requestAlwaysAuthorization() = 0;
    /// Shows where the user can change an earlier answer.
    virtual void openPrivacyPane() = 0;

    /// Called on the main thread.
    std::function<void()> authorizationChanged;
};

/// Tracks location access and asks for it.
class LocationAccess {
  public:
    static constexpr std::int32_t notDetermined = 0;
    static constexpr std::int32_t authorizedAlways = 3;

    /// Without a manager, where a system has no such rule, access is always authorised.
    explicit LocationAccess(std::unique_ptr<LocationManager> manager);
    ~LocationAccess();
    LocationAccess(const LocationAccess&) = delete;
    LocationAccess& operator=(const LocationAccess&) = delete;

    /// The status last read.
    std::int32_t status() const { return status_; }
    bool isAuthorized() const { return status_ == authorizedAlways; }

    /// The action behind "show the network name": asks the first time, later shows where to change the answer.
    void requestLocationAccess();

    /// Called on the main thread after the status was read again.
    std::function<void()> onChange;

  private:
    void readStatus();

    std::unique_ptr<LocationManager> manager_;
    std::int32_t status_ = authorizedAlways;
};

} // namespace vantrix
