#include "bare_reading.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include <fcntl.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace vantrix::bench {
namespace {

void require(bool isGood, const std::string& what) {
    if (isGood)
        return;
    std::perror(what.c_str());
    std::exit(1);
}

int openFile(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    require(file >= 0, path);
    return file;
}

/// Files about the compressed disks that are set up.
std::vector<std::string> zramFiles() {
    std::vector<std::string> files;
    for (const auto& disk : std::filesystem::directory_iterator("/sys/block")) {
        if (!disk.path().filename().string().starts_with("zram"))
            continue;
        int state = 0;
        if (std::ifstream(disk.path() / "initstate") >> state && state != 0)
            files.push_back(disk.path() / "mm_stat");
    }
    return files;
}

} // namespace

BareReading::BareReading() : buffer_(4 << 20) {
    files_ = {{openFile("/proc/stat"), false},
              {openFile("/proc/meminfo"), false},
              {openFile("/proc/net/dev"), true},
              {openFile("/proc/diskstats"), true}};
    if (std::filesystem::exists("/proc/pressure/memory"))
        files_.push_back({openFile("/proc/pressure/memory"), false});
    for (const std::string& file : zramFiles())
        files_.push_back({openFile(file), false});
    links_ = socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE);
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_LINK;
    require(bind(links_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0, "rtnetlink");
}

BareReading::~BareReading() {
    for (const File& file : files_)
        close(file.descriptor);
    close(links_);
}

void BareReading::pass() {
    for (const File& file : files_)
        read(file);
    struct statvfs volume {};
    require(statvfs("/", &volume) == 0, "/");
    pollLinks();
}

void BareReading::read(const File& file) {
    std::size_t size = 0;
    ssize_t length = 0;
    do {
        length = pread(file.descriptor, buffer_.data() + size, buffer_.size() - size, static_cast<off_t>(size));
        require(length >= 0, "pread");
        size += static_cast<std::size_t>(length);
    } while (file.isList && length > 0);
}

void BareReading::pollLinks() {
    const ssize_t length = recv(links_, buffer_.data(), buffer_.size(), MSG_DONTWAIT);
    require(length > 0 || errno == EAGAIN, "recv");
}

BareFiles::BareFiles(const std::string& root) : buffer_(64 << 10) {
    std::set<std::string> names;
    std::error_code gone; // the listing's own descriptor
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        const auto name = std::filesystem::read_symlink(entry.path(), gone);
        if (name.string().starts_with(root) && std::filesystem::is_regular_file(name))
            names.insert(name);
    }
    require(!names.empty(), root);
    for (const std::string& name : names)
        files_.push_back(openFile(name));
}

BareFiles::~BareFiles() {
    for (const int file : files_)
        close(file);
}

void BareFiles::pass() {
    for (const int file : files_)
        require(pread(file, buffer_.data(), buffer_.size(), 0) >= 0, "pread");
    struct statvfs volume {};
    require(statvfs("/", &volume) == 0, "/");
}

} // namespace vantrix::bench
