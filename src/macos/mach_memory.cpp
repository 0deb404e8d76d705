#include "macos/mach_memory.h"

#include <array>
#include <cstring>

#include <sys/sysctl.h>
#include <unistd.h>

namespace vantrix {
namespace {

std::optional<vm_statistics64_data_t> readPages(host_t host) {
    std::array<integer_t, 104> words{}; // larger than the record, which grows from release to release
    auto count = static_cast<mach_msg_type_number_t>(words.size());
    if (host_statistics64(host, HOST_VM_INFO64, words.data(), &count) != KERN_SUCCESS)
        return std::nullopt;
    vm_statistics64_data_t pages;
    static_assert(sizeof pages <= sizeof words);
    std::memcpy(&pages, words.data(), sizeof pages);
    return pages;
}

std::optional<std::uint64_t> swapUsed() {
    xsw_usage swap{};
    return readSystemValue("vm.swapusage", &swap, sizeof swap) ? std::optional<std::uint64_t>(swap.xsu_used)
                                                               : std::nullopt;
}

} // namespace

std::optional<MemorySampler::Statistics> MachMemory::read() {
    const auto pages = readPages(host_.port());
    if (!pages)
        return std::nullopt;
    MemorySampler::Statistics statistics;
    statistics.wireCount = pages->wire_count;
    statistics.purgeableCount = pages->purgeable_count;
    statistics.compressorPageCount = pages->compressor_page_count;
    statistics.internalPageCount = pages->internal_page_count;
    statistics.pageSize = static_cast<std::uint64_t>(getpagesize());
    readSystemValue("hw.memsize", &statistics.physicalMemory, sizeof statistics.physicalMemory);
    statistics.swapUsed = swapUsed();
    statistics.pressureLevel = information_.integer("kern.memorystatus_vm_pressure_level");
    return statistics;
}

} // namespace vantrix
