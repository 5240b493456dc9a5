#include "tools/tools_handlers.h"

#include "core/procedures.h"
#include "tools/game_information.h"

namespace tarvelin
{

void attachTools()
{
  procedures.readGame = readGame;
}

} // namespace tarvelin
