#include <algorithm>

#include "doctor/examination.h"

namespace vantrix {
namespace {

bool canHaveValue(const SourceDiagnosis& diagnosis) {
    return diagnosis.state == SourceState::ok || diagnosis.state == SourceState::asleep;
}

/// The row of a reading that shows its value: the first that works, else the first that sleeps, else the first.
std::size_t mainRow(const std::vector<SourceDiagnosis>& diagnoses, const std::string& name) {
    const auto find = [&](auto fits) {
        return std::find_if(diagnoses.begin(), diagnoses.end(),
                            [&](const SourceDiagnosis& row) { return row.name == name && fits(row); });
    };
    auto found = find([](const SourceDiagnosis& row) { return row.state == SourceState::ok; });
    if (found == diagnoses.end())
        found = find(canHaveValue);
    if (found == diagnoses.end())
        found = find([](const SourceDiagnosis&) { return true; });
    return static_cast<std::size_t>(found - diagnoses.begin());
}

void addToReason(SourceDiagnosis& row, const std::string& words) {
    row.reason += (row.reason.empty() || words.empty() ? "" : " ") + words;
}

/// "37%", or "37%, highest of 3" where several devices of one reading work.
std::string valueOf(const std::vector<SourceDiagnosis>& diagnoses, const std::string& name, const std::string& value) {
    const auto count = std::count_if(diagnoses.begin(), diagnoses.end(), [&](const SourceDiagnosis& row) {
        return row.name == name && row.state == SourceState::ok;
    });
    return count > 1 ? value + ", highest of " + std::to_string(count) : value;
}

void explainMissingValue(SourceDiagnosis& row, const Finding& finding) {
    if (row.state != SourceState::ok)
        return;
    if (finding.isSilent || (finding.note.empty() && row.reason.empty())) {
        row.state = SourceState::silent;
        row.reason = finding.isSilent ? "A read did not end in time; its driver or device hangs."
                                      : "It is there, but gives no value now.";
        return;
    }
    row.state = SourceState::absent; // for a reason that is known
    addToReason(row, finding.note);
}

} // namespace

std::vector<DoctorRow> joined(const std::vector<SourceDiagnosis>& diagnoses, const Findings& findings) {
    std::vector<DoctorRow> rows;
    for (std::size_t i = 0; i < diagnoses.size(); ++i) {
        rows.push_back({diagnoses[i], {}});
        SourceDiagnosis& row = rows.back().diagnosis;
        const auto found = findings.find(row.name);
        if (found == findings.end() || mainRow(diagnoses, row.name) != i)
            continue;
        rows.back().microseconds = found->second.microseconds;
        if (found->second.value.empty() || found->second.isSilent) {
            explainMissingValue(row, found->second);
        } else if (canHaveValue(row)) {
            row.value = valueOf(diagnoses, row.name, found->second.value);
            addToReason(row, found->second.note);
        }
    }
    return rows;
}

} // namespace vantrix
