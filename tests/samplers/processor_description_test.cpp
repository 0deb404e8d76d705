#include "samplers/processor_description.h"

#include <map>

#include <gtest/gtest.h>

namespace vantrix {
namespace {

struct FakeInformation : SystemInformation {
    std::map<std::string, std::int64_t, std::less<>> integers;
    std::optional<std::string> brand;
    mutable int questions = 0;

    std::optional<std::int64_t> integer(std::string_view name) const override {
        ++questions;
        const auto found = integers.find(name);
        return found == integers.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<std::string> text(std::string_view name) const override {
        ++questions;
        return name == "machdep.cpu.brand_string" ? brand : std::nullopt;
    }
    int processorCount() const override { return 6; }
};

TEST(ProcessorDescription, TellsKindsOfCoresOnlyWhereBothAreKnown) {
    struct Row {
        decltype(FakeInformation::integers) integers;
        const char* text;
    };
    const Row rows[] = {
        {{{"hw.logicalcpu", 10}, {"hw.perflevel0.logicalcpu", 8}, {"hw.perflevel1.logicalcpu", 2}},
         "10 cores (8P + 2E)"},
        {{{"hw.logicalcpu", 8}, {"hw.perflevel0.logicalcpu", 8}}, "8 cores"},
        {{{"hw.logicalcpu", 8}, {"hw.perflevel1.logicalcpu", 8}}, "8 cores"},
        {{{"hw.logicalcpu", 1024}}, "1024 cores"},
        {{}, "6 cores"},
    };
    for (const Row& row : rows) {
        FakeInformation information;
        information.integers = row.integers;
        EXPECT_EQ(ProcessorDescription(information).cores(), row.text);
    }
}

TEST(ProcessorDescription, AsksOnceAndKeepsTheAnswer) {
    FakeInformation information;
    information.brand = "Some CPU";
    const ProcessorDescription description(information);
    EXPECT_EQ(information.questions, 0);
    EXPECT_EQ(description.brand(), "Some CPU");
    information.brand = "Another";
    EXPECT_EQ(description.brand(), "Some CPU");
    EXPECT_EQ(information.questions, 1);
}

TEST(ProcessorDescription, UnknownBrandIsCPU) {
    const FakeInformation information;
    EXPECT_EQ(ProcessorDescription(information).brand(), "CPU");
}

} // namespace
} // namespace vantrix
