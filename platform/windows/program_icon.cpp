#include "platform/program_icon.h"

#include "platform/files.h"

namespace tarvelin::platform
{

std::optional<IconImage> programIcon(std::string_view program)
{
  const MappedFile file(program);
  const auto image = executableIcon(file.bytes());
  return image ? std::optional(fitted(*image, 32)) : std::nullopt;
}

} // namespace tarvelin::platform
