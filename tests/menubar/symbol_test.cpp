#include "menubar/symbol.h"

#include <gtest/gtest.h>

#include "menubar/display_choices.h"
#include "views/drawn.h"

namespace vantrix {
namespace {

TEST(Symbols, EveryChoiceWithASymbolHasADrawing) {
    const auto check = [](const auto& choices) {
        for (const auto& choice : choices)
            EXPECT_GE(inkOf(symbolImage(choice.symbolName, Qt::red, 16), Qt::transparent).width(), 8)
                << choice.symbolName;
    };
    check(menuBarModules);
    check(popoverCards);
    check(settingsTabs);
}

} // namespace
} // namespace vantrix
