#include "samplers/gpu_sampler.h"

#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

struct FakeAccelerators : GPUSampler::Source {
    std::vector<Properties> next;
    std::optional<std::span<const Properties>> read() override { return next; }
};

constexpr const char* device = "Device Utilization %";
constexpr const char* activity = "GPU Activity(%)";

TEST(GPUSampler, TellsTheBusiestAccelerator) {
    using Int = std::int64_t;
    const struct {
        const char* name;
        std::vector<Properties> accelerators;
        std::optional<double> load;
    } rows[] = {
        {"first key wins", {{{device, Int{20}}, {activity, Int{90}}}}, 0.2},
        {"not a number at all", {{{device, std::numeric_limits<double>::quiet_NaN()}}}, std::nullopt},
        {"above the scale", {{{device, Int{105}}}}, 1.0},
        {"below the scale", {{{device, Int{-3}}}}, 0.0},
        {"two and a silent one", {{{device, Int{20}}}, {}, {{activity, Int{70}}}, {{device, Int{30}}}}, 0.7},
        {"only silent ones", {{}, {}}, std::nullopt},
    };
    for (const auto& row : rows) {
        FakeAccelerators source;
        source.next = row.accelerators;
        EXPECT_EQ(GPUSampler(source).sample(), row.load) << row.name;
    }
}

} // namespace
} // namespace vantrix
