#pragma once

#include <chrono>

#include <QString>

namespace vantrix {

/// Asks the daemon at `address` for a first word, which any that works has within `patience`. The toolkit makes every
/// connection of a program on one thread and waits for the daemon without end: one that is frozen would freeze the
/// others, so it is better not asked at all. May be called on any thread. Addresses other than Unix sockets count as
/// answering.
bool busAnswers(const QString& address, std::chrono::milliseconds patience);

} // namespace vantrix
