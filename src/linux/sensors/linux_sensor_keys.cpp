#include "linux/sensors/linux_sensor_keys.h"

namespace vantrix {

std::optional<double> LinuxSensorKeys::value(std::string_view key) {
    if (key == "FNum") {
        fans_.beginPass();
        powers_.beginPass();
        return fans_.count();
    }
    if (key == "PSTR")
        return powers_.system();
    if (key == "PDTR")
        return powers_.adapter();
    return fanValue(key);
}

std::optional<double> LinuxSensorKeys::fanValue(std::string_view key) {
    if (key.size() != 4 || key[0] != 'F' || key[1] < '0' || key[1] > '9' || key[1] - '0' >= fans_.count())
        return std::nullopt;
    const int fan = key[1] - '0';
    const std::string_view what = key.substr(2);
    if (what == "Ac")
        return fans_.speed(fan);
    if (what == "Mn")
        return fans_.minimum(fan);
    return what == "Mx" ? fans_.maximum(fan) : std::nullopt;
}

} // namespace vantrix
