#include "bench/command.h"

#include <cstdio>
#include <sys/wait.h>

namespace tarvelin::bench
{

namespace
{

/// A word that the shell takes as it stands.
std::string quoted(const std::string& word)
{
  std::string text = "'";
  for (const char c : word)
    if (c == '\'')
      text += "'\\''";
    else
      text += c;
  return text + "'";
}

} // namespace

int run(const std::vector<std::string>& words, const std::function<void(const std::string&)>& line)
{
  std::string command = "exec env";
  for (const std::string& word : words)
    command += " " + quoted(word);
  FILE* const pipe = popen(command.c_str(), "r");
  if (pipe == nullptr)
    return -1;
  std::string text;
  for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe))
    if (c == '\n')
    {
      line(text);
      text.clear();
    }
    else
      text += static_cast<char>(c);
  const int status = pclose(pipe);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace tarvelin::bench
