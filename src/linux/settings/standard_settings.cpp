#include "linux/settings/file_defaults_store.h"
#include "platform/desktop_services.h"

namespace vantrix {

std::unique_ptr<DefaultsStore> makeStandardDefaultsStore() {
    return std::make_unique<FileDefaultsStore>(FileDefaultsStore::settingsPath());
}

} // namespace vantrix
