#include "linux/kernel/kernel_file.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "linux/kernel/kernel_tree.h"
#include "linux/kernel/reading_manner.h"

namespace vantrix {
namespace {

constexpr std::size_t pageSize = 4096; // the smallest that there is
constexpr std::size_t longestRecord = 1024;
constexpr std::size_t sizeLimit = 4 << 20;

std::vector<char> roomFor(KernelFile::Kind kind) {
    return std::vector<char>(kind == KernelFile::Kind::whole ? 512 : 4 * pageSize);
}

ssize_t readAt(int file, char* to, std::size_t room, std::size_t offset) {
    ssize_t length = 0;
    do
        length = pread(file, to, room, static_cast<off_t>(offset));
    while (length < 0 && errno == EINTR);
    return length;
}

} // namespace

KernelFile::KernelFile(std::string path, Kind kind) : path_(std::move(path)), kind_(kind), buffer_(roomFor(kind)) {}

std::optional<std::string_view> KernelFile::read() {
    const auto text = readText();
    return readingManner.watch != nullptr ? readingManner.watch->read(path_, text, sizeLimit) : text;
}

std::optional<std::string_view> KernelFile::readText() {
    if (!file_ && !open())
        return std::nullopt;
    const bool isRead = fill();
    if (!isRead || !mayStayOpen_)
        file_.close();
    return isRead ? std::optional(std::string_view(buffer_.data(), size_)) : std::nullopt;
}

bool KernelFile::open() {
    // Not blocking: a foreign root may hold anything, even a pipe that nobody writes to, or a device without an end.
    file_ = FileDescriptor(::open(placeOf(path_).c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    struct stat status {};
    if (!file_ || ::fstat(file_.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        file_.close();
        return false;
    }
    // The number is the lowest that was free, so it tells how many are open.
    rlimit limit{};
    mayStayOpen_ = ::getrlimit(RLIMIT_NOFILE, &limit) == 0 && static_cast<rlim_t>(file_.get()) < limit.rlim_cur / 2;
    return true;
}

bool KernelFile::fill() {
    // Records are never split between reads as long as a page of room is offered.
    const std::size_t leastRoom = kind_ == Kind::whole ? 1 : pageSize;
    size_ = 0;
    for (;;) {
        if (buffer_.size() - size_ < leastRoom)
            buffer_.resize(buffer_.size() * 2);
        const std::size_t room = buffer_.size() - size_;
        const ssize_t length = readAt(file_.get(), buffer_.data() + size_, room, size_);
        if (length < 0)
            return false;
        size_ += static_cast<std::size_t>(length);
        if (size_ > sizeLimit) {
            buffer_ = roomFor(kind_);
            return false;
        }
        if (length == 0 || isLast(static_cast<std::size_t>(length), room))
            return true;
    }
}

bool KernelFile::isLast(std::size_t piece, std::size_t room) const {
    switch (kind_) {
    case Kind::whole:
        return piece < room;
    case Kind::records:
        return piece + longestRecord < pageSize;
    case Kind::longRecords:
        break;
    }
    return false;
}

} // namespace vantrix
