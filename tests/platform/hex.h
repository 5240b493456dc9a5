#pragma once

#include <string>
#include <string_view>

namespace tarvelin::tests
{

/// The bytes of a text like "0aff".
inline std::string bytesOfHex(std::string_view hex)
{
  std::string bytes;
  for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
    bytes += static_cast<char>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16));
  return bytes;
}

} // namespace tarvelin::tests
