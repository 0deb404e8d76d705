#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vantrix {

/// Replaces what tells one person, home or device from others: hardware and network addresses, serial numbers, UUIDs
/// and the like, the names of people, machines and networks. What is replaced keeps its form, and the same original
/// gets the same replacement wherever it occurs.
class Redaction {
  public:
    /// `words` are names to be replaced wherever they occur, such as those of the user and the machine. Those that are
    /// too short or too common to be told from the kernel's own words are left.
    explicit Redaction(const std::vector<std::string>& words);

    /// What was read from the file `path`.
    std::string text(std::string_view text, std::string_view path);
    /// The name of a file or folder.
    std::string name(std::string_view entry) { return withoutTokens(entry); }
    /// What a name that was made of others stands for; the name itself when it is as it was.
    std::string original(std::string_view shown) const;
    /// The name of a network, which is replaced wherever it occurs from now on.
    std::string network(const std::string& name);

    /// How many different originals were replaced.
    std::size_t count() const { return numbers_.size(); }

  private:
    std::string withoutTokens(std::string_view text);
    std::string withoutKeys(std::string_view text, std::string_view path);
    std::string replacedAt(std::string_view text, std::size_t place, std::size_t& length);
    std::string wordAt(std::string_view text, std::size_t& length);
    std::string routes(std::string_view text);
    std::string owned(std::string_view name);
    std::string digits(std::string_view original);
    std::string serial(std::string_view original);
    std::size_t numberOf(std::string original);

    std::map<std::string, std::size_t> numbers_;             // by original
    std::map<std::string, std::string> originals_;           // as they were first met, by replacement
    std::vector<std::pair<std::string, std::string>> words_; // in lower case, with what replaces them
};

} // namespace vantrix
