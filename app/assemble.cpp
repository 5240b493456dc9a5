#include "app/assemble.h"

#include "campaign/campaign_handlers.h"
#include "core/core_handlers.h"
#include "core/exit.h"
#include "core/forms/all_forms.h"
#include "core/procedures.h"
#include "core/shared.h"
#include "mission/mission_handlers.h"
#include "panels/panels_handlers.h"
#include "script/script_handlers.h"
#include "tools/tools_handlers.h"

namespace tarvelin
{

void assembleProgram()
{
  renewForms();
  shared = {};
  procedures = {};
  forgetEnd();
  attachCore();
  attachMission();
  attachPanels();
  attachScript();
  attachCampaign();
  attachTools();
}

} // namespace tarvelin
