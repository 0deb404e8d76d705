#include <gtest/gtest.h>

#include "fuzz/targets.h"
#include "linux/bluetooth/bluez_devices.h"
#include "linux/services/desktop_wishes.h"

namespace vantrix::fuzz {
namespace {

using namespace Qt::StringLiterals;

const QStringList paths{u"/hci0"_s, u"/hci0/dev_1"_s, u"/hci0/dev_2"_s};
const QStringList interfaces{bluez::adapter, bluez::device, bluez::battery, u"other"_s};
const QStringList names = u"Powered Connected Alias Name Address Class UUIDs Percentage color-scheme contrast "
                          "accent-color AnimationDurationFactor"_s.split(u' ');

/// Everything that is told of the objects.
QVariantList told(const BluezObjects& objects) {
    QVariantList all;
    for (const QString& path : paths)
        all << bluez::isConnected(objects, path) << bluez::isPeripheral(objects, path) << bluez::nameOf(objects, path)
            << bluez::addressOf(objects, path) << bluez::percentageOf(objects, path).value_or(uchar{255});
    return all;
}

} // namespace

/// What bluetoothd tells of its objects, one property after the other: what is made of them changes only with an
/// announcement. The settings portal's wishes are such values, too.
void bluezObjects(std::string_view bytes) {
    BluezObjects objects;
    DesktopWishes wishes;
    for (Input input(bytes); !input.isEmpty();) {
        const auto kind = input.byte() % 3;
        const QString& path = input.oneOf(paths);
        const QString& interface = input.oneOf(interfaces);
        const QString& name = input.oneOf(names);
        const auto type = input.byte();
        const QString text = input.string();
        const QVariantList values{text.isEmpty(),   text,           text.toUInt(), QVariant::fromValue(uchar{type}),
                                  text.split(u','), text.toDouble()};
        const QVariantMap properties{{name, values[type % values.size()]}};
        const QVariantList before = told(objects);
        const bool isNews = kind == 0   ? objects.add(path, {{interface, properties}})
                            : kind == 1 ? objects.remove(path, {interface})
                                        : objects.change(path, interface, properties, {text});
        EXPECT_TRUE(isNews || told(objects) == before);
        wishes.take(input.oneOf(DesktopWishes::groups()), name, properties[name]);
        EXPECT_FALSE(wishes.accent()) << "which only a structure tells";
    }
}

} // namespace vantrix::fuzz
