#include "platform/system_symbols.h"

namespace vantrix {

QImage systemSymbol(std::string_view /*name*/, int /*side*/) {
    return {};
}

} // namespace vantrix
