#include "tools/tools_handlers.h"

#include "core/procedures.h"
#include "tools/about.h"
#include "tools/association.h"
#include "tools/game_information.h"
#include "tools/links.h"
#include "tools/programs_bar.h"
#include "tools/settings_form.h"
#include "tools/tips.h"

namespace tarvelin
{

void attachTools()
{
  procedures.readGame = readGame;
  attachTips();
  attachLinks();
  attachAbout();
  attachAssociation();
  attachProgramsBar();
  attachSettingsForm();
}

} // namespace tarvelin
