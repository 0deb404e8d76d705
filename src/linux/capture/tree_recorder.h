#pragma once

#include <deque>
#include <map>
#include <set>

#include "linux/capture/redaction.h"
#include "linux/kernel/reading_manner.h"
#include "platform/sampling_sources.h"

namespace vantrix {

/// Takes down what the sources read of the kernel's trees, and lays it down in folders that may be read in their place.
/// The sources themselves see only what may be shown to others, and each file as it was when it was first read in a
/// pass, so that whoever reads what was laid down sees the same.
class TreeRecorder : public TreeWatch {
  public:
    /// `redaction` outlives this.
    TreeRecorder(KernelRoots roots, Redaction& redaction) : roots_(std::move(roots)), redaction_(redaction) {}

    const std::string& placeOf(const std::string& path) override;
    std::optional<std::string_view> read(const std::string& path, std::optional<std::string_view> text,
                                         std::size_t limit) override;
    void list(const std::string& folder, std::string_view prefix, std::vector<std::string>& names) override;
    void find(const std::string& path, std::uint64_t number) override;
    std::string resolve(const std::string& path) override;
    std::string follow(const std::string& path, const std::string& target) override;

    /// Files may have changed.
    void beginPass() { seen_.clear(); }
    /// Writes what is other than when this was last called into `folder`: the trees "proc" and "sys", and lists of what
    /// files cannot show. False when it cannot be written.
    bool layDown(const std::string& folder);

  private:
    struct Entry {
        enum class Kind { file, folder, link, unreadable };
        Kind kind = Kind::folder;
        std::string text; ///< of a file; where a link leads
        bool operator==(const Entry&) const = default;
    };
    struct Seen {
        std::optional<std::string> text;
        bool isCut = false;
    };
    /// Where a path leads to, without links.
    struct Place {
        std::string key;      ///< "sys/devices/…", as the sources know it; empty outside the trees
        std::string location; ///< on this machine
        std::optional<Entry::Kind> kind;
    };

    Place walk(const std::string& path, bool followsLast);
    bool followLink(const std::string& location, std::vector<std::string>& walked, std::deque<std::string>& rest);
    std::string keyOf(const std::string& tree, const std::vector<std::string>& components);
    std::string shownTarget(const std::string& target);
    std::string shown(const std::string& entry);
    void take(const Place& place);
    void takeListed(const std::string& key, const std::string& location);
    void put(const std::string& key, Entry entry);
    void lose(const std::string& key);
    void renew(const std::string& key);
    bool write(const std::string& folder, const std::string& key) const;
    bool isEmptyFolder(const std::string& key) const;

    KernelRoots roots_;
    Redaction& redaction_;
    std::map<std::string, std::string> originals_; // of names that are shown otherwise
    std::string place_;
    std::map<std::string, Seen> seen_;             // in this pass
    std::map<std::string, std::uint64_t> numbers_; // of entries
    std::map<std::string, Entry> known_;
    std::set<std::string> changed_; // since the last time that it was laid down
    std::set<std::string> absent_;
};

} // namespace vantrix
