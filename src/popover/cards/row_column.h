#pragma once

#include <initializer_list>

class QVBoxLayout;
class QWidget;

namespace vantrix {

inline constexpr int rowGap = 5; ///< points between two rows

/// Rows of a card, one below the other.
QVBoxLayout* columnOf(std::initializer_list<QWidget*> rows);

} // namespace vantrix
