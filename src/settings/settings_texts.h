#pragma once

#include <QString>

namespace vantrix {

/// "5 seconds" in the user's language; also for numbers that are not whole.
QString secondsText(double seconds);

/// A fraction as a compact percentage. Unlike a reading, what a person stored by hand may be any number.
QString thresholdText(double fraction);

} // namespace vantrix
