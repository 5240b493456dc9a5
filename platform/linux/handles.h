#pragma once

#include <dirent.h>
#include <memory>
#include <unistd.h>
#include <utility>

// Owners of what the system hands out, so that nothing leaks when a step fails.
namespace tarvelin::platform
{

class Descriptor
{
public:
  Descriptor() = default;
  explicit Descriptor(int number) : m_number(number) {}
  Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept
  {
    std::swap(m_number, other.m_number);
    return *this;
  }
  ~Descriptor() { close(); }

  bool valid() const { return m_number >= 0; }
  int get() const { return m_number; }

  /// False when the system could not keep what was written.
  bool close() { return m_number < 0 || ::close(std::exchange(m_number, -1)) == 0; }

private:
  int m_number = -1;
};

struct CloseFolder
{
  void operator()(DIR* folder) const { closedir(folder); }
};

using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

} // namespace tarvelin::platform
