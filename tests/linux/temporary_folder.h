#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace vantrix {

/// A folder that lives as long as its test.
class TemporaryFolder {
  public:
    explicit TemporaryFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
        std::string name = parent / "vantrix-";
        name.append(6, 'X'); // the letters that mkdtemp replaces
        path_ = mkdtemp(name.data());
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

    void remove(const std::string& entry) const { std::filesystem::remove_all(path(entry)); }

  private:
    std::string path_;
};

} // namespace vantrix
