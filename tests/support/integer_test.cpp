#include "support/integer.h"

#include <gtest/gtest.h>

namespace vantrix {
namespace {

TEST(Integer, IsTheWholeTextOrNothing) {
    struct Row {
        std::string_view text;
        std::optional<std::int64_t> whole;
        std::optional<std::int64_t> line;
        std::optional<std::int64_t> endedLine;
    };
    const Row rows[] = {
        {"7", 7, 7, {}},
        {"-4500\n", {}, -4500, -4500},
        {"7\n\n", {}, {}, {}},
        {"9223372036854775807", INT64_MAX, INT64_MAX, {}},
        {"9223372036854775808\n", {}, {}, {}},
        {"", {}, {}, {}},
        {"\n", {}, {}, {}},
        {"+7", {}, {}, {}},
        {" 7", {}, {}, {}},
        {"7 \n", {}, {}, {}},
        {"0x7\n", {}, {}, {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(parseInteger(row.text), row.whole) << row.text;
        EXPECT_EQ(parseIntegerLine(row.text), row.line) << row.text;
        EXPECT_EQ(parseInteger(row.text, "\n"), row.endedLine) << row.text;
    }
    EXPECT_EQ(parseInteger<std::uint32_t>("ffffffff", {}, 16), 0xffffffffu);
    EXPECT_EQ(parseInteger<std::uint32_t>("100000000", {}, 16), std::nullopt);
    EXPECT_EQ(parseInteger<std::uint32_t>("-1"), std::nullopt);
}

TEST(Integer, IsTakenOffTheFrontOnlyIfItFits) {
    std::string_view text = "57 %";
    EXPECT_EQ(takeInteger(text), 57);
    EXPECT_EQ(text, " %");
    text = "300 %";
    EXPECT_EQ(takeInteger<std::int8_t>(text), std::nullopt);
    EXPECT_EQ(text, "300 %");
}

} // namespace
} // namespace vantrix
