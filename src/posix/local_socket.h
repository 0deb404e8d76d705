#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "posix/file_descriptor.h"

namespace vantrix {

// What systems do differently about sockets between the processes of one machine. The descriptors are closed on exec;
// where there is none, errno says why.

FileDescriptor makeLocalSocket();

/// A socket whose calls never wait.
FileDescriptor makeListeningSocket();

/// The next connection; none when none waits.
FileDescriptor acceptConnection(int listener);

/// False when it could not be sent; a peer that is gone raises no signal. `flags` are those of send(2).
bool sendQuietly(int socket, std::string_view text, int flags = 0);

/// The process ID at the other end; absent where the system does not tell it, 0 when it is in another process
/// namespace.
std::optional<int> peerProcess(int socket);

/// Whether the process at the other end runs for the same user.
bool isOwnPeer(int socket);

/// The beginning of the paths of this session's files, in a folder that only this user can write to; empty when there
/// is no such folder.
std::string instancePrefix();

} // namespace vantrix
