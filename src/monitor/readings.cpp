#include "monitor/readings.h"

namespace vantrix {

void append(History& history, double value) {
    history.reserve(historyLength + 1);
    history.push_back(value);
    if (history.size() > historyLength)
        history.erase(history.begin(), history.end() - static_cast<std::ptrdiff_t>(historyLength));
}

} // namespace vantrix
