#pragma once

#include <functional>

namespace tarvelin
{
struct Failure;
}

namespace tarvelin::ui
{

/// Exit status of a program that a failure ended.
inline constexpr int programFailed = 70;

/// Runs what the user did. Everything that comes from the user goes through here: a failure that leaves its handler is
/// shown in a box and ends the program; when the program came to its end the event loop is left.
void act(const std::function<void()>& action);

} // namespace tarvelin::ui
