#include "support/user_defaults.h"

#include <cmath>
#include <utility>

#include <QLocale>

namespace vantrix {

namespace {

std::optional<QString> asText(const QVariant& value) {
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    if (value.typeId() == QMetaType::Double)
        return QString::number(value.toDouble(), 'f', QLocale::FloatingPointShortest);
    return std::nullopt;
}

std::optional<double> asNumber(const QVariant& value) {
    if (value.typeId() != QMetaType::Double && value.typeId() != QMetaType::QString)
        return std::nullopt;
    bool understood = false;
    const double number = value.toDouble(&understood);
    if (!understood || !std::isfinite(number))
        return std::nullopt;
    return number;
}

std::optional<bool> asBoolean(const QVariant& value) {
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    if (value.typeId() == QMetaType::Double)
        return value.toDouble() != 0.0;
    if (value.typeId() != QMetaType::QString)
        return std::nullopt;
    const QString text = value.toString().trimmed().toLower();
    if (text == u"true" || text == u"yes" || text == u"1")
        return true;
    if (text == u"false" || text == u"no" || text == u"0")
        return false;
    return std::nullopt;
}

/// The value as stores keep it, numbers as doubles. Invalid when it is of a kind that they do not keep.
QVariant storable(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::QString:
        return value;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return std::isfinite(value.toDouble()) ? QVariant(value.toDouble()) : QVariant();
    default:
        return {};
    }
}

} // namespace

UserDefaults::UserDefaults(std::unique_ptr<DefaultsStore> store) : store_(std::move(store)) {
    store_->changedOutside = [this] { Q_EMIT changed(); };
}

void UserDefaults::registerDefaults(const QHash<QString, QVariant>& defaults) {
    for (auto entry = defaults.begin(); entry != defaults.end(); ++entry)
        registered_.insert(entry.key(), storable(entry.value()));
}

template<typename Kind>
std::optional<Kind> UserDefaults::firstUsable(const QString& key, std::optional<Kind> (*read)(const QVariant&)) const {
    if (auto stored = read(store_->value(key)))
        return stored;
    return read(registered_.value(key));
}

std::optional<QString> UserDefaults::string(const QString& key) const {
    return firstUsable(key, asText);
}

double UserDefaults::number(const QString& key) const {
    return firstUsable(key, asNumber).value_or(0.0);
}

bool UserDefaults::boolean(const QString& key) const {
    return firstUsable(key, asBoolean).value_or(false);
}

void UserDefaults::set(const QString& key, const QVariant& value) {
    const QVariant wanted = storable(value);
    const QVariant present = store_->value(key);
    // Compared with their types: a variant holding true equals one holding 1.
    const bool same = wanted.typeId() == present.typeId() && wanted == present;
    if (!wanted.isValid() || same)
        return;
    store_->setValue(key, wanted);
    Q_EMIT changed();
}

void UserDefaults::remove(const QString& key) {
    if (!store_->value(key).isValid())
        return;
    store_->setValue(key, {});
    Q_EMIT changed();
}

} // namespace vantrix
