#include "script/word_search.h"

#include "core/attempt.h"
#include "core/forms/rows.h"
#include "core/run_log.h"
#include "core/strings.h"

#include <cstdint>

namespace tarvelin
{

namespace
{

/// Half of a sum, a half rounded to the even number.
int halved(std::int64_t sum)
{
  const std::int64_t down = sum >= 0 ? sum / 2 : (sum - 1) / 2;
  const bool up = sum % 2 != 0 && down % 2 != 0;
  return static_cast<int>(down + (up ? 1 : 0));
}

/// `compared(row)` gives the part of a row's text that is compared.
template <class Compared>
int search(int first, int last, const std::string& needle, const Rows& list, Compared compared)
{
  for (;;)
  {
    const int middle = halved(std::int64_t{first} + last);
    if (list.count() == 0)
      return -1;
    const std::string item = compared(list.upperText(middle));
    if (item == needle)
      return middle;
    if (first >= last)
      return -1;
    if (needle < item)
      last = middle - 1;
    else
      first = middle + 1;
  }
}

template <class Compared>
int searchLogged(std::string_view function, int first, int last, std::string_view needle, const Rows& list,
                 Compared compared)
{
  int found = -1;
  attempt([&] { found = search(first, last, upper(needle), list, compared); },
          [&](const Failure& failure)
          {
            ZapisLog("Nastala chyba ve funkci " + std::string(function) + ": " + failureText(failure) +
                     std::string(crlf));
            ZapisLog("Funkce byla volána s parametry: " + std::to_string(first) + "," + std::to_string(last) + "," +
                     std::string(needle) + std::string(crlf));
          });
  return found;
}

} // namespace

int BNajdi(int first, int last, std::string_view needle, const Rows& list)
{
  const int size = static_cast<int>(length(needle));
  return searchLogged("BNajdi", first, last, needle, list,
                      [size](const std::string& item) { return trim(left(item, size)); });
}

int BNajdi2(int first, int last, std::string_view needle, const Rows& list)
{
  return searchLogged("BNajdi2", first, last, needle, list, [](const std::string& item) { return item; });
}

} // namespace tarvelin
