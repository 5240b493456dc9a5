#include "campaign/path_names.h"

#include "platform/failure.h"

#include <charconv>

namespace tarvelin
{

std::string JmenoZCesty(std::string_view path)
{
  const std::size_t backslash = path.rfind('\\');
  return backslash == std::string_view::npos ? std::string() : std::string(path.substr(backslash + 1));
}

int CisloZKlice(std::string_view text)
{
  const std::size_t last = text.find_last_not_of("0123456789");
  if (last == std::string_view::npos)
    return 0;
  const std::string_view digits = text.substr(last + 1);
  int number = 0;
  if (std::from_chars(digits.data(), digits.data() + digits.size(), number).ec == std::errc::result_out_of_range)
    throw Failure(Fault::overflow);
  return number;
}

} // namespace tarvelin
