#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/diagnosis.h"

namespace vantrix {

/// One line of the report: a diagnosis, with what was measured.
struct DoctorRow {
    SourceDiagnosis diagnosis;          ///< its value is the measured one
    std::optional<double> microseconds; ///< what one read costs; absent where none was timed, or a row above has it
};

/// The running instance of this session.
struct DoctorInstance {
    int pid = 0; ///< 0 when it runs in another namespace of processes
    std::optional<ProcessStatistics> statistics;
    std::string statusItem; ///< where it is shown; empty when it does not tell
};

/// What `vantrix --doctor` tells. English, and without anything private: see `SourceDiagnosis`.
struct DoctorReport {
    std::vector<std::pair<std::string, std::string>> system; ///< what the machine and the session are, by label
    std::vector<DoctorRow> readings;
    std::vector<DoctorRow> services;
    std::optional<DoctorInstance> instance; ///< absent when none runs
    std::string advice = {};                ///< for people alone; may be empty
};

/// One word for people and scripts: "ok", "absent", "asleep", "denied", "silent" or "damaged".
const char* wordOf(SourceState state);

/// Microseconds that one pass over all readings takes.
double passMicroseconds(const DoctorReport& report);

/// For people: columns in lines of at most `width` characters wherever words allow. `width` is at least 60.
std::string textReport(const DoctorReport& report, int width);

/// For scripts: one JSON object, indented.
std::string jsonReport(const DoctorReport& report);

/// Writes `name` for `folder` wherever a path in the report begins with it: "~" for the home folder, which holds the
/// user's name.
void renameFolder(DoctorReport& report, const std::string& folder, const std::string& name);

} // namespace vantrix
