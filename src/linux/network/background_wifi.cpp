#include "linux/network/background_wifi.h"

#include <condition_variable>
#include <mutex>

namespace vantrix {

struct BackgroundWiFi::Questions : Background::Job {
    explicit Questions(std::unique_ptr<WiFiReader> source) : reader(std::move(source)) {}

    /// Answers the question that was asked last, until there is no newer one.
    void perform() override {
        std::unique_lock lock(mutex);
        while (isAsked) {
            const int link = wantedLink;
            isAsked = false;
            lock.unlock();
            reader->read(link, reading);
            lock.lock();
            answeredLink = link;
            std::swap(answer, reading);
        }
        isUnderWay = false;
        answered.notify_all();
    }

    std::unique_ptr<WiFiReader> reader; // for the performing thread alone, like `reading`
    WiFiReading reading;
    std::mutex mutex;
    std::condition_variable answered;
    bool isAsked = false;
    bool isUnderWay = false;
    int wantedLink = 0;
    int answeredLink = 0;
    WiFiReading answer;
};

BackgroundWiFi::BackgroundWiFi(std::unique_ptr<WiFiReader> reader)
    : questions_(std::make_shared<Questions>(std::move(reader))) {}

BackgroundWiFi::~BackgroundWiFi() {
    const std::lock_guard lock(questions_->mutex);
    questions_->isAsked = false; // nobody waits for another answer
}

const WiFiReading& BackgroundWiFi::read(int link) {
    std::unique_lock lock(questions_->mutex);
    const bool isFirst = link_ != link;
    link_ = link;
    if (isFirst)
        questions_->answeredLink = 0;
    unanswered_ = !isFirst && questions_->isUnderWay ? unanswered_ + 1 : 0;
    questions_->wantedLink = link;
    questions_->isAsked = true;
    if (!questions_->isUnderWay) {
        questions_->isUnderWay = true;
        lock.unlock(); // it may be performed at once
        const bool isRunning = background_.run(questions_);
        lock.lock();
        if (!isRunning) {
            questions_->isUnderWay = false;
            current_.fail("no thread for nl80211");
            return current_;
        }
    }
    if (isFirst)
        questions_->answered.wait_for(lock, patience, [&] { return !questions_->isUnderWay; });
    if (questions_->answeredLink == link && unanswered_ < questionsUntilStale)
        current_ = questions_->answer;
    else
        current_.fail("nl80211 does not answer");
    return current_;
}

} // namespace vantrix
