#include <filesystem>

#include "linux/answered_parts.h"
#include "linux/capture/captured_tree.h"
#include "linux/diagnosis/diagnosis_parts.h"
#include "linux/kernel/reading_manner.h"
#include "linux/pass_folder.h"
#include "platform/capture.h"

namespace vantrix {
namespace {

class LinuxReplay : public Replay {
  public:
    explicit LinuxReplay(std::string folder) : folder_(std::move(folder)) { readingManner.isRepeatable = true; }
    ~LinuxReplay() override { readingManner = {}; }

    SamplingSources makeSources() override {
        return makeSamplingSources(roots(), makeAnsweredParts(roots(), answers_, clock_, nullptr));
    }
    bool nextPass() override { return layPass(pass_ + 1); }
    std::optional<double> interval() const override { return answers_->number("interval"); }
    KernelRoots roots() const override { return tree_.roots(); }
    std::vector<SourceDiagnosis> diagnose() const override;

    bool layPass(int pass);

  private:
    std::string folder_;
    CapturedTree tree_;
    std::shared_ptr<Answers> answers_ = std::make_shared<Answers>();
    PassClock clock_;
    int pass_ = 0;
};

bool LinuxReplay::layPass(int pass) {
    const std::string layer = passFolder(folder_, pass);
    std::error_code error;
    if (!std::filesystem::is_directory(layer, error) || !tree_.lay(layer))
        return false;
    answers_->load(layer + "/answers");
    constexpr double usualPeriod = 2.0; // of a machine that was put together by hand
    clock_.set(answers_->number("clock").value_or(clock_.uptime() + usualPeriod));
    pass_ = pass;
    return true;
}

std::vector<SourceDiagnosis> LinuxReplay::diagnose() const {
    const auto hasVolume = [answers = answers_](const std::string&, struct statvfs& answer) {
        answer = {};
        return answers->has("volume");
    };
    const auto hasNvidia = [answers = answers_] { return answers->text("nvidia.installed") == "1"; };
    return diagnoseSources(DiagnosisTools{roots(), reachOf, hasNvidia, hasVolume});
}

} // namespace

OrProblem<Replay> startReplay(const std::string& folder) {
    std::error_code error;
    const auto holds = [&](const char* entry) { return std::filesystem::exists(folder + entry, error); };
    if (!holds("/proc") && !holds("/sys") && !holds("/bases"))
        return folder + " holds no capture";
    auto replay = std::make_unique<LinuxReplay>(folder);
    if (!replay->layPass(0))
        return "the capture in " + folder + " cannot be laid out";
    return replay;
}

} // namespace vantrix
