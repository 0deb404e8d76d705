#include "doctor/examination.h"

#include <future>

#include <gmock/gmock.h>

#include "fakes/fake_sources.h"

namespace vantrix {
namespace {

using ::testing::HasSubstr;

constexpr std::chrono::seconds patience{20};

SourceDiagnosis source(std::string_view name, SourceState state = SourceState::ok, const char* reason = "") {
    return {std::string(name), "file", state, "", reason};
}

Finding found(const char* value, const char* note = "") {
    return {value, note, 5.0, false};
}

TEST(Examination, TakesLoadsAndRatesBetweenItsPasses) {
    fakes::FakeMachine machine;
    Examination examination(machine.makeSources(), patience);
    machine.accessories->result.accessories = {{{"Ann's mouse", 64}}, {{"Pen", 5}}};
    examination.beginPass();
    EXPECT_EQ(machine.accessories->scans, 0); // slow, and in need of no baseline
    machine.cpu->advance(30, 100);
    machine.processes->processes[1].cpuTime = 2'000'000'000;
    machine.disks->disks = {{{4'000'000, 0}}};
    machine.network->links->front().counters = NetworkSampler::Counters{2'000'000, 1000};
    machine.clock->now += 2.0;
    auto findings = examination.finish();
    EXPECT_EQ(findings["Processor"].value, "30%");
    EXPECT_EQ(findings["Programs"].value, "2 processes, busiest 25%"); // no names here either
    EXPECT_EQ(findings["Network"].value, "in 1.0M/s, out 0K/s");
    EXPECT_EQ(findings["Disk rates"].value, "read 2.0M/s, write 0K/s");
    EXPECT_EQ(findings["Accessories"].value, "64%, 5%"); // and no names
    EXPECT_EQ(machine.accessories->scans, 1);
    examination.choose("en0", "/home");
    findings = examination.finish();
    EXPECT_EQ(findings["Network"].note, "Of the port en0 alone, as the settings choose.");
    EXPECT_EQ(findings["Disk space"].note, "Of the volume at /home, as the settings choose.");
    examination.choose("en5", "/gone");
    machine.volume->volume.reset();
    findings = examination.finish();
    EXPECT_EQ(findings["Network"].value + findings["Disk space"].value, "");
    EXPECT_THAT(findings["Network"].note, HasSubstr("port en5"));
    EXPECT_THAT(findings["Disk space"].note, HasSubstr("mounted at /gone"));
    EXPECT_GE(findings["Memory"].microseconds.value_or(-1.0), 0.0);
    EXPECT_EQ(findings["Pressure"].microseconds, std::nullopt); // the same read as the memory's
}

TEST(Examination, ASourceThatHangsIsLeftBehindAlone) {
    struct Hanging : MemorySampler::Source {
        std::shared_future<void> end;
        explicit Hanging(std::promise<void>& promise) : end(promise.get_future().share()) {}
        std::optional<MemorySampler::Statistics> read() override {
            end.wait();
            return std::nullopt;
        }
    };
    std::promise<void> end;
    fakes::FakeMachine machine;
    auto sources = machine.makeSources();
    sources.memory = std::make_unique<Hanging>(end);
    Findings findings;
    {
        Examination examination(std::move(sources), std::chrono::milliseconds(1000));
        examination.beginPass();
        machine.cpu->advance(50, 100);
        findings = examination.finish();
        EXPECT_TRUE(examination.leftThreadBehind());
    }
    EXPECT_EQ(findings["Processor"].value, "50%");
    // Both that the read would have given; and whether or not a row tells of it, the thread is there.
    const auto rows = joined({source("Memory", SourceState::absent), source("Pressure")}, findings);
    EXPECT_EQ(rows.front().diagnosis.state, SourceState::absent);
    EXPECT_EQ(rows.back().diagnosis.state, SourceState::silent);
    EXPECT_THAT(rows.back().diagnosis.reason, HasSubstr("did not end in time"));
    end.set_value(); // the read ends after what it was for
}

TEST(Examination, AReadThatFailsLeavesNoneOfItsReadingsWithoutWords) {
    fakes::FakeMachine machine;
    Examination examination(machine.makeSources(), patience);
    machine.memory->statistics.reset();
    const auto rows = joined({source("Memory"), source("Pressure"), source("Wi-Fi")}, examination.finish());
    for (const DoctorRow& row : rows)
        EXPECT_EQ(row.diagnosis.state, SourceState::silent) << row.diagnosis.name;
}

TEST(JoinedRows, SayWhatSourceAndValueTellTogether) {
    const struct {
        const char* name;
        SourceDiagnosis source;
        Finding finding;
        SourceState state;
        const char* value;
        const char* reason;
    } rows[] = {
        {"sleeps", source("A", SourceState::asleep, "Sleeps."), found("0%"), SourceState::asleep, "0%", "Sleeps."},
        {"should answer", source("A"), found(""), SourceState::silent, "", "It is there, but gives no value now."},
        {"need not answer", source("A", SourceState::ok, "At times."), found(""), SourceState::absent, "", "At times."},
        {"cannot answer", source("A"), found("", "Not over it."), SourceState::absent, "", "Not over it."},
        {"absent", source("A", SourceState::absent, "None."), found("0"), SourceState::absent, "", "None."},
    };
    for (const auto& row : rows) {
        const auto result = joined({row.source}, {{"A", row.finding}});
        EXPECT_EQ(result.front().diagnosis, (SourceDiagnosis{"A", "file", row.state, row.value, row.reason}))
            << row.name;
        EXPECT_EQ(result.front().microseconds, 5.0) << row.name;
    }
}

} // namespace
} // namespace vantrix
