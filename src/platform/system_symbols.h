#pragma once

#include <string_view>

#include <QImage>

namespace vantrix {

/// The system's own drawing of the symbol of that name, in black on a transparent ground, in a square of `side` pixels.
/// Symbols keep their sizes relative to each other. Null where the system has none; the program then draws its own.
QImage systemSymbol(std::string_view name, int side);

} // namespace vantrix
