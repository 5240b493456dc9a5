#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The icons of programs and icon files, and the picture files that are made of them.
namespace tarvelin::platform
{

/// Pixels from the top left, row by row, as 0xAARRGGBB.
struct IconImage
{
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

/// The first icon of a Windows executable (its bytes), in the size nearest to 32 by 32. Nothing when there is none that
/// can be read, or the bytes are no such executable.
std::optional<IconImage> executableIcon(std::string_view bytes);

/// The icon of an icon file (.ico), chosen alike.
std::optional<IconImage> iconOfFile(std::string_view bytes);

/// A Windows bitmap with 24 bits a pixel; what is transparent shows white.
std::string bitmapBytes(const IconImage& image);

/// The image made smaller, so that it fits into a square of that many pixels. A small one stays as it is.
IconImage fitted(IconImage image, int side);

} // namespace tarvelin::platform
