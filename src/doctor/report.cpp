#include "doctor/report.h"

#include <numeric>

namespace vantrix {
namespace {

/// Whole folders only: not "/home/ann" in "/home/anna" or in "/mnt/home/ann".
void replaceFolder(std::string& text, const std::string& folder, const std::string& name) {
    const auto endsFolder = [&](std::size_t at) { return at == text.size() || text.find_first_of("/ ,", at) == at; };
    for (auto at = text.find(folder); at != std::string::npos; at = text.find(folder, at + 1)) {
        const bool beginsPath = at == 0 || text[at - 1] == ' ' || text[at - 1] == '=';
        if (beginsPath && endsFolder(at + folder.size()))
            text.replace(at, folder.size(), name);
    }
}

} // namespace

const char* wordOf(SourceState state) {
    switch (state) {
    case SourceState::ok:
        break;
    case SourceState::absent:
        return "absent";
    case SourceState::asleep:
        return "asleep";
    case SourceState::denied:
        return "denied";
    case SourceState::silent:
        return "silent";
    case SourceState::damaged:
        return "damaged";
    }
    return "ok";
}

double passMicroseconds(const DoctorReport& report) {
    const auto& rows = report.readings;
    return std::accumulate(rows.begin(), rows.end(), 0.0, [](double sum, const DoctorRow& row) {
        // Accessories are looked for every half minute, programs while somebody wants to know.
        const bool isOnPass =
            row.diagnosis.name != reading_name::accessories && row.diagnosis.name != reading_name::programs;
        return isOnPass ? sum + row.microseconds.value_or(0.0) : sum;
    });
}

void renameFolder(DoctorReport& report, const std::string& folder, const std::string& name) {
    if (folder.size() < 2)
        return;
    for (auto& [label, text] : report.system)
        replaceFolder(text, folder, name);
    for (auto* rows : {&report.readings, &report.services})
        for (DoctorRow& row : *rows) {
            replaceFolder(row.diagnosis.source, folder, name);
            replaceFolder(row.diagnosis.reason, folder, name);
        }
}

} // namespace vantrix
