#pragma once

#include <cstdint>
#include <filesystem>

namespace tarvelin::bench
{

inline constexpr int generatedMarkers = 10'000;
inline constexpr int generatedSensors = 500;

/// Writes a mission as the game's editor saves it, of at least `bytes`: four sections full of units with long init
/// lines, the markers and sensors in the first.
void generateMission(const std::filesystem::path& path, std::uint64_t bytes);

} // namespace tarvelin::bench
