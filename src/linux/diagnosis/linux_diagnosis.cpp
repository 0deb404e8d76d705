#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

#include "linux/diagnosis/diagnosis_parts.h"
#include "linux/graphics/nvidia_library.h"
#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/reading_manner.h"

namespace vantrix {

Reach reachOf(const std::string& path) {
    if (readingManner.watch != nullptr)
        readingManner.watch->find(path, 0);
    if (::faccessat(AT_FDCWD, placeOf(path).c_str(), R_OK, AT_EACCESS) == 0)
        return Reach::readable;
    return errno == EACCES || errno == EPERM ? Reach::denied : Reach::missing;
}

SourceDiagnosis diagnosisOfFile(const DiagnosisTools& tools, std::string_view name, const std::string& path,
                                std::string_view reasonIfMissing) {
    switch (tools.reach(path)) {
    case Reach::readable:
        break;
    case Reach::missing:
        return {std::string(name), path, SourceState::absent, {}, std::string(reasonIfMissing)};
    case Reach::denied:
        return {std::string(name),
                path,
                SourceState::denied,
                {},
                "This user may not read the file. On an ordinary system everyone may: look for a sandbox, or for "
                "hidepid or a security policy on the file system."};
    }
    return {std::string(name), path, SourceState::ok, {}, {}};
}

SourceDiagnoses diagnoseSources(const DiagnosisTools& tools) {
    SourceDiagnoses rows;
    for (const auto part : {diagnoseCounters, diagnoseNetwork, diagnoseDisks, diagnoseGPUs, diagnoseSensors,
                            diagnosePower, diagnoseSupplies})
        part(tools, rows);
    return rows;
}

std::vector<SourceDiagnosis> diagnoseSources(const KernelRoots& roots) {
    return diagnoseSources(DiagnosisTools{roots, reachOf, isNvidiaLibraryInstalled});
}

} // namespace vantrix
