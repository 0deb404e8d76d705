#include "platform/application_service.h"

namespace vantrix {

/// The system itself keeps an application to one instance, and starts it by its bundle.
std::unique_ptr<ApplicationService> makeApplicationService() {
    return std::make_unique<ApplicationService>();
}

bool askApplicationService(const std::string& /*request*/) {
    return false;
}

} // namespace vantrix
