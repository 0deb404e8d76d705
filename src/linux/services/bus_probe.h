#pragma once

#include <chrono>

#include <QString>

namespace vantrix {

/// True when the bus daemon at `address` answers within `patience`. To be asked before connecting: the toolkit makes
/// all connections of a program on one thread and waits for each daemon without limit, so a frozen one would block them
/// all. May be called on any thread. Addresses other than Unix sockets count as answering.
bool busAnswers(const QString& address, std::chrono::milliseconds patience);

} // namespace vantrix
