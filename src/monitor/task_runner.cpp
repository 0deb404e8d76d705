#include "monitor/task_runner.h"

namespace vantrix {

ThreadTaskRunner::ThreadTaskRunner() {
    pool_.setMaxThreadCount(1);
    pool_.setThreadPriority(QThread::LowPriority);
    pool_.setExpiryTimeout(0); // one short task now and then is not worth a thread that waits
}

void ThreadTaskRunner::run(std::function<void()> work, std::function<void()> done) {
    pool_.start([this, work = std::move(work), done = std::move(done)] {
        work();
        QMetaObject::invokeMethod(&mainThread_, done, Qt::QueuedConnection);
    });
}

} // namespace vantrix
