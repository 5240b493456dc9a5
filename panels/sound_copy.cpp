#include "panels/sound_copy.h"

namespace tarvelin
{

void KopirujZvuky() {}

} // namespace tarvelin
