#pragma once

#include "platform/icon_image.h"

#include <optional>
#include <string_view>

namespace tarvelin::platform
{

/// The icon of a program, as it is started by that name: out of a Windows executable, elsewhere than on Windows also
/// the one that the desktop shows for it. 32 by 32 pixels or the nearest size. Nothing when it has none that can be
/// read; throws 53 when there is no such program.
std::optional<IconImage> programIcon(std::string_view program);

/// Reads a picture file (native path) of a kind that is not read here, such as SVG, at that many pixels.
using PictureReader = std::optional<IconImage> (*)(std::string_view file, int side);

/// Who has a toolkit lends its reader of pictures; without one such icons are passed over.
inline PictureReader otherPictures = nullptr;

} // namespace tarvelin::platform
