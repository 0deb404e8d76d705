#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace vantrix {

/// A folder that lives as long as its test, in memory where it can: some tests write a file many thousand times.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        path_ = std::filesystem::exists("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path();
        path_.append("/vantrix-").append(6, 'X'); // the letters that mkdtemp replaces
        if (mkdtemp(path_.data()) == nullptr)
            std::abort(); // or what follows would write anywhere
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path(const std::string& entry) const { return path_ + '/' + entry; }

    /// Makes the file, or changes it in place as the kernel would, so that open descriptors see it.
    void write(const std::string& entry, const std::string& text) const {
        std::filesystem::create_directories(std::filesystem::path(path(entry)).parent_path());
        std::ofstream(path(entry), std::ios::binary | std::ios::trunc) << text;
    }

    /// Writes files below a folder, each of one line.
    void writeLines(const std::string& place, std::initializer_list<std::pair<const char*, std::string>> lines) const {
        for (const auto& [entry, line] : lines)
            write(place + '/' + entry, line + '\n');
    }

    std::string read(const std::string& entry) const {
        std::ostringstream text;
        text << std::ifstream(path(entry), std::ios::binary).rdbuf();
        return text.str();
    }

    void remove(const std::string& entry) const { std::filesystem::remove_all(path(entry)); }

    /// Every file as an entry, sorted; nothing that is reached through a link alone.
    std::vector<std::string> files() const {
        std::vector<std::string> entries;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(path_)) {
            if (entry.symlink_status().type() == std::filesystem::file_type::regular)
                entries.push_back(entry.path().lexically_relative(path_));
        }
        std::sort(entries.begin(), entries.end());
        return entries;
    }

  private:
    std::string path_;
};

} // namespace vantrix
