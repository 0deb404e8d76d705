#pragma once

#include "linux/temporary_folder.h"
#include "platform/sampling_sources.h"

namespace vantrix::fakes {

/// The kernel's trees of a machine under tests/fixtures: the ordinary desktop there, the machines that the machine's
/// file `bases` lists, and over them its own files. What its file `absent` lists, it lacks.
class FixtureMachine : public TemporaryFolder {
  public:
    explicit FixtureMachine(const std::string& name) {
        lay("ordinary-desktop");
        lay(name);
    }

    KernelRoots roots() const { return {path("proc"), path("sys")}; }

  private:
    void lay(const std::string& name) const {
        using Options = std::filesystem::copy_options;
        const std::string machine = std::string(FIXTURES) + '/' + name;
        std::string line;
        for (std::ifstream bases(machine + "/bases"); std::getline(bases, line);)
            lay(line);
        for (std::ifstream absent(machine + "/absent"); std::getline(absent, line);)
            remove(line);
        std::filesystem::copy(machine, path(""),
                              Options::recursive | Options::copy_symlinks | Options::overwrite_existing);
        remove("absent");
        remove("bases");
    }
};

} // namespace vantrix::fakes
