#include "tools/tools_handlers.h"

#include "core/procedures.h"
#include "tools/about.h"
#include "tools/game_information.h"
#include "tools/links.h"
#include "tools/tips.h"

namespace tarvelin
{

void attachTools()
{
  procedures.readGame = readGame;
  attachTips();
  attachLinks();
  attachAbout();
}

} // namespace tarvelin
