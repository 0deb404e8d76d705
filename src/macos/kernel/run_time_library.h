#pragma once

#include <dlfcn.h>

#include <memory>

namespace vantrix {

/// A library opened at run time: no header declares its functions, and a machine may lack them.
class RunTimeLibrary {
  public:
    /// Null: the libraries that the program is linked with.
    explicit RunTimeLibrary(const char* path) : handle_(dlopen(path, RTLD_NOW)) {}

    /// Finds a function by name; false when there is none.
    template<typename Function>
    bool find(const char* name, Function*& function) const {
        function = handle_ ? reinterpret_cast<Function*>(dlsym(handle_.get(), name)) : nullptr;
        return function != nullptr;
    }

  private:
    struct Close {
        void operator()(void* handle) const { dlclose(handle); }
    };

    std::unique_ptr<void, Close> handle_;
};

} // namespace vantrix
