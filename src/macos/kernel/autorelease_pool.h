#pragma once

extern "C" {
// Of the Objective-C runtime; no header of the system declares them.
void* objc_autoreleasePoolPush(void);
void objc_autoreleasePoolPop(void* pool);
}

namespace vantrix {

/// Releases, at the end of its scope, what the frameworks left to the thread's pool: threads that no event loop of the
/// system's drives have none, and would keep it all.
class AutoreleasePool {
  public:
    AutoreleasePool() : pool_(objc_autoreleasePoolPush()) {}
    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;
    ~AutoreleasePool() { objc_autoreleasePoolPop(pool_); }

  private:
    void* pool_;
};

} // namespace vantrix
