#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarvelin::platform
{

/// Picture files of an icon name, the best first: those of the user's theme, of the themes that it inherits, of
/// "hicolor", in each the sizes nearest to `side`; then those that lie beside the themes. A name that is a full path
/// stands for itself. The files are of any kind: PNG, SVG, XPM.
std::vector<std::filesystem::path> iconFiles(const std::string& name, int side);

} // namespace tarvelin::platform
