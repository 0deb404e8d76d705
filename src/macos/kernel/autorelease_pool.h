#pragma once

extern "C" {
// From the Objective-C runtime; no system header declares them.
void* objc_autoreleasePoolPush(void);
void objc_autoreleasePoolPop(void* pool);
}

namespace vantrix {

/// Releases, at the end of its scope, what the frameworks autoreleased meanwhile. Threads without a native event loop
/// have no pool of their own and would leak it.
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
