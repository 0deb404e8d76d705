#include "library_readings.h"

#include <cstdio>
#include <cstdlib>
#include <iterator>

#include <glibtop.h>
#include <glibtop/cpu.h>
#include <glibtop/fsusage.h>
#include <glibtop/mem.h>
#include <glibtop/netlist.h>
#include <glibtop/netload.h>
#include <glibtop/swap.h>
#include <libproc2/diskstats.h>
#include <libproc2/meminfo.h>
#include <libproc2/pids.h>
#include <libproc2/stat.h>

namespace vantrix::bench {
namespace {

void require(bool isGood, const char* what) {
    if (isGood)
        return;
    std::fprintf(stderr, "%s cannot be read\n", what);
    std::exit(1);
}

} // namespace

struct Proc2Reading::Handles {
    stat_info* processors = nullptr;
    meminfo_info* memory = nullptr;
    diskstats_info* disks = nullptr;
};

Proc2Reading::Proc2Reading() : handles_(std::make_unique<Handles>()) {
    require(procps_stat_new(&handles_->processors) == 0, "processors");
    require(procps_meminfo_new(&handles_->memory) == 0, "memory");
    require(procps_diskstats_new(&handles_->disks) == 0, "disks");
}

Proc2Reading::~Proc2Reading() {
    procps_stat_unref(&handles_->processors);
    procps_meminfo_unref(&handles_->memory);
    procps_diskstats_unref(&handles_->disks);
}

void Proc2Reading::pass() {
    stat_item ticks[] = {STAT_TIC_USER, STAT_TIC_NICE, STAT_TIC_SYSTEM, STAT_TIC_IDLE, STAT_TIC_IOWAIT};
    meminfo_item memory[] = {MEMINFO_MEM_TOTAL, MEMINFO_MEM_AVAILABLE, MEMINFO_MEM_ANON, MEMINFO_MEM_SHARED,
                             MEMINFO_SWAP_USED};
    diskstats_item disks[] = {DISKSTATS_NAME, DISKSTATS_TYPE, DISKSTATS_READ_SECTORS, DISKSTATS_WRITE_SECTORS};
    require(procps_stat_reap(handles_->processors, STAT_REAP_CPUS_ONLY, ticks, std::size(ticks)) != nullptr,
            "processors");
    require(procps_meminfo_select(handles_->memory, memory, std::size(memory)) != nullptr, "memory");
    require(procps_diskstats_reap(handles_->disks, disks, std::size(disks)) != nullptr, "disks");
}

struct Proc2Processes::Handle {
    pids_info* processes = nullptr;
};

Proc2Processes::Proc2Processes() : handle_(std::make_unique<Handle>()) {
    pids_item items[] = {PIDS_ID_PID,   PIDS_CMD,        PIDS_ID_PPID, PIDS_ID_SESSION,
                         PIDS_TICS_ALL, PIDS_TICS_BEGAN, PIDS_FLAGS,   PIDS_RSS};
    require(procps_pids_new(&handle_->processes, items, std::size(items)) == 0, "processes");
}

Proc2Processes::~Proc2Processes() {
    procps_pids_unref(&handle_->processes);
}

int Proc2Processes::pass() {
    const pids_fetch* fetched = procps_pids_reap(handle_->processes, PIDS_FETCH_TASKS_ONLY);
    require(fetched != nullptr, "processes");
    return fetched->counts->total;
}

GTopReading::GTopReading() {
    require(glibtop_init() != nullptr, "libgtop");
}

void GTopReading::pass() {
    glibtop_cpu processors;
    glibtop_mem memory;
    glibtop_swap swap;
    glibtop_fsusage volume;
    glibtop_netlist list;
    glibtop_get_cpu(&processors);
    glibtop_get_mem(&memory);
    glibtop_get_swap(&swap);
    glibtop_get_fsusage(&volume, "/");
    char** names = glibtop_get_netlist(&list);
    for (unsigned i = 0; i < list.number; ++i) {
        glibtop_netload load;
        glibtop_get_netload(&load, names[i]);
    }
    g_strfreev(names);
}

} // namespace vantrix::bench
