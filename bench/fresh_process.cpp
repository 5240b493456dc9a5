#include "bench/fresh_process.h"

#include <cstdio>
#include <exception>
#include <fstream>
#include <malloc.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvelin::bench
{

namespace
{

/// A line of the system's account of this process ("VmHWM"), in bytes.
double memoryOf(const std::string& key)
{
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with(key + ":"))
      return std::stod(line.substr(key.size() + 1)) * 1024;
  throw std::runtime_error("the system tells no " + key);
}

double peakGrowthOf(const std::function<void()>& work)
{
  malloc_trim(0);                                // what earlier work left free would hide the growth
  std::ofstream("/proc/self/clear_refs") << "5"; // the peak starts anew
  const double before = memoryOf("VmHWM");
  work();
  return memoryOf("VmHWM") - before;
}

[[noreturn]] void answer(int pipe, const std::function<void()>& work)
{
  int status = 1;
  try
  {
    const double growth = peakGrowthOf(work);
    if (write(pipe, &growth, sizeof(growth)) == static_cast<ssize_t>(sizeof(growth)))
      status = 0;
  }
  catch (const std::exception& failure)
  {
    std::fprintf(stderr, "%s\n", failure.what());
  }
  _exit(status);
}

} // namespace

double peakGrowthInFreshProcess(const std::function<void()>& work)
{
  int ends[2];
  if (pipe(ends) != 0)
    throw std::runtime_error("no pipe");
  const pid_t child = fork();
  if (child < 0)
    throw std::runtime_error("no process");
  if (child == 0)
    answer(ends[1], work);

  close(ends[1]);
  double growth = 0;
  const ssize_t count = read(ends[0], &growth, sizeof(growth));
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (count != static_cast<ssize_t>(sizeof(growth)) || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
    throw std::runtime_error("the measured process failed");
  return growth;
}

} // namespace tarvelin::bench
