#include "app/assemble.h"

#include "core/core_handlers.h"
#include "core/exit.h"
#include "core/forms/all_forms.h"
#include "core/procedures.h"
#include "core/shared.h"
#include "mission/mission_handlers.h"
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
  attachTools();
}

} // namespace tarvelin
