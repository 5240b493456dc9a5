#include "panels/panels_handlers.h"

namespace tarvelin
{

void attachPanels()
{
}

} // namespace tarvelin
