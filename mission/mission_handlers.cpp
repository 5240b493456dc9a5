#include "mission/mission_handlers.h"

#include "mission/create_mission.h"
#include "mission/open_mission.h"
#include "mission/previews.h"

namespace tarvelin
{

void attachMission()
{
  attachOpenMission();
  attachCreateMission();
  attachPreviews();
}

} // namespace tarvelin
