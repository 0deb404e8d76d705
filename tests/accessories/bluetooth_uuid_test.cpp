#include "accessories/bluetooth_uuid.h"

#include <gtest/gtest.h>

namespace vantrix {
namespace {

TEST(BluetoothUUID, IsTheSameInEveryFormOfAnAssignedNumber) {
    EXPECT_EQ(BluetoothUUID("180F"), BluetoothUUID("0000180f-0000-1000-8000-00805F9B34FB"));
    EXPECT_NE(BluetoothUUID("180F"), BluetoothUUID("2A19"));
}

TEST(BluetoothUUID, WritesItsShortestForm) {
    struct Row {
        const char* name;
        const char* text;
        const char* shortest;
    };
    const Row rows[] = {
        {"short", "180F", "180f"},
        {"long form of an assigned number", "0000180F-0000-1000-8000-00805f9b34fb", "180f"},
        {"a maker's own", "9FA480E0-4967-4542-9390-D343DC5D04AE", "9fa480e0-4967-4542-9390-d343dc5d04ae"},
        {"assigned, of 32 bits", "1000180f-0000-1000-8000-00805f9b34fb", "1000180f-0000-1000-8000-00805f9b34fb"},
        {"alike at the start only", "0000180f-0000-1000-8000-00805f9b34fc", "0000180f-0000-1000-8000-00805f9b34fc"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(BluetoothUUID(row.text).shortest(), row.shortest) << row.name;
}

} // namespace
} // namespace vantrix
