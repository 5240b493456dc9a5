#include "panels/panels_handlers.h"

#include "panels/environment_sounds.h"
#include "panels/more_settings.h"
#include "panels/sound_effects.h"
#include "panels/titles.h"
#include "panels/weapons.h"

namespace tarvelin
{

void attachPanels()
{
  attachWeapons();
  attachEnvironmentSounds();
  attachSoundEffects();
  attachTitles();
  attachMoreSettings();
}

} // namespace tarvelin
