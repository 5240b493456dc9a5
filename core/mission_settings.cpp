#include "core/mission_settings.h"

#include "core/forms/frmmain.h"

namespace tarvelin
{

void attachMissionSettings()
{
  frmmain.respawn.onClick = [] { frmmain.Frame6.show(frmmain.respawn.checked()); };
  frmmain.Skore.onClick = [] { frmmain.Frame7.show(frmmain.Skore.checked()); };
}

} // namespace tarvelin
