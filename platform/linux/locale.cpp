#include "platform/locale.h"

#include "platform/fold.h"
#include "platform/linux/environment.h"
#include "platform/linux/system_locale.h"

namespace tarvelin::platform
{

std::string decimalSeparator()
{
  const SystemLocale locale;
  const std::string separator = locale.toUtf8(locale.info(RADIXCHAR));
  return separator.empty() ? "." : separator;
}

std::string language()
{
  const std::string name = localeName("LC_MESSAGES");
  const std::string word = folded(name.substr(0, name.find_first_of("_-.@")));
  return word.size() == 2 ? word : std::string(); // "c" and "posix" are no languages
}

} // namespace tarvelin::platform
