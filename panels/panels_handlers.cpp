#include "panels/panels_handlers.h"

#include "panels/weapons.h"

namespace tarvelin
{

void attachPanels()
{
  attachWeapons();
}

} // namespace tarvelin
