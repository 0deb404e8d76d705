#include "linux/network/background_wifi.h"

#include <condition_variable>
#include <mutex>
#include <system_error>

namespace vantrix {

struct BackgroundWiFi::Shared {
    std::unique_ptr<WiFiReader> reader; // the thread's alone once it runs
    std::mutex mutex;
    std::condition_variable asked;
    std::condition_variable answered;
    bool isAsked = false;
    bool isReading = false;
    bool isStopping = false;
    int wantedLink = 0;
    int answeredLink = 0;
    WiFiReading answer;
};

BackgroundWiFi::BackgroundWiFi(std::unique_ptr<WiFiReader> reader) : shared_(std::make_shared<Shared>()) {
    shared_->reader = std::move(reader);
}

BackgroundWiFi::~BackgroundWiFi() {
    if (!thread_.joinable())
        return;
    bool isBusy = false;
    {
        const std::lock_guard lock(shared_->mutex);
        shared_->isStopping = true;
        isBusy = shared_->isReading;
    }
    shared_->asked.notify_one();
    // A driver that hangs may not keep the program from ending.
    if (isBusy)
        thread_.detach();
    else
        thread_.join();
}

const WiFiReading& BackgroundWiFi::read(int link) {
    if (!start()) {
        current_.fail("no thread for nl80211");
        return current_;
    }
    std::unique_lock lock(shared_->mutex);
    const bool isFirst = link_ != link;
    link_ = link;
    if (isFirst)
        shared_->answeredLink = 0;
    unanswered_ = !isFirst && (shared_->isAsked || shared_->isReading) ? unanswered_ + 1 : 0;
    shared_->wantedLink = link;
    shared_->isAsked = true;
    shared_->asked.notify_one();
    if (isFirst)
        shared_->answered.wait_for(lock, patience, [&] { return !shared_->isAsked && !shared_->isReading; });
    if (shared_->answeredLink == link && unanswered_ < questionsUntilStale)
        current_ = shared_->answer;
    else
        current_.fail("nl80211 does not answer");
    return current_;
}

bool BackgroundWiFi::start() {
    if (thread_.joinable())
        return true;
    try {
        thread_ = std::thread([shared = shared_] { answerQuestions(*shared); });
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

void BackgroundWiFi::answerQuestions(Shared& shared) {
    WiFiReading reading;
    std::unique_lock lock(shared.mutex);
    for (;;) {
        shared.asked.wait(lock, [&] { return shared.isAsked || shared.isStopping; });
        if (shared.isStopping)
            return;
        const int link = shared.wantedLink;
        shared.isAsked = false;
        shared.isReading = true;
        lock.unlock();
        shared.reader->read(link, reading);
        lock.lock();
        shared.isReading = false;
        shared.answeredLink = link;
        std::swap(shared.answer, reading);
        shared.answered.notify_all();
    }
}

} // namespace vantrix
