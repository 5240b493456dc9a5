#include "mission/briefing_reader.h"

namespace tarvelin
{

void NactiBriefing(const std::string&) {}

} // namespace tarvelin
