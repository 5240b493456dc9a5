#pragma once

#include <functional>

namespace tarvelin::bench
{

/// Runs `work` in a copy of this process, and gives the bytes by which its memory grew at its highest. Throws
/// std::runtime_error when the copy fails.
double peakGrowthInFreshProcess(const std::function<void()>& work);

} // namespace tarvelin::bench
