#include "platform/processes.h"

#include "platform/files.h"
#include "platform/linux/command.h"
#include "platform/linux/handles.h"
#include "platform/paths.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace tarvelin::platform
{

namespace
{

std::vector<std::string> wordsOf(std::string_view line)
{
  std::vector<std::string> words;
  bool inWord = false;
  bool quoted = false;
  for (const char c : line)
  {
    if (!quoted && (c == ' ' || c == '\t'))
    {
      inWord = false;
      continue;
    }
    if (!inWord)
      words.emplace_back();
    inWord = true;
    if (c == '"')
      quoted = !quoted;
    else
      words.back() += c;
  }
  return words;
}

bool beginsPath(std::string_view word)
{
  const bool drive =
      word.size() >= 3 && ((word[0] | 0x20) >= 'a' && (word[0] | 0x20) <= 'z') && word[1] == ':' && word[2] == '\\';
  return drive || word.starts_with('\\');
}

std::string pathFor(const Command& command, std::string_view path)
{
  return command.windowsPaths ? toWindows(path) : toNative(path);
}

// Tools take several paths in one word, with commas between; a file's own name may have a comma as well.
std::string argumentFor(const Command& command, std::string_view word)
{
  if (!beginsPath(word))
    return std::string(word);
  if (fileExists(word) || folderExists(word))
    return pathFor(command, word);
  std::string result;
  for (std::size_t start = 0; start <= word.size();)
  {
    const std::size_t end = std::min(word.find(',', start), word.size());
    const std::string_view part = word.substr(start, end - start);
    result += beginsPath(part) ? pathFor(command, part) : std::string(part);
    if (end < word.size())
      result += ',';
    start = end + 1;
  }
  return result;
}

void tellFailure(int report)
{
  const char failed = 1;
  if (write(report, &failed, 1) != 1)
    _exit(127); // nobody listens any more
}

// What the new process does before it becomes the program. Other threads may hold any lock, so here are system calls
// and nothing else.
[[noreturn]] void become(const char* executable, char* const* arguments, const char* folder, int report)
{
  setsid();
  const int nothing = open("/dev/null", O_RDWR);
  // What it writes goes nowhere: who waits for the end of our own output must not wait for a program left behind.
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    dup2(nothing, stream);
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
  signal(SIGPIPE, SIG_DFL);
  signal(SIGCHLD, SIG_DFL);
  close_range(3, ~0U, CLOSE_RANGE_CLOEXEC);
  if (chdir(folder) == 0)
    execv(executable, arguments);
  tellFailure(report);
  _exit(127);
}

// A grandchild is nobody's to wait for: the system takes it over when the child in between is gone.
bool launch(const Command& command, std::vector<std::string> words, const std::string& folder)
{
  words.insert(words.begin(), command.first.begin(), command.first.end());
  words.insert(words.begin(), command.executable);
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words)
    arguments.push_back(word.data());
  arguments.push_back(nullptr);

  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0)
    return false;
  const Descriptor answer(ends[0]);
  Descriptor pipeEnd(ends[1]);
  Descriptor report(fcntl(pipeEnd.get(), F_DUPFD_CLOEXEC, 3)); // out of the way of the standard streams
  pipeEnd.close();
  const pid_t child = report.valid() ? fork() : -1;
  if (child < 0)
    return false;
  if (child == 0)
  {
    const pid_t grandchild = fork();
    if (grandchild == 0)
      become(command.executable.c_str(), arguments.data(), folder.c_str(), report.get());
    if (grandchild < 0)
      tellFailure(report.get());
    _exit(0);
  }
  report.close();
  while (waitpid(child, nullptr, 0) < 0 && errno == EINTR)
    ;
  char failed = 0;
  ssize_t count = read(answer.get(), &failed, 1);
  while (count < 0 && errno == EINTR)
    count = read(answer.get(), &failed, 1);
  return count == 0; // the program's start closed the pipe
}

bool isUsable(std::string_view text)
{
  return text.find('\0') == std::string_view::npos;
}

bool isWebAddress(std::string_view address)
{
  const std::size_t colon = address.find(':');
  constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+.-";
  return colon != std::string_view::npos && colon >= 2 && address.find_first_not_of(letters) == colon;
}

} // namespace

bool startProgram(std::string_view program, std::string_view arguments, std::string_view folder)
{
  if (program.size() >= 2 && program.starts_with('"') && program.ends_with('"'))
    program = program.substr(1, program.size() - 2);
  if (program.empty() || !isUsable(program) || !isUsable(arguments) || !isUsable(folder))
    return false;
  const auto command = commandOf(program, folder);
  if (!command)
    return false;
  std::vector<std::string> words = wordsOf(arguments);
  for (std::string& word : words)
    word = argumentFor(*command, word);
  return launch(*command, std::move(words), folder.empty() ? "." : toNative(folder));
}

bool isProgram(std::string_view path)
{
  return isExecutable(toNative(path));
}

bool openInBrowser(std::string_view address)
{
  const auto opener = foundInPath("xdg-open");
  if (address.empty() || !isUsable(address) || !opener)
    return false;
  std::string target(address);
  if (beginsPath(address) || fileExists(address))
    target = absolute(toNative(address));
  else if (!isWebAddress(address))
    target = "http://" + target; // also keeps it from being taken for an option
  return launch({*opener, {}}, {target}, ".");
}

} // namespace tarvelin::platform
