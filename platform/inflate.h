#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarvelin::platform
{

/// Unpacks a zlib stream. Nothing when it is damaged or cut off, or when more than `limit` bytes come out of it.
std::optional<std::string> inflated(std::string_view stream, std::size_t limit);

/// A zlib stream that keeps the bytes as they are, for what is small.
std::string stored(std::string_view bytes);

} // namespace tarvelin::platform
