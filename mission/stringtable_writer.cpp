#include "mission/stringtable_writer.h"

namespace tarvelin
{

void UlozStringtable(const std::string&, Flag) {}

} // namespace tarvelin
