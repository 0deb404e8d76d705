#include "sensors/smc.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

using Bytes = std::vector<std::uint8_t>;

struct FakeController : SMC::Transport {
    FakeController(std::uint32_t told, int refused) : size(told), refusedCall(refused) {}

    bool call(const SMC::Record&, SMC::Record& answer) override {
        constexpr char type[] = "87ps"; // least significant first
        ++calls;
        answer.fill(0xee);
        answer[40] = calls == refusedCall ? 0x84 : 0;
        for (std::size_t i = 0; i < 4 && calls == 1; ++i) // the first answer alone tells the size
            answer[28 + i] = static_cast<std::uint8_t>(size >> (8 * i));
        std::copy_n(type, 4, answer.begin() + 32);
        answer[48] = 0xff;
        answer[49] = 0x80;
        return true;
    }

    const std::uint32_t size;
    const int refusedCall; // counted from 1
    int calls = 0;
};

TEST(SMC, TakesNoMoreBytesThanThereAre) {
    const struct {
        const char* name;
        std::uint32_t size;
        int refusedCall;
        std::optional<double> value;
    } rows[] = {
        {"two bytes", 2, 0, -0.5},
        {"all there may be", 32, 0, -0.5},
        {"no bytes", 0, 0, {}},
        {"too many bytes", 33, 0, {}},
        {"a size of four bytes", 0x01000002, 0, {}},
        {"first call refused", 2, 1, {}},
        {"second call refused", 2, 2, {}},
    };
    for (const auto& row : rows) {
        SMC smc(std::make_unique<FakeController>(row.size, row.refusedCall));
        EXPECT_EQ(smc.value("TC0P"), row.value) << row.name;
    }
}

TEST(SMCDecode, KnowsTheControllersTypes) {
    const std::tuple<const char*, Bytes, std::optional<double>> rows[] = {
        {"flt ", {0x00, 0x00, 0x28, 0x42}, 42.0}, // little-endian
        {"flt ", {0x00, 0x00, 0xc0, 0x7f}, {}},   // not a number
        {"flt ", {0x00, 0x00, 0x28}, {}},
        {"ui8 ", {0xfe}, 254.0},
        {"ui8 ", {}, {}},
        {"ui16", {0x12, 0x34}, 0x1234},
        {"ui16", {0x12}, {}},
        {"ui32", {0xff, 0xff, 0xff, 0xff}, 4294967295.0},
        {"ui32", {0x12, 0x34, 0x56}, {}},
        {"sp78", {0xff, 0x80}, -0.5},
        {"sp78", {0xff}, {}},
        {"fpe2", {0x1f, 0x40}, 2000.0},
        {"fpe2", {0x1f}, {}},
        {"si16", {0x00, 0x01}, {}},
    };
    for (const auto& [type, bytes, value] : rows)
        EXPECT_EQ(SMC::decode(type, bytes), value) << type << " of " << bytes.size();
}

} // namespace
} // namespace vantrix
