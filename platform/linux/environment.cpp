#include "platform/linux/environment.h"

#include <cstdlib>

namespace tarvelin::platform
{

std::string environment(const char* name)
{
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : value;
}

std::string localeName(const char* category)
{
  for (const char* variable : {"LC_ALL", category, "LANG"})
    if (std::string name = environment(variable); !name.empty())
      return name;
  return {};
}

std::string winePrefix()
{
  const std::string home = environment("HOME");
  return home.empty() ? std::string() : home + "/.wine";
}

} // namespace tarvelin::platform
