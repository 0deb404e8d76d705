#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "posix/file_descriptor.h"

namespace vantrix {

// What systems do differently about sockets between processes of one machine. None of them outlives the execution of
// another program; without a descriptor, errno says why.

FileDescriptor makeLocalSocket();

/// One whose calls never wait.
FileDescriptor makeListeningSocket();

/// The next connection; none when none waits.
FileDescriptor acceptConnection(int listener);

/// False when it could not be sent; a peer that is gone raises no signal. `flags` are those of send(2).
bool sendQuietly(int socket, std::string_view text, int flags = 0);

/// The process at the other end; absent where the system does not tell, 0 when it runs out of sight.
std::optional<int> peerProcess(int socket);

/// What the paths of this session's files begin with, in a folder that only this user can write to; empty when there
/// is none.
std::string instancePrefix();

} // namespace vantrix
