#pragma once

#include "core/forms/captioned.h"

#include <cstdint>

namespace tarvelin
{

/// Paging through the records of the mission's file, which nothing changes.
struct Pager
{
  std::int16_t& current;
  const std::int16_t& count;
  Label& position; ///< shows "2/5"
  Command& previous;
  Command& next;
};

/// Goes one record on, not past the last; with no record at all to -1.
void pageOn(const Pager& pager);

/// Goes one record back, not past the first.
void pageBack(const Pager& pager);

} // namespace tarvelin
