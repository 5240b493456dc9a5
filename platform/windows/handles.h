#pragma once

#include "platform/windows/wide.h"

#include <utility>

// Owners of what the system hands out, so that nothing leaks when a step fails.
namespace tarvelin::platform
{

class Handle
{
public:
  explicit Handle(HANDLE handle) : m_handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle) {}
  Handle(Handle&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
  Handle& operator=(Handle&& other) noexcept
  {
    std::swap(m_handle, other.m_handle);
    return *this;
  }
  ~Handle() { close(); }

  bool valid() const { return m_handle != nullptr; }
  HANDLE get() const { return m_handle; }

  /// False when the system could not keep what was written.
  bool close() { return m_handle == nullptr || CloseHandle(std::exchange(m_handle, nullptr)) != 0; }

private:
  HANDLE m_handle;
};

} // namespace tarvelin::platform
