#include "linux/kernel/kernel_folder.h"

#include <utility>

#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/reading_manner.h"

namespace vantrix {

bool KernelFolder::list() {
    if (readingManner.isRepeatable)
        return listSorted();
    const bool isLookDue = emptyListings_ % listingsPerLook_ == 0;
    if (stream_ && (emptyListings_ == 0 || !isLookDue))
        rewinddir(stream_.get());
    else if (isLookDue) // the folder itself may have gone with its driver, and come back
        stream_.reset(opendir(path_.c_str()));
    bool isChanged = false;
    std::size_t count = 0;
    while (const dirent* entry = stream_ ? readdir(stream_.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            isChanged |= note(count++, name);
    }
    emptyListings_ = count == 0 ? emptyListings_ + 1 : 0;
    isChanged |= count != names_.size();
    names_.resize(count);
    return isChanged;
}

bool KernelFolder::listSorted() {
    auto names = entriesStartingWith(path_, "");
    std::erase_if(names, [](const std::string& name) { return name == "." || name == ".."; });
    return std::exchange(names_, std::move(names)) != names_;
}

bool KernelFolder::note(std::size_t place, std::string_view name) {
    if (place >= names_.size())
        names_.resize(place + 1);
    if (names_[place] == name)
        return false;
    names_[place] = name;
    return true;
}

} // namespace vantrix
