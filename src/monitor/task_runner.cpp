#include "monitor/task_runner.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

#include <QObject>

#include "platform/thread_priority.h"

namespace vantrix {
namespace {

constexpr std::chrono::milliseconds patience{200};

} // namespace

struct ThreadTaskRunner::Shared {
    std::mutex mutex;
    std::condition_variable ended;
    std::unique_ptr<QObject> mainThread = std::make_unique<QObject>(); // what is posted to it is dropped with it
    int running = 0;

    void post(std::function<void()> done) {
        if (mainThread)
            QMetaObject::invokeMethod(mainThread.get(), std::move(done), Qt::QueuedConnection);
    }
};

ThreadTaskRunner::ThreadTaskRunner() : shared_(std::make_shared<Shared>()) {}

ThreadTaskRunner::~ThreadTaskRunner() {
    std::unique_lock lock(shared_->mutex);
    shared_->mainThread.reset();
    shared_->ended.wait_for(lock, patience, [this] { return shared_->running == 0; });
}

void ThreadTaskRunner::run(std::function<void()> work, std::function<void()> done) {
    const auto perform = [shared = shared_, work = std::move(work), done] {
        lowerThreadPriority();
        work();
        const std::lock_guard lock(shared->mutex);
        shared->post(done);
        --shared->running;
        shared->ended.notify_all();
    };
    const std::lock_guard lock(shared_->mutex);
    ++shared_->running;
    try {
        std::thread(perform).detach();
    } catch (const std::system_error&) { // no thread to be had: whoever asked need not wait for one
        --shared_->running;
        shared_->post(std::move(done));
    }
}

} // namespace vantrix
