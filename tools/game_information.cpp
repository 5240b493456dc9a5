#include "tools/game_information.h"

#include "core/attempt.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "platform/registry.h"

#include <utility>

namespace tarvelin
{

namespace
{

constexpr std::string_view gameKey = "Software\\Codemasters\\Operation Flashpoint";

/// Throws 53 when the game's key or the value in it is missing.
std::string gameValue(std::string_view name)
{
  auto text = platform::registryString(platform::RegistryRoot::localMachine, gameKey, name);
  if (!text)
    throw Failure(Fault::fileNotFound);
  return std::move(*text);
}

} // namespace

void readGame()
{
  attempt(
      []
      {
        std::string drive = gameValue("CDDRIVE");
        shared.CestaHry = gameValue("MAIN"); // with one of them missing both stay empty
        shared.MechanikaCD = std::move(drive);
      },
      [](const Failure& failure)
      { logLine("Nastala chyba při čtení registru: " + std::string(gameKey) + ", " + failureText(failure)); });
}

} // namespace tarvelin
