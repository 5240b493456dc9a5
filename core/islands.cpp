#include "core/islands.h"

#include "core/attempt.h"
#include "core/forms/frmcamp3.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "platform/clock.h"

#include <optional>

namespace tarvelin
{

namespace
{

void grow(Array<std::string>& array, int index, const std::string& value)
{
  array.redimPreserve(index);
  array.at(index) = value;
}

} // namespace

void NactiOstrovy(std::string_view path)
{
  const auto report = [&](const Failure& failure)
  {
    ZapisLog("Nastala chyba při načítání souboru s ostrovy z: " + std::string(path) + ", " + failureText(failure) +
             std::string(crlf));
  };
  ZapisLog("Načítání souboru s ostrovy, " + platform::timeText() + std::string(crlf));
  std::optional<LineReader> file;
  attempt([&] { file.emplace(path); }, report);
  std::int16_t count = 0;
  while (file && !file->atEnd() && count < INT16_MAX)
  {
    const std::string name = file->next();
    logLine("Jméno ostrovu: " + name);
    for (Combo* const combo : {&frmcamp3.penaltyland, &frmcamp3.awardlend})
      combo->add(name, count);
    grow(shared.OstrovyJmena, count, name);
    std::string suffix; // an unpaired last name has none
    if (!file->atEnd())
      suffix = file->next();
    logLine("Koncovka ostrovu: " + suffix);
    grow(shared.OstrovyKoncovky, count, suffix);
    ++count;
  }
  logLine("Konec načítání souboru s ostrovy");
  for (Combo* const combo : {&frmcamp3.penaltyland, &frmcamp3.awardlend})
    if (combo->count() > 0)
      combo->select(0);
  shared.PocetOstrovu = count;
}

} // namespace tarvelin
