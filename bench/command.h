#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tarvelin::bench
{

/// Runs a program with arguments and hands each line that it prints to `line` as it comes. Gives its exit status, -1
/// when it was not started or did not end by itself.
int run(const std::vector<std::string>& words, const std::function<void(const std::string&)>& line);

} // namespace tarvelin::bench
