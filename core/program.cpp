#include "core/program.h"

namespace tarvelin
{

namespace
{

std::string folder;

} // namespace

const std::string& programFolder()
{
  return folder;
}

void setProgramFolder(std::string_view path)
{
  folder = path;
  while (folder.size() > 1 && folder.back() == '\\')
    folder.pop_back();
}

std::string programFile(std::string_view file)
{
  return folder + std::string(file);
}

} // namespace tarvelin
