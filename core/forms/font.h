#pragma once

#include <cstdint>
#include <string>

namespace tarvelin
{

/// A colour in the platform's blue-green-red order, 0x00BBGGRR.
using Colour = std::uint32_t;

/// Font and colour of a text field.
struct Font
{
  std::string name;
  int size = 8; ///< points
  bool bold = false;
  bool italic = false;
  bool strikethrough = false;
  bool underline = false;
  Colour color = 0;

  bool operator==(const Font&) const = default;
};

} // namespace tarvelin
