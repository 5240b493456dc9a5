#pragma once

#include "platform/failure.h"

#include <cstddef>
#include <vector>

namespace tarvelin
{

/// A dynamic array of the program, lower bound 0. Most arrays keep one spare element: their upper bound is their count.
template <class T> class Array
{
public:
  /// Upper bound; -1 when it was never dimensioned.
  int bound() const { return static_cast<int>(m_items.size()) - 1; }

  bool dimensioned() const { return !m_items.empty(); }

  /// The element at `index`. Throws 9 out of bounds.
  T& at(int index)
  {
    check(index);
    return m_items[static_cast<std::size_t>(index)];
  }
  const T& at(int index) const
  {
    check(index);
    return m_items[static_cast<std::size_t>(index)];
  }

  /// Dimensions anew to the upper bound `bound`, dropping the contents. Throws 9 for a bound below 0.
  void redim(int bound)
  {
    checkBound(bound);
    m_items.clear();
    m_items.resize(static_cast<std::size_t>(bound) + 1);
  }

  /// Dimensions to the upper bound `bound`, keeping what fits. Throws 9 for a bound below 0.
  void redimPreserve(int bound)
  {
    checkBound(bound);
    m_items.resize(static_cast<std::size_t>(bound) + 1);
  }

  /// The state of an empty list: one spare element.
  void reset() { redim(0); }

  /// Back to never dimensioned.
  void erase() { m_items.clear(); }

private:
  void check(int index) const
  {
    if (index < 0 || index > bound())
      throw Failure(Fault::subscript);
  }

  static void checkBound(int bound)
  {
    if (bound < 0)
      throw Failure(Fault::subscript);
  }

  std::vector<T> m_items;
};

} // namespace tarvelin
