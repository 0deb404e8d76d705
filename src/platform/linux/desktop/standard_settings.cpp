#include "platform/desktop_services.h"
#include "platform/linux/desktop/file_defaults_store.h"

namespace vantrix {

std::unique_ptr<DefaultsStore> makeStandardDefaultsStore() {
    return std::make_unique<FileDefaultsStore>(FileDefaultsStore::settingsPath());
}

} // namespace vantrix
