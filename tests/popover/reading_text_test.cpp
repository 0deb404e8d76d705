#include "popover/reading_text.h"

#include <limits>

#include <QLocale>

#include <gmock/gmock.h>

namespace vantrix {
namespace {

TEST(ReadingText, BytesInDecimalUnits) {
    const struct {
        std::uint64_t bytes;
        const char* text;
    } cases[] = {
        {0, "0 KB"},
        {512, "512 bytes"},
        {999, "999 bytes"},
        {1000, "1 KB"},
        {12'400, "12 KB"},
        {999'499, "999 KB"},
        {999'500, "1 MB"}, // not 1000 KB
        {9'400'000, "9.4 MB"},
        {31'000'000, "31 MB"},
        {999'960'000, "1 GB"},
        {1'234'000'000, "1.23 GB"},
        {186'000'000'000, "186 GB"},
        {12'345'678'901'234, "12.35 TB"},
        {std::numeric_limits<std::uint64_t>::max(), "18.45 EB"},
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(byteText(bytes).toStdString(), text) << bytes;
}

TEST(ReadingText, MemoryInBinaryUnits) {
    EXPECT_EQ(memoryText(std::uint64_t{10} << 30), QStringLiteral("10 GB"));
    EXPECT_EQ(memoryText(std::uint64_t{512} << 20), QStringLiteral("512 MB"));
    EXPECT_EQ(memoryText((std::uint64_t{1} << 30) - 1), QStringLiteral("1 GB"));
    EXPECT_EQ(memoryText(1000), QStringLiteral("1000 bytes"));
    EXPECT_EQ(memoryText(0), QStringLiteral("0 KB"));
}

TEST(ReadingText, RatesDropFractionsAndNeverGoBelowZero) {
    EXPECT_EQ(rateText(1999.9), QStringLiteral("2 KB/s"));
    EXPECT_EQ(rateText(999.9), QStringLiteral("999 bytes/s"));
    EXPECT_EQ(rateText(-5.0), QStringLiteral("0 KB/s"));
    EXPECT_EQ(rateText(0.4), QStringLiteral("0 KB/s"));
    EXPECT_EQ(rateText(std::numeric_limits<double>::quiet_NaN()), QStringLiteral("0 KB/s"));
    EXPECT_EQ(rateText(std::numeric_limits<double>::infinity()), QStringLiteral("18.45 EB/s"));
}

TEST(ReadingText, WritesTheDecimalSignOfTheRegion) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    EXPECT_EQ(byteText(9'400'000), QStringLiteral("9,4 MB"));
    EXPECT_EQ(memoryText(std::uint64_t{1000} << 20), QStringLiteral("1000 MB")); // no grouping
    QLocale::setDefault(before);
}

} // namespace
} // namespace vantrix
