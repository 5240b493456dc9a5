#include "core/core_handlers.h"

#include "core/language_chooser.h"
#include "core/mission_settings.h"
#include "core/run_log.h"
#include "core/startup.h"

namespace tarvelin
{

void attachCore()
{
  attachStartAndExit();
  attachRunLog();
  attachLanguageChooser();
  attachMissionSettings();
}

} // namespace tarvelin
