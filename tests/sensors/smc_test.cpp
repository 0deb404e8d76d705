#include "sensors/smc.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

using Bytes = std::vector<std::uint8_t>;

struct FakeController : SMC::Transport {
    std::uint32_t size = 2;
    std::uint8_t result = 0;

    bool call(const SMC::Record&, SMC::Record& answer) override {
        constexpr char type[] = "87ps"; // least significant first
        answer.fill(0xee);
        for (std::size_t i = 0; i < 4; ++i)
            answer[28 + i] = static_cast<std::uint8_t>(size >> (8 * i));
        std::copy_n(type, 4, answer.begin() + 32);
        answer[40] = result;
        answer[48] = 0xff;
        answer[49] = 0x80;
        return true;
    }
};

TEST(SMC, TakesNoMoreBytesThanThereAre) {
    auto* const controller = new FakeController;
    SMC smc{std::unique_ptr<SMC::Transport>(controller)};
    EXPECT_EQ(smc.value("TC0P"), -0.5);
    controller->result = 0x84;
    EXPECT_EQ(smc.value("TC0P"), std::nullopt) << "refused";
    controller->result = 0;
    for (const std::uint32_t size : {0u, 33u, 0x01000002u}) {
        controller->size = size;
        EXPECT_EQ(smc.value("TC0P"), std::nullopt) << size;
    }
    controller->size = 32;
    EXPECT_EQ(smc.value("TC0P"), -0.5);
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
