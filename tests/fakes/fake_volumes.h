#pragma once

#include <sstream>
#include <string>

#include "linux/disks/volume.h"

namespace vantrix::fakes {

/// Answers for statvfs. On each line of `text` stand a folder, "ro" or "rw", its blocks, of 4 KiB, and those available.
inline AskVolume volumesOf(const std::string& text) {
    return [text](const std::string& folder, struct statvfs& answer) {
        std::istringstream lines(text);
        std::string name;
        std::string mode;
        answer.f_frsize = 4096;
        while (lines >> name >> mode >> answer.f_blocks >> answer.f_bavail) {
            answer.f_flag = mode == "ro" ? ST_RDONLY : 0;
            if (name == folder)
                return true;
        }
        return false;
    };
}

} // namespace vantrix::fakes
