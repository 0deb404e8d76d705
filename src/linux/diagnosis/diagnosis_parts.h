#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "linux/disks/volume.h"
#include "platform/diagnosis.h"

namespace vantrix {

/// Whether this user may read a file.
enum class Reach { readable, missing, denied };

/// Asked of the file system's permissions alone: opening a device's file might wake it.
Reach reachOf(const std::string& path);

/// What a diagnosis asks. Through the functions, tests answer for other users and machines.
struct DiagnosisTools {
    KernelRoots roots;
    std::function<Reach(const std::string& path)> reach = reachOf;
    std::function<bool()> hasNvidiaLibrary;
    AskVolume volume = askVolume;
};

using SourceDiagnoses = std::vector<SourceDiagnosis>;

// Each appends the rows of its readings.
void diagnoseCounters(const DiagnosisTools& tools, SourceDiagnoses& rows); ///< processor to pressure
void diagnoseNetwork(const DiagnosisTools& tools, SourceDiagnoses& rows);  ///< network, connection, Wi-Fi
void diagnoseDisks(const DiagnosisTools& tools, SourceDiagnoses& rows);    ///< space and rates
void diagnoseGPUs(const DiagnosisTools& tools, SourceDiagnoses& rows);
void diagnoseSensors(const DiagnosisTools& tools, SourceDiagnoses& rows);  ///< temperatures and fans
void diagnosePower(const DiagnosisTools& tools, SourceDiagnoses& rows);    ///< system and chip power
void diagnoseSupplies(const DiagnosisTools& tools, SourceDiagnoses& rows); ///< battery and accessories

/// The row of a reading that stands or falls with one file.
SourceDiagnosis diagnosisOfFile(const DiagnosisTools& tools, std::string_view name, const std::string& path,
                                std::string_view reasonIfMissing);

/// All of them, in order.
SourceDiagnoses diagnoseSources(const DiagnosisTools& tools);

} // namespace vantrix
