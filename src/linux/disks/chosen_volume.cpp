#include "linux/disks/chosen_volume.h"

#include <condition_variable>
#include <mutex>
#include <utility>

#include <sys/stat.h>

#include "linux/disks/volume.h"

namespace vantrix {
namespace {

/// A mount point is on another device than the folder that it is in, or is the root.
bool isMountPoint(const std::string& folder) {
    struct stat own {};
    struct stat above {};
    if (stat(folder.c_str(), &own) != 0 || stat((folder + "/..").c_str(), &above) != 0)
        return false;
    return own.st_dev != above.st_dev || own.st_ino == above.st_ino;
}

} // namespace

std::optional<DiskSampler::Volume> volumeAt(const std::string& folder) {
    struct statvfs statistics {};
    if (!isMountPoint(folder) || !askVolume(folder, statistics))
        return std::nullopt; // what a folder that nothing is mounted at could tell is of another volume
    return capacityOf(statistics);
}

struct ChosenVolume::Question : Background::Job {
    Question(std::string where, Ask how) : folder(std::move(where)), ask(std::move(how)) {}

    void perform() override {
        auto found = ask(folder);
        const std::lock_guard lock(mutex);
        answer = found;
        isUnderWay = false;
        answered.notify_all();
    }

    const std::string folder;
    const Ask ask;
    std::mutex mutex;
    std::condition_variable answered;
    bool isUnderWay = false;
    std::optional<DiskSampler::Volume> answer;
};

ChosenVolume::ChosenVolume(std::string folder, Ask ask)
    : question_(std::make_shared<Question>(std::move(folder), std::move(ask))) {}

std::optional<DiskSampler::Volume> ChosenVolume::read() {
    std::unique_lock lock(question_->mutex);
    unanswered_ = question_->isUnderWay ? unanswered_ + 1 : 0;
    if (!question_->isUnderWay)
        question_->isUnderWay = background_.run(question_);
    if (std::exchange(isFirst_, false))
        question_->answered.wait_for(lock, patience, [&] { return !question_->isUnderWay; });
    return unanswered_ < questionsUntilStale ? question_->answer : std::nullopt;
}

} // namespace vantrix
