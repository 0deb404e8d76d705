#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include "platform/desktop_services.h"

namespace vantrix {
namespace {

/// Takes the parts of one library that are never written out of this process. They stay in the page cache; what is
/// needed again comes back from there.
int releaseReadOnlyParts(dl_phdr_info* library, std::size_t, void*) {
    const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    for (int i = 0; i < library->dlpi_phnum; ++i) {
        const auto& part = library->dlpi_phdr[i];
        if (part.p_type != PT_LOAD || (part.p_flags & PF_W) != 0)
            continue;
        const std::uintptr_t begin = (library->dlpi_addr + part.p_vaddr) / page * page;
        const std::uintptr_t end = library->dlpi_addr + part.p_vaddr + part.p_filesz;
        // The loader tells addresses as numbers. A refusal costs nothing. NOLINTNEXTLINE(performance-no-int-to-ptr)
        madvise(reinterpret_cast<void*>(begin), end - begin, MADV_DONTNEED);
    }
    return 0;
}

} // namespace

void releaseIdleMemory() {
    malloc_trim(0);
    dl_iterate_phdr(releaseReadOnlyParts, nullptr);
}

} // namespace vantrix
