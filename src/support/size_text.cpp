#include "support/size_text.h"

#include <array>
#include <cmath>
#include <span>

#include <QLocale>

#include "support/localization.h"

namespace vantrix {
namespace {

/// The most digits after the point, by unit from kilobytes up.
constexpr std::array decimals{0, 1, 2, 2, 2, 2};

/// Units of which each is `base` times the one before; the first is `base` times the smallest.
struct Scale {
    double base;
    std::span<const std::string_view> units;
    bool ofBits = false;
};

constexpr std::array bytes{localizedLater("%@ KB"), localizedLater("%@ MB"), localizedLater("%@ GB"),
                           localizedLater("%@ TB"), localizedLater("%@ PB"), localizedLater("%@ EB")};
constexpr std::array binaryBytes{localizedLater("%@ KiB"), localizedLater("%@ MiB"), localizedLater("%@ GiB"),
                                 localizedLater("%@ TiB")};
constexpr std::array bits{localizedLater("%@ kb"), localizedLater("%@ Mb"), localizedLater("%@ Gb"),
                          localizedLater("%@ Tb")};

QString withUnit(const QString& value, std::string_view unit) {
    return QString::fromStdString(formatted(localized(unit), {value.toStdString()}));
}

/// `value` rounded to `digits` after the point, without trailing zeros.
QString trimmed(double value, int digits) {
    double scale = std::pow(10.0, digits);
    while (digits > 0 && std::fmod(std::round(value * scale), 10.0) == 0.0) {
        --digits;
        scale /= 10.0;
    }
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(value, 'f', digits);
}

QString sizeText(std::uint64_t size, const Scale& scale) {
    if (size == 0)
        return withUnit(trimmed(0.0, 0), scale.units.front());
    if (static_cast<double>(size) < scale.base)
        return QString::fromStdString(
            localizedCount(scale.ofBits ? "%lld bits" : "%lld bytes", static_cast<long long>(size)));
    double value = static_cast<double>(size) / scale.base;
    std::size_t unit = 0;
    const auto rounded = [&] {
        const double places = std::pow(10.0, decimals[unit]);
        return std::round(value * places) / places;
    };
    while (unit + 1 < scale.units.size() && rounded() >= scale.base) { // 999.96 MB reads 1 GB, not 1000 MB
        value /= scale.base;
        ++unit;
    }
    return withUnit(trimmed(value, decimals[unit]), scale.units[unit]);
}

} // namespace

QString byteText(std::uint64_t size) {
    return sizeText(size, {1000.0, bytes});
}

QString memoryText(std::uint64_t size, MemoryUnit unit) {
    if (unit == MemoryUnit::gib)
        return sizeText(size, {1024.0, binaryBytes});
    return sizeText(size, {1024.0, bytes});
}

QString bitText(std::uint64_t size) {
    return sizeText(size, {1000.0, bits, true});
}

} // namespace vantrix
