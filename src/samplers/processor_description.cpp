#include "samplers/processor_description.h"

#include "support/localization.h"

namespace vantrix {
namespace {

std::string describeCores(const SystemInformation& information) {
    const auto logical = information.integer("hw.logicalcpu").value_or(information.processorCount());
    const auto performance = information.integer("hw.perflevel0.logicalcpu");
    const auto efficiency = information.integer("hw.perflevel1.logicalcpu");
    if (performance && efficiency)
        return formatted(localized("%lld cores (%lldP + %lldE)"), {logical, *performance, *efficiency});
    return localizedCount("%lld cores", logical);
}

} // namespace

const std::string& ProcessorDescription::brand() const {
    std::call_once(brandOnce_, [this] { brand_ = information_.text("machdep.cpu.brand_string").value_or("CPU"); });
    return brand_;
}

const std::string& ProcessorDescription::cores() const {
    std::call_once(coresOnce_, [this] { cores_ = describeCores(information_); });
    return cores_;
}

} // namespace vantrix
