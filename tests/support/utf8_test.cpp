#include "support/utf8.h"

#include <gtest/gtest.h>

namespace vantrix {
namespace {

TEST(RepairedUTF8, KeepsValidTextAndReplacesTheRest) {
    const struct {
        const char* name;
        std::string text;
        std::string repaired;
    } rows[] = {
        {"two to four bytes", "\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80", "\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80"},
        {"Latin-1", "Caf\xe9 X", "Caf\xef\xbf\xbd X"},
        {"cut at the end", "a\xe2\x82", "a\xef\xbf\xbd\xef\xbf\xbd"},
        {"longer than needed", "\xc0\xaf", "\xef\xbf\xbd\xef\xbf\xbd"},
        {"surrogate", "\xed\xa0\x80", "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd"},
        {"past the last code point", "\xf4\x90\x80\x80", "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd"},
        {"stray continuation", "\x80z", "\xef\xbf\xbdz"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(repairedUTF8(row.text), row.repaired) << row.name;
}

TEST(WithoutTerminalControls, DropsWhatSteersATerminalAlone) {
    EXPECT_EQ(withoutTerminalControls("a\x1b[2J\rb\x7f\n"), "a[2Jb\n");
    EXPECT_EQ(withoutTerminalControls("CSI \xc2\x9b"
                                      "2J, turned \xe2\x80\xae"
                                      "gnp.exe \xe2\x81\xa9"),
              "CSI 2J, turned gnp.exe ");
    EXPECT_EQ(withoutTerminalControls("52\xc2\xb0, \xd7\xa9, \xf0\x9f\x98\x80"),
              "52\xc2\xb0, \xd7\xa9, \xf0\x9f\x98\x80");
}

} // namespace
} // namespace vantrix
