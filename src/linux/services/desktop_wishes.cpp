#include "linux/services/desktop_wishes.h"

#include <algorithm>
#include <array>

#include <QDBusArgument>
#include <QDBusVariant>

#include "linux/services/desktop_settings.h"

namespace vantrix {
namespace {

const QString commonGroup = QStringLiteral("org.freedesktop.appearance");
const QString gnomeGroup = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeAccessGroup = QStringLiteral("org.gnome.desktop.a11y.interface");
const QString kdeGroup = QStringLiteral("org.kde.kdeglobals.KDE");

// Values in some of the portal's replies are wrapped in one more variant than those in its signal.
QVariant unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

template<typename T>
std::optional<T> exactly(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<T>() ? std::optional(value.value<T>()) : std::nullopt;
}

std::optional<bool> darkOf(const QVariant& value) {
    const auto scheme = exactly<uint>(value); // 1 dark, 2 light, else no preference
    return scheme == 1U || scheme == 2U ? std::optional(scheme == 1U) : std::nullopt;
}

/// Of a setting whose only wish is 1.
std::optional<bool> wishOf(const QVariant& value) {
    const auto number = exactly<uint>(value);
    return number ? std::optional(*number == 1U) : std::nullopt;
}

std::optional<QColor> colorOf(const QVariant& value) {
    const auto argument = exactly<QDBusArgument>(value);
    if (!argument || argument->currentSignature() != u"(ddd)")
        return std::nullopt;
    std::array<double, 3> rgb{};
    argument->beginStructure();
    for (double& part : rgb)
        *argument >> part;
    argument->endStructure();
    // The portal sends values out of range when the user has chosen no colour.
    if (!std::all_of(rgb.begin(), rgb.end(), [](double part) { return part >= 0.0 && part <= 1.0; }))
        return std::nullopt;
    return QColor::fromRgbF(static_cast<float>(rgb[0]), static_cast<float>(rgb[1]), static_cast<float>(rgb[2]));
}

std::optional<double> factorOf(const QVariant& value) {
    if (const auto number = exactly<double>(value))
        return number;
    bool isNumber = false;
    const double number = exactly<QString>(value).value_or(QString()).toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

} // namespace

QStringList DesktopWishes::groups() {
    return {commonGroup, gnomeGroup, gnomeAccessGroup, kdeGroup};
}

void DesktopWishes::take(const QString& group, const QString& key, const QVariant& wrapped) {
    const QVariant value = unwrapped(wrapped);
    if (group == commonGroup && key == u"color-scheme")
        dark_ = darkOf(value);
    else if (group == commonGroup && key == u"accent-color")
        accent_ = colorOf(value);
    else if (group == commonGroup && key == u"reduced-motion")
        reducedMotion_ = wishOf(value);
    else if (group == commonGroup && key == u"contrast")
        contrast_ = wishOf(value);
    else if (group == gnomeAccessGroup && key == u"high-contrast")
        gnomeContrast_ = exactly<bool>(value);
    else if (group == gnomeGroup && key == u"enable-animations")
        gnomeAnimations_ = exactly<bool>(value);
    else if (group == gnomeGroup && key == u"font-name")
        gnomeFont_ = vantrix::gnomeFont(exactly<QString>(value).value_or(QString()));
    else if (group == gnomeGroup && key == u"text-scaling-factor")
        gnomeTextScale_ = factorOf(value);
    else if (group == gnomeGroup && key == u"icon-theme")
        gnomeIcons_ = exactly<QString>(value).value_or(QString());
    else if (group == kdeGroup && key == u"AnimationDurationFactor")
        kdeDurationFactor_ = factorOf(value);
}

std::optional<QFont> DesktopWishes::gnomeFont(bool onWayland) const {
    std::optional<QFont> font = gnomeFont_;
    if (font && onWayland)
        font->setPointSizeF(font->pointSizeF() * std::clamp(gnomeTextScale_.value_or(1.0), 0.5, 3.0));
    return font;
}

bool DesktopWishes::reducesMotion() const {
    if (reducedMotion_)
        return *reducedMotion_;
    if (gnomeAnimations_)
        return !*gnomeAnimations_;
    return kdeDurationFactor_ == 0.0;
}

} // namespace vantrix
