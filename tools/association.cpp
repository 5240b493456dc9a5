#include "tools/association.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/folder_scan.h"
#include "core/forms/frmsettings.h"
#include "core/messages.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/file_types.h"
#include "platform/paths.h"
#include "platform/registry.h"

namespace tarvelin
{

namespace
{

constexpr std::string_view extension = ".sqm";
constexpr std::string_view handler = "Tarvelin.exe";
constexpr std::string_view verb = "Open in Tarvelin";

/// The desktop program, also when it is a script that asks.
std::string programPath()
{
  return SlozkaSouboru(platform::executablePath()) + "tarvelin.exe";
}

void complain(int text, std::string_view key)
{
  tell(Hlasky(text) + " " + std::string(key), Icon::critical);
}

void imgicon_Click()
{
  const auto chosen = desk().chooseFile("Icons|*.ico");
  if (!chosen)
    return;
  shared.IkonaAsociace = platform::toProgram(*chosen);
  attempt([] { frmsettings.imgicon.load(shared.IkonaAsociace); });
}

} // namespace

void Asociuj()
{
  if (shared.IkonaAsociace.empty())
    shared.IkonaAsociace = programPath();
  if (!platform::fileTypeHandler(extension))
    complain(message::keyUnreadable, extension);
  if (platform::fileHandlerExists(handler) && !askYesNo(Hlasky(message::keyUnreadable)))
    return;

  std::string report;
  const auto tellOutcome = [&](bool good, const std::string& key)
  {
    if (good)
      report += " to: " + key + std::string(crlf);
    else
      complain(message::keyNotWritten, key);
  };
  const std::string name(handler);
  tellOutcome(platform::setFileTypeHandler(extension, handler), std::string(extension));
  tellOutcome(platform::setFileHandlerCommand(handler, extension, verb, programPath()),
              name + "\\shell\\" + std::string(verb) + "\\command");
  tellOutcome(platform::setFileHandlerIcon(handler, extension, shared.IkonaAsociace), name + "\\DefaultIcon");
  if (!report.empty())
    tell(Hlasky(message::associated) + std::string(crlf) + report);
}

void ZrusAsociaci()
{
  const std::string current = platform::fileTypeHandler(extension).value_or("");
  if (current.empty())
    return;
  if (current != handler && !askYesNo(Hlasky(message::foreignAssociation)))
    return;
  if (!platform::removeFileTypeHandler(extension))
    complain(message::keyNotDeleted, extension);
  if (!platform::removeFileHandler(handler, extension))
    complain(message::keyNotDeleted, handler);
}

std::string CtiKlic(std::int64_t root, const std::string& key, const std::string& value)
{
  using platform::RegistryRoot;
  constexpr RegistryRoot roots[] = {RegistryRoot::classesRoot, RegistryRoot::currentUser, RegistryRoot::localMachine};
  const std::uint32_t number = static_cast<std::uint32_t>(root) - 0x80000000U;
  if (number >= std::size(roots) || !platform::registryKeyExists(roots[number], key))
  {
    complain(message::keyUnreadable, key);
    return {};
  }
  auto text = platform::registryString(roots[number], key, value);
  if (!text)
    complain(message::valueUnreadable, key);
  return std::move(text).value_or("");
}

void attachAssociation()
{
  frmsettings.imgicon.onClick = imgicon_Click;
  frmsettings.Command5.onClick = Asociuj;
  frmsettings.Command6.onClick = ZrusAsociaci;
}

} // namespace tarvelin
