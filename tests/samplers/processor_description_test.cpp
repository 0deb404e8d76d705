#include "samplers/processor_description.h"

#include <gtest/gtest.h>

#include "fakes/fake_sources.h"

namespace vantrix {
namespace {

TEST(ProcessorDescription, TellsKindsOfCoresOnlyWhereBothAreKnown) {
    const std::pair<decltype(fakes::FakeInformation::integers), const char*> rows[] = {
        {{{"hw.logicalcpu", 10}, {"hw.perflevel0.logicalcpu", 8}, {"hw.perflevel1.logicalcpu", 2}},
         "10 cores (8P + 2E)"},
        {{{"hw.logicalcpu", 8}, {"hw.perflevel0.logicalcpu", 8}}, "8 cores"},
        {{{"hw.logicalcpu", 8}, {"hw.perflevel1.logicalcpu", 8}}, "8 cores"},
        {{}, "2 cores"},
    };
    for (const auto& [integers, text] : rows) {
        fakes::FakeInformation information;
        information.integers = integers;
        EXPECT_EQ(ProcessorDescription(information).cores(), text);
    }
}

TEST(ProcessorDescription, AsksOnceAndKeepsTheAnswer) {
    fakes::FakeInformation information;
    const ProcessorDescription description(information);
    EXPECT_EQ(description.brand(), "Test processor");
    information.brand.reset();
    EXPECT_EQ(description.brand(), "Test processor");
    EXPECT_EQ(ProcessorDescription(information).brand(), "CPU");
}

} // namespace
} // namespace vantrix
