#pragma once

#include <string_view>

#include <QImage>

namespace vantrix {

/// The system's own drawing of the symbol of that name, in black on a transparent ground, in a square of `side` pixels:
/// as large beside others as the system draws it, so that small symbols stay small. Null where the system has none; the
/// program then draws its own.
QImage systemSymbol(std::string_view name, int side);

} // namespace vantrix
