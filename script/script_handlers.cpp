#include "script/script_handlers.h"

namespace tarvelin
{

void attachScript()
{
}

} // namespace tarvelin
