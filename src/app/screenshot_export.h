#pragma once

#include <functional>
#include <memory>

#include <QString>

#include "platform/sampling_sources.h"

namespace vantrix {

class DefaultsStore;

/// Draws the popover, the status row in every style and every tab of the settings, dark and light, from fixed demo
/// readings into PNG files in `folder`, and logs each step. Needs the application object. What is stored is read but
/// not written: the run leaves the user's settings alone. What is made here may hang: the run is watched by then.
/// Returns the exit status, which is that of a failure when a picture is missing.
int exportScreenshots(const QString& folder, const std::function<SamplingSources()>& makeSources,
                      const std::function<std::unique_ptr<DefaultsStore>()>& makeStore);

} // namespace vantrix
