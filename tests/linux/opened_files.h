#pragma once

#include <filesystem>
#include <set>
#include <string>

#include <sys/inotify.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "posix/file_descriptor.h"

namespace vantrix {

/// Every file and folder below a device that anything opens, by its name.
class OpenedFiles {
  public:
    explicit OpenedFiles(const std::string& root) {
        watch(root);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
            if (entry.is_directory())
                watch(entry.path());
        }
        take(); // what looking for the folders opened
    }
    std::set<std::string> take() {
        std::set<std::string> names;
        alignas(inotify_event) char buffer[16384];
        ssize_t length = 0;
        while ((length = read(queue_.get(), buffer, sizeof buffer)) > 0) {
            for (const char* at = buffer; at < buffer + length;) {
                const auto* event = reinterpret_cast<const inotify_event*>(at);
                names.insert(event->len > 0 ? event->name : ".");
                at += sizeof(inotify_event) + event->len;
            }
        }
        return names;
    }

  private:
    void watch(const std::string& path) {
        EXPECT_GE(inotify_add_watch(queue_.get(), path.c_str(), IN_OPEN | IN_ACCESS), 0) << path;
    }
    FileDescriptor queue_{inotify_init1(IN_NONBLOCK | IN_CLOEXEC)};
};

} // namespace vantrix
