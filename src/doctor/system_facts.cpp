#include "doctor/system_facts.h"

#include <QString>
#include <QSysInfo>

#include "samplers/processor_description.h"

namespace vantrix {
namespace {

std::string variable(const char* name) {
    return qEnvironmentVariable(name).toStdString();
}

std::string sessionText() {
    const std::string desktop = variable("XDG_CURRENT_DESKTOP");
    const std::string type = variable("XDG_SESSION_TYPE");
    std::string displays;
    for (const auto& [name, shown] : {std::pair("WAYLAND_DISPLAY", "Wayland"), std::pair("DISPLAY", "X11")})
        if (qEnvironmentVariableIsSet(name))
            displays += (displays.empty() ? "" : " and ") + std::string(shown);
    return (desktop.empty() ? "unknown desktop" : desktop) + (type.empty() ? "" : ", type " + type) + ", " +
           (displays.empty() ? "no display" : "display " + displays);
}

} // namespace

std::vector<std::pair<std::string, std::string>>
systemFacts(const std::string& version, const SystemInformation& information, const KernelRoots& roots) {
    const ProcessorDescription processor(information);
    std::vector<std::pair<std::string, std::string>> facts{
        {"Vantrix", version + ", Qt " + qVersion()},
        {"System", QSysInfo::prettyProductName().toStdString() + ", kernel " + QSysInfo::kernelVersion().toStdString() +
                       ", " + QSysInfo::currentCpuArchitecture().toStdString()},
        {"Processor", processor.brand() + ", " + processor.cores()},
        {"Session", sessionText()},
    };
    if (roots != KernelRoots())
        facts.emplace_back("Roots", "<proc> " + roots.proc + ", <sys> " + roots.sys);
    return facts;
}

} // namespace vantrix
