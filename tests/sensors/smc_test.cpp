#include "sensors/smc.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

using Bytes = std::vector<std::uint8_t>;

struct FakeController : SMC::Transport {
    std::uint32_t size = 2;
    std::string type = "87ps"; // least significant first
    Bytes bytes = {0x2e, 0x80};
    int failingCall = 0; // the call that fails, counted from 1
    int refusedCall = 0; // the call whose record tells of a failure
    std::vector<SMC::Record> questions;

    bool call(const SMC::Record& question, SMC::Record& answer) override {
        questions.push_back(question);
        const auto number = static_cast<int>(questions.size());
        answer.fill(0xee);
        answer[40] = number == refusedCall ? 0x84 : 0;
        for (std::size_t i = 0; i < 4; ++i) {
            // The size is told by the first answer alone.
            answer[28 + i] = static_cast<std::uint8_t>(number == 1 ? size >> (8 * i) : 0xee);
            answer[32 + i] = static_cast<std::uint8_t>(type[i]);
        }
        std::copy(bytes.begin(), bytes.end(), answer.begin() + 48);
        return number != failingCall;
    }
};

struct SMCTest : ::testing::Test {
    FakeController* controller = new FakeController;
    SMC smc{std::unique_ptr<SMC::Transport>(controller)};
};

TEST_F(SMCTest, AsksForTheKindThenForTheBytes) {
    EXPECT_EQ(smc.value("TC0P"), 46.5);
    SMC::Record question{'P', '0', 'C', 'T'};
    question[42] = 9;
    ASSERT_EQ(controller->questions.size(), 2u);
    EXPECT_EQ(controller->questions[0], question);
    question[42] = 5;
    question[28] = 2;
    EXPECT_EQ(controller->questions[1], question);
}

TEST_F(SMCTest, EveryReadAsksAnewAndTakesAllBytesThereMayBe) {
    EXPECT_EQ(smc.value("TC0P"), 46.5);
    controller->questions.clear();
    controller->bytes = {0xff, 0x80};
    controller->size = 32;
    EXPECT_EQ(smc.value("TC0P"), -0.5);
}

TEST(SMCFailure, IsAbsence) {
    const struct {
        const char* name;
        std::uint32_t size;
        int failingCall;
        int refusedCall;
        std::size_t calls;
    } rows[] = {
        {"no bytes", 0, 0, 0, 1},
        {"too many bytes", 33, 0, 0, 1},
        {"a size of four bytes", 0x01000002, 0, 0, 1},
        {"first call fails", 2, 1, 0, 1},
        {"first call refused", 2, 0, 1, 1},
        {"second call fails", 2, 2, 0, 2},
        {"second call refused", 2, 0, 2, 2},
    };
    for (const auto& row : rows) {
        auto* const controller = new FakeController;
        SMC smc{std::unique_ptr<SMC::Transport>(controller)};
        controller->size = row.size;
        controller->failingCall = row.failingCall;
        controller->refusedCall = row.refusedCall;
        EXPECT_EQ(smc.value("TC0P"), std::nullopt) << row.name;
        EXPECT_EQ(controller->questions.size(), row.calls) << row.name;
    }
}

TEST(SMCDecode, KnowsTheControllersTypes) {
    const std::tuple<const char*, Bytes, std::optional<double>> rows[] = {
        {"flt ", {0x00, 0x00, 0x28, 0x42}, 42.0}, // little-endian
        {"flt ", {0x00, 0x00, 0xc0, 0x7f}, {}},   // not a number
        {"flt ", {0x00, 0x00, 0x80, 0xff}, {}},   // infinite
        {"flt ", {0x00, 0x00, 0x28}, {}},
        {"flt", {0x00, 0x00, 0x28, 0x42}, {}},
        {"ui8 ", {0xfe, 0x01}, 254.0},
        {"ui8 ", {}, {}},
        {"ui16", {0x12, 0x34, 0x56}, 0x1234},
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
