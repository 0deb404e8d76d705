#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include <pwd.h>
#include <unistd.h>

#include "linux/answered_parts.h"
#include "linux/capture/tree_recorder.h"
#include "linux/kernel/linux_clock.h"
#include "linux/pass_folder.h"
#include "linux/processor/linux_system_information.h"
#include "platform/capture.h"
#include "samplers/processor_description.h"

namespace vantrix {
namespace {

namespace fs = std::filesystem;

/// What this machine and its user are called.
std::vector<std::string> ownNames() {
    std::vector<std::string> names;
    char host[256] = "";
    if (::gethostname(host, sizeof host - 1) == 0) {
        names.emplace_back(host);
        names.push_back(names.back().substr(0, names.back().find('.')));
    }
    if (const passwd* user = ::getpwuid(::getuid())) {
        names.emplace_back(user->pw_name);
        std::string person = user->pw_gecos != nullptr ? user->pw_gecos : "";
        person.resize(std::min(person.find(','), person.size()));
        names.push_back(person);
        for (auto blank = person.find(' '); blank != std::string::npos; blank = person.find(' ')) {
            names.push_back(person.substr(0, blank));
            person.erase(0, blank + 1);
        }
        names.push_back(person);
    }
    return names;
}

constexpr const char* readme = R"(What Vantrix reads on a machine, and nothing else of it, for people who look for
a fault in how it reads.

proc, sys     the kernel's files as they were read before the first pass
answers       what was learnt otherwise: time, room on the disk, the connection
pass-001 ...  what was other in each pass; the lists "absent", "folders" and
              "unreadable" tell what files cannot
records.json  what came of each pass

Hardware and network addresses, serial numbers, and the names of networks, of
this machine and of its user were replaced, everywhere alike. The models of
devices and the names of network interfaces are as they were. Please look
whether you would rather not show one that you chose yourself: grep -r NAME .
finds it, and it may be changed in every file that bears it.

To see it again: vantrix --replay DIR --print json
)";

class LinuxCapture : public Capture {
  public:
    LinuxCapture(std::string folder, const KernelRoots& roots, double interval)
        : folder_(std::move(folder)), roots_(roots), interval_(interval) {
        readingManner = {true, &recorder_};
    }
    ~LinuxCapture() override { readingManner = {}; }

    SamplingSources makeSources() override {
        return makeSamplingSources(roots_, makeAnsweredParts(roots_, answers_, clock_, &redaction_));
    }
    void beginPass() override;
    bool endPass(const std::string& record) override;
    std::size_t fileCount() const override;

  private:
    bool writeReadme() const;

    std::string folder_;
    KernelRoots roots_;
    double interval_;
    Redaction redaction_{ownNames()};
    TreeRecorder recorder_{roots_, redaction_};
    std::shared_ptr<Answers> answers_ = std::make_shared<Answers>();
    PassClock clock_;
    int passes_ = 0; // that were laid down
};

void LinuxCapture::beginPass() {
    const double now = std::round(LinuxClock().uptime() * 1000.0) / 1000.0;
    clock_.set(now);
    answers_->clear();
    answers_->set("clock", now);
    answers_->set("interval", interval_);
    recorder_.beginPass();
}

bool LinuxCapture::endPass(const std::string& record) {
    if (passes_ == 0) { // what a report of a replay needs
        diagnoseSources(roots_);
        const LinuxSystemInformation information(roots_.proc, roots_.sys);
        const ProcessorDescription processor(information);
        processor.brand();
        processor.cores();
    }
    const std::string layer = passFolder(folder_, passes_);
    if (!recorder_.layDown(layer) || !answers_->save(layer + "/answers"))
        return false;
    ++passes_;
    if (record.empty())
        return writeReadme();
    std::ofstream records(folder_ + "/records.json", std::ios::app);
    records << record << '\n';
    return static_cast<bool>(records.flush());
}

std::size_t LinuxCapture::fileCount() const {
    std::size_t count = 0;
    std::error_code error;
    for (fs::recursive_directory_iterator entry(folder_, error), end; !error && entry != end; entry.increment(error))
        count += fs::is_directory(entry->symlink_status(error)) ? 0 : 1;
    return count;
}

bool LinuxCapture::writeReadme() const {
    std::ofstream file(folder_ + "/README");
    file << readme;
    return static_cast<bool>(file.flush());
}

} // namespace

bool canCapture() {
    return true;
}

OrProblem<Capture> startCapture(const std::string& folder, const KernelRoots& roots, double interval) {
    std::error_code error;
    if (fs::exists(folder, error) && !fs::is_directory(folder, error))
        return folder + " is no folder";
    fs::create_directories(folder, error);
    const bool isEmpty = !error && fs::is_empty(folder, error);
    if (error)
        return "cannot write into the folder " + folder;
    if (!isEmpty)
        return "the folder " + folder + " is not empty";
    return std::make_unique<LinuxCapture>(folder, roots, interval);
}

} // namespace vantrix
