#pragma once

#include <string_view>

namespace tarvelin
{

/// Reads the catalogue of islands (pairs of lines: name, suffix of mission folders) into the shared arrays and the two
/// island combos of the campaign. Failures are logged.
void NactiOstrovy(std::string_view path);

} // namespace tarvelin
