#pragma once

#include <filesystem>

namespace tarvelin::bench
{

/// A temporary folder of the system, gone with all in it when the object is.
class ScratchFolder
{
public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::filesystem::path& path() const { return m_path; }

private:
  std::filesystem::path m_path;
};

} // namespace tarvelin::bench
