#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrix {

/// The control group of a process, by its place in the unified tree: the line "0::/…" of /proc/PID/cgroup, or that of
/// systemd's own tree; empty without either.
std::string_view controlGroup(std::string_view text);

/// The part of a control group's path, from its start, that ends with the unit in which a desktop runs one application:
/// "app-….scope" or "app-….service". Empty where there is none.
std::string_view applicationGroup(std::string_view path);

/// Names that the desktop entry of the unit at the end of such a path may have, the likeliest first. Its name is
/// "app-", perhaps the launcher's name and "-", the entry's, and what tells the unit from others: "-" and more in a
/// scope's name, "@" and more in that of a service. Dashes within the parts should be written as "\x2d", but not all
/// launchers do. Never empty.
std::vector<std::string> entryNames(std::string_view group);

/// True for the groups of a person's session: below a session of the log-in service, or below a user's own services.
bool isOfLogin(std::string_view path);

} // namespace vantrix
