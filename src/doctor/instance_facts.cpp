#include "doctor/instance_facts.h"

#include <QString>

#include "support/size_text.h"

namespace vantrix {
namespace {

std::string decimal(double value, int digits) {
    return QString::number(value, 'f', digits).toStdString();
}

std::string perTime(double amount, double seconds, double unit, int digits) {
    return seconds > 0.0 ? decimal(amount * unit / seconds, digits) : std::string("–");
}

std::string cpuText(const ProcessStatistics& statistics) {
    const double all = statistics.userTime + statistics.systemTime;
    return decimal(all, 2) + " s (program " + decimal(statistics.userTime, 2) + ", kernel " +
           decimal(statistics.systemTime, 2) + "), " + perTime(all, statistics.uptime, 60.0, 2) + " s per minute";
}

std::string memoryTexts(const ProcessStatistics& statistics) {
    if (!statistics.residentBytes || !statistics.ownBytes)
        return "may not be read";
    return memoryText(*statistics.residentBytes, MemoryUnit::gb).toStdString() + ", of which " +
           memoryText(*statistics.ownBytes, MemoryUnit::gb).toStdString() + " its own";
}

std::string wakeUpsText(const ProcessStatistics& statistics) {
    if (!statistics.wakeUps)
        return "may not be read";
    return std::to_string(*statistics.wakeUps) + ", " +
           perTime(static_cast<double>(*statistics.wakeUps), statistics.uptime, 1.0, 1) + " per second, " +
           std::to_string(statistics.threads) + (statistics.threads == 1 ? " thread" : " threads");
}

InstanceFacts processFacts(const DoctorInstance& instance) {
    if (instance.pid == 0)
        return {{"Process", "Runs, but out of sight: in another container or sandbox."}};
    const std::string pid = std::to_string(instance.pid);
    if (!instance.statistics)
        return {{"Process", pid + ", whose /proc files cannot be read"}};
    const ProcessStatistics& statistics = *instance.statistics;
    return {{"Process", pid + ", for " + uptimeText(statistics.uptime)},
            {"CPU time", cpuText(statistics)},
            {"Memory", memoryTexts(statistics)},
            {"Wake-ups", wakeUpsText(statistics)}};
}

} // namespace

InstanceFacts instanceFacts(const std::optional<DoctorInstance>& instance) {
    if (!instance)
        return {{"", "None in this session."}};
    InstanceFacts facts = processFacts(*instance);
    if (!instance->statusItem.empty())
        facts.push_back({"Status item", instance->statusItem});
    return facts;
}

std::string uptimeText(double seconds) {
    const auto all = static_cast<long long>(seconds);
    const auto joined = [](long long large, const char* largeUnit, long long small, const char* smallUnit) {
        std::string text = std::to_string(large) + largeUnit;
        return small > 0 ? text + ' ' + std::to_string(small) + smallUnit : text;
    };
    if (all < 60)
        return std::to_string(all) + " s";
    if (all < 3600)
        return std::to_string(all / 60) + " min";
    if (all < 86400)
        return joined(all / 3600, " h", all / 60 % 60, " min");
    return joined(all / 86400, " d", all / 3600 % 24, " h");
}

} // namespace vantrix
