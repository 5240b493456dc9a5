#pragma once

#include <csignal>
#include <sys/resource.h>

namespace tarvelin::tests
{

/// No file of this process grows beyond `bytes`: what a full disk is to the one who writes.
class SmallDisk
{
public:
  explicit SmallDisk(rlim_t bytes)
  {
    m_handler = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit small{bytes, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  ~SmallDisk()
  {
    setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, m_handler);
  }

private:
  rlimit m_before{};
  void (*m_handler)(int) = nullptr;
};

} // namespace tarvelin::tests
