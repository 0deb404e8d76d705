#pragma once

namespace vantrix {

/// False where nobody in particular signed the program (ad hoc), or nobody at all. Such a program has few rights: the
/// system shows no notifications of it.
bool isSignedByIdentity();

} // namespace vantrix
