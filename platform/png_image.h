#pragma once

#include "platform/icon_image.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvelin::platform
{

/// A PNG picture of at most 1024 by 1024 pixels. Nothing when the bytes are none, damaged or cut off.
std::optional<IconImage> imageOfPng(std::string_view bytes);

/// A PNG picture with its transparency.
std::string pngBytes(const IconImage& image);

} // namespace tarvelin::platform
