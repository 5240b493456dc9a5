#pragma once

namespace tarvelin
{

/// Puts the handlers of the sound intake (frmnactizvuky) on its fields. It makes records in the list that RezimNacitani
/// names: 1 to 3 radio messages, sounds and music of the mission, 4 to 6 of the campaign.
void attachSoundIntake();

} // namespace tarvelin
