#pragma once

namespace vantrix {

/// Tells assistive programs about those controls that differ from the toolkit's: a slider's value is a percentage, a
/// tab button is a tab, a picker tells what it picks. May be called any number of times.
void installControlAccessibility();

} // namespace vantrix
