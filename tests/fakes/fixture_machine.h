#pragma once

#include "linux/capture/captured_tree.h"
#include "linux/pass_folder.h"
#include "linux/temporary_folder.h"
#include "platform/sampling_sources.h"

namespace vantrix::fakes {

/// The kernel's trees of a machine under tests/fixtures: the ordinary desktop there, over it the machine's own files
/// and what is other in its first `passes`.
class FixtureMachine : public TemporaryFolder {
  public:
    explicit FixtureMachine(const std::string& name, int passes = 0) {
        const std::string machine = std::string(FIXTURES) + '/' + name;
        lay(std::string(FIXTURES) + "/ordinary-desktop");
        for (int pass = 0; pass <= passes; ++pass)
            lay(passFolder(machine, pass));
        if (std::filesystem::exists(machine + "/statvfs"))
            std::filesystem::copy(machine + "/statvfs", path("statvfs"));
    }

    KernelRoots roots() const { return {path("proc"), path("sys")}; }

  private:
    void lay(const std::string& layer) const {
        if (!layOver(path("."), layer))
            std::abort(); // a test of a machine that is there in part would mean nothing
    }
};

} // namespace vantrix::fakes
