#include "samplers/location_access.h"

namespace vantrix {

LocationAccess::LocationAccess(std::unique_ptr<LocationManager> manager) : manager_(std::move(manager)) {
    if (!manager_)
        return;
    manager_->authorizationChanged = [this] {
        readStatus();
        if (onChange)
            onChange();
    };
    readStatus();
}

LocationAccess::~LocationAccess() {
    if (manager_)
        manager_->authorizationChanged = nullptr;
}

void LocationAccess::readStatus() {
    status_ = manager_->authorizationStatus();
}

void LocationAccess::requestLocationAccess() {
    if (!manager_ || status_ == authorizedAlways)
        return;
    if (status_ == notDetermined)
        manager_->requestAlwaysAuthorization();
    else
        manager_->openPrivacyPane();
}

} // namespace vantrix
