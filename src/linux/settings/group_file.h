#pragma once

#include <string>
#include <string_view>

namespace vantrix {

/// A file with one JSON object for other programs of the user, rewritten every few seconds: readers see the old or
/// the new contents, never a mixture. It is not kept safe from power cuts, and allocates nothing once warm.
class GroupFile {
  public:
    explicit GroupFile(std::string path);

    const std::string& path() const { return path_; }

    /// Replaces the contents by the object whose only entry is `key` with that JSON value. The file is for the user's
    /// eyes only (0600), its folder too where it has to be made. False when it cannot be written; what stood there
    /// before still does.
    bool write(std::string_view key, std::string_view json);

  private:
    bool replace();

    std::string path_;
    std::string pattern_;   // of the temporary file's name
    std::string temporary_; // the name itself
    std::string contents_;
};

} // namespace vantrix
