#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "fuzz/targets.h"

namespace vantrix::fuzz {
namespace {

/// What libFuzzer starts from and what it once found, whole and cut short; where that is quick, at every place, and
/// with every byte replaced by odd ones.
TEST(Fuzz, NoSeedAndNoReproducerShowsAFault) {
    for (const auto& file : std::filesystem::recursive_directory_iterator(FUZZ)) {
        const auto* target = targetNamed(file.path().parent_path().filename().string());
        if (!target)
            continue;
        SCOPED_TRACE(file.path());
        std::ifstream stream(file.path(), std::ios::binary);
        const std::string input(std::istreambuf_iterator<char>(stream), {});
        for (std::size_t cut = 0; cut <= input.size(); cut += target->isQuick ? 1 : 40) {
            target->run(input.substr(0, input.size() - cut));
            for (const char odd : std::string_view("\0\1\5\x7f\xff", target->isQuick && cut > 0 ? 5 : 0))
                target->run(std::string(input).replace(input.size() - cut, 1, 1, odd));
        }
    }
}

} // namespace
} // namespace vantrix::fuzz
