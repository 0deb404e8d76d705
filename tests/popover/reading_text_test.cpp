#include "popover/reading_text.h"

#include <cmath>
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
        {1000, "1 KB"},
        {999'499, "999 KB"},
        {999'500, "1 MB"}, // not 1000 KB
        {999'960'000, "1 GB"},
        {1'234'000'000, "1.23 GB"},
        {12'345'678'901'234, "12.35 TB"},
        {std::numeric_limits<std::uint64_t>::max(), "18.45 EB"},
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(byteText(bytes).toStdString(), text) << bytes;
}

TEST(ReadingText, RatesDropFractionsAndNeverGoBelowZero) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::pair<double, const char*> cases[] = {{1999.9, "2 KB/s"},       {999.9, "999 bytes/s"},
                                                    {-5.0, "0 KB/s"},         {0.4, "0 KB/s"},
                                                    {std::nan(""), "0 KB/s"}, {infinity, "18.45 EB/s"}};
    for (const auto& [rate, text] : cases)
        EXPECT_EQ(rateText(rate).toStdString(), text) << rate;
    const std::pair<double, const char*> inBits[] = {
        {300'000.0, "2.4 Mb/s"}, {64.2, "513 bits/s"}, {-5.0, "0 kb/s"}, {1.25e8, "1 Gb/s"}};
    for (const auto& [rate, text] : inBits)
        EXPECT_EQ(rateTextIn(NetworkUnit::bits)(rate).toStdString(), text) << rate;
}

TEST(ReadingText, WritesTheDecimalSignOfTheRegion) {
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    EXPECT_EQ(byteText(9'400'000), QStringLiteral("9,4 MB"));
    EXPECT_EQ(memoryText(std::uint64_t{1000} << 20, MemoryUnit::gb), QStringLiteral("1000 MB")); // no grouping
    EXPECT_EQ(memoryText(std::uint64_t{5} << 29, MemoryUnit::gib), QStringLiteral("2,5 GiB"));
    EXPECT_EQ(memoryText(std::uint64_t{3} << 50, MemoryUnit::gib), QStringLiteral("3072 TiB")); // the largest unit
    QLocale::setDefault(before);
}

} // namespace
} // namespace vantrix
