#include "campaign/mission_choice.h"

#include "core/forms/frmopenmission.h"
#include "core/shared.h"

namespace tarvelin
{

bool chooseCampaignMission()
{
  shared.RezimOtevreni = 7;
  shared.VybranaCesta.clear();
  frmopenmission.showModal();
  return !shared.VybranaCesta.empty();
}

} // namespace tarvelin
