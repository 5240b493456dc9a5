#include "platform/file_types.h"

#include "platform/registry.h"

namespace tarvelin::platform
{

namespace
{

constexpr RegistryRoot root = RegistryRoot::classesRoot;

} // namespace

std::optional<std::string> fileTypeHandler(std::string_view extension)
{
  if (!registryKeyExists(root, extension))
    return std::nullopt;
  return registryString(root, extension, "").value_or("");
}

bool setFileTypeHandler(std::string_view extension, std::string_view handler)
{
  return setRegistryString(root, extension, "", handler);
}

bool removeFileTypeHandler(std::string_view extension)
{
  return deleteRegistryValue(root, extension, "");
}

bool fileHandlerExists(std::string_view handler)
{
  return registryKeyExists(root, handler);
}

bool setFileHandlerCommand(std::string_view handler, std::string_view /*extension*/, std::string_view verb,
                           std::string_view program)
{
  return setRegistryString(root, std::string(handler) + "\\shell\\" + std::string(verb) + "\\command", "",
                           std::string(program) + " %1");
}

bool setFileHandlerIcon(std::string_view handler, std::string_view /*extension*/, std::string_view icon)
{
  return setRegistryString(root, std::string(handler) + "\\DefaultIcon", "", icon);
}

bool removeFileHandler(std::string_view handler, std::string_view /*extension*/)
{
  return deleteRegistryKey(root, handler);
}

} // namespace tarvelin::platform
