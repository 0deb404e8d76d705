#include "linux/capture/redaction.h"

#include <gmock/gmock.h>

namespace vantrix {
namespace {

TEST(Redaction, ReplacesWhatIsPrivateAndKeepsItsForm) {
    const struct {
        const char* path;
        const char* text;
        const char* replaced;
    } rows[] = {
        {"sys/a/uevent", "HID_UNIQ=A4:77:58:12:ab:cd\n", "HID_UNIQ=02:00:00:00:00:04\n"},
        {"sys/a/x", "a4:77:58:12:ab:cd and a4-77-58-12-ab-cd, wlxa4775812abcd", // one device
         "02:00:00:00:00:04 and 02-00-00-00-00-04, wlx020000000004"},
        {"sys/a/x", "80:00:02:08:fe:80:00:01\n", "00:00:00:00:00:00:00:05\n"},
        {"sys/a/address", "00:00:00:00:00:00\nff:ff:ff:ff:ff:ff\n", "00:00:00:00:00:00\nff:ff:ff:ff:ff:ff\n"},
        {"sys/a/x", "192.168.178.23/24 via fe80::2e0:4cff:fe68:199.", "192.0.2.7/24 via 2001:db8::7."},
        {"sys/a/x", "2001:470:1f0b:12:0:0:0:1 127.0.0.1 1.2.3", "2001:db8::8 127.0.0.1 1.2.3"},
        {"proc/net/route", "eth0\t0002A8C0\t0102A8C0\t0001\t0\t0\t0\t00FFFFFF\n",
         "eth0\t00000009\t0000000a\t0001\t0\t0\t0\t00FFFFFF\n"},
        {"proc/cpuinfo", "BogoMIPS\t: 108.00\nSerial\t\t: 10000000a1b2c3d4\n",
         "BogoMIPS\t: 108.00\nSerial\t\t: 00000000X0X0X011\n"},
        {"proc/cpuinfo", "Serial\t\t: 0000000000000000\n", "Serial\t\t: 0000000000000000\n"}, // none
        {"sys/a/uevent", "POWER_SUPPLY_SERIAL_NUMBER=DL-41167", "POWER_SUPPLY_SERIAL_NUMBER=XX-00012"},
        {"sys/a/serial_number", "DL-41167\n", "XX-00012\n"},
        {"sys/a/wwid", "eui.0025385", "XXX.0000013"},
        {"sys/a/x", "7d444840-9dc0-11d1-b245-5ffdce74fad2", "00000000-0000-0000-0000-00000000000e"},
        {"sys/a/x", "naa.50014ee2b1a9c3d7 0x50014ee2b1a9c3d7", "naa.000000000000000f 0x000000000000000f"},
        {"sys/a/model_name", "Ottilie’s Magic Mouse\n", "Name16’s Magic Mouse\n"},
        {"sys/a/uevent", "NAME=\"Maus von Ottilie\"\n", "NAME=\"Maus von Name16\"\n"},
        {"sys/a/label", "Ada ADA-Adapter of ada\n", "name1 name1-Adapter of Name1\n"},
        {"sys/a/x", "intel workbench-3 Core i5", "intel name2 Core i5"},
        // what numbers and devices look like
        {"proc/stat", "cpu0 123456789012 18446744073709551615 ffffffffffffffff 0x0000000000001003",
         "cpu0 123456789012 18446744073709551615 ffffffffffffffff 0x0000000000001003"},
        {"sys/a/x", "0000:00:1f.3 0005:05AC:0265.0001 input3::capslock 12:30:45 pci:v00008086d00009A49sv",
         "0000:00:1f.3 0005:05AC:0265.0001 input3::capslock 12:30:45 pci:v00008086d00009A49sv"},
    };
    Redaction redaction({"Ada", "workbench-3", "Ada Lovelace", "root", "", "x", "intel"});
    for (const auto& row : rows)
        EXPECT_EQ(redaction.text(row.text, row.path), row.replaced);
}

TEST(Redaction, KnowsWhatItReplacedByItsReplacement) {
    Redaction redaction({"ada"});
    EXPECT_EQ(redaction.text("enxa4775812abcd: 7000", "proc/net/dev"), "enx020000000002: 7000");
    EXPECT_EQ(redaction.original("enx020000000002"), "enxa4775812abcd");
    EXPECT_EQ(redaction.original("enx0200000000021"), "enx0200000000021");
    EXPECT_EQ(redaction.network("Ada's network"), "network-3");
    EXPECT_EQ(redaction.text("on Ada's network.", "x"), "on network-3.");
}

} // namespace
} // namespace vantrix
