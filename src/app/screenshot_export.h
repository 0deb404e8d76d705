#pragma once

#include <memory>

#include <QString>

#include "platform/sampling_sources.h"

namespace vantrix {

class DefaultsStore;

/// Draws the popover, the status row in every style and every tab of the settings, dark and light, from fixed demo
/// readings into PNG files in `folder`, and logs each step. Needs the application object. What is stored is read but
/// not written: the run leaves the user's settings alone. Returns the exit status.
int exportScreenshots(const QString& folder, SamplingSources sources, std::unique_ptr<DefaultsStore> stored);

} // namespace vantrix
