#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelin::test
{

/// What the game would refuse in a class file, and where.
struct Refusal
{
  int line = 0; ///< from 1
  std::string reason;

  bool operator==(const Refusal&) const = default;
};

/// A class, or the file itself, with what stands in it. Names are in upper case, as case does not matter to the game.
struct ClassBody
{
  std::string base;
  std::map<std::string, std::string> members; ///< values as they stand; an array's name ends in "[]", commas between
  std::map<std::string, std::unique_ptr<ClassBody>> classes;
  bool isForward = false; ///< named only, not yet told
};

/// A file of the game's class syntax, as Description.ext is one. The whole file is read, so that a refusal does not
/// hide the next one. What the game forgives is no refusal: values without quotes, values that the line's end closes,
/// ";" for a "," in an array, and a separator behind an array's last item.
class ClassFile
{
public:
  explicit ClassFile(std::string_view text);

  const std::vector<Refusal>& refusals() const { return m_refusals; }
  const ClassBody& root() const { return m_root; }

private:
  ClassBody m_root;
  std::vector<Refusal> m_refusals;
};

/// "line N: REASON" for each refusal, one below the other.
std::string told(const std::vector<Refusal>& refusals);

} // namespace tarvelin::test
