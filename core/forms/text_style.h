#pragma once

#include "core/forms/font.h"

#include <cstddef>

namespace tarvelin
{

/// How a character of a rich text looks.
struct TextStyle
{
  Colour color = 0;
  bool bold = false;
  bool italic = false;

  bool operator==(const TextStyle&) const = default;
};

/// A run of equal style: from character `start` to the start of the next run.
struct StyleRun
{
  std::size_t start = 0;
  TextStyle style;

  bool operator==(const StyleRun&) const = default;
};

} // namespace tarvelin
