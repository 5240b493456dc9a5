#pragma once

#include "platform/icon_image.h"

#include <optional>
#include <string_view>

namespace tarvelin::ui
{

/// Reads a picture of a kind that the toolkit alone knows (SVG, XPM), to fit a square of that many pixels. `file` is a
/// native path; nothing when it can't be read.
std::optional<platform::IconImage> readOtherPicture(std::string_view file, int side);

} // namespace tarvelin::ui
