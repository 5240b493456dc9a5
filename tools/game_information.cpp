#include "tools/game_information.h"

#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/registry.h"

namespace tarvelin
{

namespace
{

constexpr std::string_view gameKey = "Software\\Codemasters\\Operation Flashpoint";

} // namespace

void readGame()
{
  using platform::RegistryRoot;
  for (const auto& [value, target] : {std::pair{"CDDRIVE", &shared.MechanikaCD}, std::pair{"MAIN", &shared.CestaHry}})
    if (auto text = platform::registryString(RegistryRoot::localMachine, gameKey, value))
      *target = std::move(*text);
    else
      ZapisLog("Hra nebyla v registru nalezena: " + std::string(value) + std::string(crlf));
}

} // namespace tarvelin
