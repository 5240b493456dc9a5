#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarvelin::test
{

/// Checks every Description.ext under `folder` that the program wrote, also a copy of it with another name that ends in
/// ".ext": the game takes it, but for what `place` (a folder of a case, or a test's name) is known to write. Returns
/// how many there were.
int expectDescriptionsTaken(std::string_view place, const std::filesystem::path& folder);

/// The same for a text of the program's that the running test has at hand; its place is SUITE.NAME of that test.
void expectDescriptionTaken(std::string_view text);

} // namespace tarvelin::test
