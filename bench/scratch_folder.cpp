#include "bench/scratch_folder.h"

#include <cstdlib>
#include <string>
#include <system_error>

namespace tarvelin::bench
{

ScratchFolder::ScratchFolder()
{
  std::string name = (std::filesystem::temp_directory_path() / "tarvelin-bench-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr)
    throw std::filesystem::filesystem_error("no scratch folder", name,
                                            std::make_error_code(std::errc::permission_denied));
  m_path = name;
}

ScratchFolder::~ScratchFolder()
{
  std::error_code ignored;
  std::filesystem::remove_all(m_path, ignored);
}

} // namespace tarvelin::bench
