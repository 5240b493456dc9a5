#include "panels/panels_handlers.h"

#include "panels/debriefing.h"
#include "panels/environment_sounds.h"
#include "panels/identities.h"
#include "panels/more_settings.h"
#include "panels/objectives.h"
#include "panels/picture_picker.h"
#include "panels/sound_copy.h"
#include "panels/sound_effects.h"
#include "panels/sound_intake.h"
#include "panels/sound_tools.h"
#include "panels/sounds.h"
#include "panels/text_editors.h"
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
  attachPicturePicker();
  attachIdentities();
  attachTextEditors();
  attachObjectives();
  attachDebriefing();
  attachSounds();
  attachSoundIntake();
  attachSoundCopy();
  attachSoundTools();
}

} // namespace tarvelin
