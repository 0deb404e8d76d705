#include "support/size_text.h"

#include <array>
#include <cmath>

#include <QLocale>

#include "support/localization.h"

namespace vantrix {
namespace {

/// The most digits after the point, by unit from kilobytes up.
constexpr std::array decimals{0, 1, 2, 2, 2, 2};

std::string unitText(std::size_t unit) {
    switch (unit) {
    case 0:
        return localized("%@ KB");
    case 1:
        return localized("%@ MB");
    case 2:
        return localized("%@ GB");
    case 3:
        return localized("%@ TB");
    case 4:
        return localized("%@ PB");
    default:
        return localized("%@ EB");
    }
}

QString withUnit(const QString& value, std::size_t unit) {
    return QString::fromStdString(formatted(unitText(unit), {value.toStdString()}));
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

QString sizeText(std::uint64_t bytes, double base) {
    if (bytes == 0)
        return withUnit(trimmed(0.0, 0), 0);
    if (static_cast<double>(bytes) < base)
        return QString::fromStdString(localizedCount("%lld bytes", static_cast<long long>(bytes)));
    double value = static_cast<double>(bytes) / base;
    std::size_t unit = 0;
    const auto rounded = [&] {
        const double scale = std::pow(10.0, decimals[unit]);
        return std::round(value * scale) / scale;
    };
    while (unit + 1 < decimals.size() && rounded() >= base) { // 999.96 MB reads 1 GB, not 1000 MB
        value /= base;
        ++unit;
    }
    return withUnit(trimmed(value, decimals[unit]), unit);
}

} // namespace

QString byteText(std::uint64_t bytes) {
    return sizeText(bytes, 1000.0);
}

QString memoryText(std::uint64_t bytes) {
    return sizeText(bytes, 1024.0);
}

} // namespace vantrix
