#include "core/folder_scan.h"

#include "core/attempt.h"
#include "core/forms/rows.h"
#include "core/run_log.h"
#include "core/strings.h"
#include "platform/files.h"

#include <vector>

namespace tarvelin
{

namespace
{

std::vector<std::string> matching(std::string_view extension, std::string_view folder, int length,
                                  std::string_view part, std::string_view caller)
{
  std::vector<std::string> names;
  const auto report = [&](const Failure& failure)
  {
    ZapisLog("Chyba v podprogramu " + std::string(caller) + " , " + std::to_string(failure.number) + " , " +
             failure.description + std::string(crlf));
  };
  attempt([&] { names = platform::listFiles(folder); }, report);
  const std::string wantedEnd = upper(extension);
  const std::string wantedPart = upper(part);
  std::erase_if(names,
                [&](const std::string& name)
                {
                  const std::string compared = upper(name);
                  return right(compared, length) != wantedEnd || compared.find(wantedPart) == std::string::npos;
                });
  return names;
}

} // namespace

int SpocitejSoubory(std::string_view extension, std::string_view folder, int length, std::string_view part)
{
  return static_cast<int>(matching(extension, folder, length, part, "SpocitejSoubory").size());
}

std::string DejJmenoSouboru(std::string_view extension, std::string_view folder, int length, std::string_view part)
{
  const std::vector<std::string> names = matching(extension, folder, length, part, "DejJmenoSouboru");
  return names.empty() ? std::string() : names.front();
}

void NactiStranky(std::string_view extension, std::string_view folder, List& list, int length, std::string_view part)
{
  if (list.count() > 0)
    list.clear();
  for (const std::string& name : matching(extension, folder, length, part, "NactiStranky"))
    list.add(name);
}

std::string SlozkaSouboru(std::string_view path)
{
  const std::size_t at = path.rfind('\\');
  return std::string(path.substr(0, at == std::string_view::npos ? 0 : at + 1));
}

} // namespace tarvelin
