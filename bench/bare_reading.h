#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vantrix::bench {

/// The floor of a sampling pass: the same kernel interfaces read hot, and nothing done with what they say.
class BareReading {
  public:
    BareReading();
    ~BareReading();
    BareReading(const BareReading&) = delete;
    BareReading& operator=(const BareReading&) = delete;

    /// Exits with a message when something cannot be read, since a floor that reads less would be no floor.
    void pass();

  private:
    struct File {
        int descriptor = -1;
        bool isList = false; ///< handed out a page at a time
    };

    void read(const File& file);
    void pollLinks();

    std::vector<File> files_;
    std::vector<char> buffer_;
    int links_ = -1;
};

/// The floor of a pass over recorded files: those that this process holds open below a folder, each read once.
class BareFiles {
  public:
    explicit BareFiles(const std::string& root);
    ~BareFiles();
    BareFiles(const BareFiles&) = delete;
    BareFiles& operator=(const BareFiles&) = delete;

    std::size_t count() const { return files_.size(); }
    void pass();

  private:
    std::vector<int> files_;
    std::vector<char> buffer_;
};

} // namespace vantrix::bench
