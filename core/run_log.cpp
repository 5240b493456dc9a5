#include "core/run_log.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/frmload.h"
#include "core/forms/frmmain.h"
#include "core/messages.h"
#include "core/program.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace tarvelin
{

namespace
{

constexpr std::string_view logFolder = "\\Bfdata\\LogFiles";

std::string logFileName()
{
  const platform::LocalTime now = platform::localTime();
  std::string name = "TarvLogFile";
  for (const int number : {now.month, now.day, now.year, now.hour, now.minute, now.second})
    name += std::to_string(number) + "_";
  name.pop_back();
  return name + ".fec";
}

void Command1_Click()
{
  frmload.hide();
}

void Command2_Click()
{
  const auto report = [](const Failure& failure)
  {
    ZapisLog("Nastala chyba při mazání Log souborů z: " + programFolder() + "\\BfData\\LogFiles, " +
             failureText(failure) + std::string(crlf));
  };
  std::vector<std::string> names;
  if (platform::folderExists(programFile(logFolder)))
    attempt([&] { names = platform::listFiles(programFile(logFolder)); }, report);
  int deleted = 0;
  for (const std::string& name : names)
    deleted += attempt([&] { platform::deleteFile(programFile(logFolder) + "\\" + name); }, report);
  tell(std::to_string(deleted) + " " + Hlasky(message::logsDeleted));
}

} // namespace

void ZapisLog(std::string_view text)
{
  frmload.log.append(text);
}

void logLine(std::string_view line)
{
  ZapisLog(std::string(line) + std::string(crlf));
}

std::string failureText(const Failure& failure)
{
  return std::to_string(failure.number) + ", " + failure.description;
}

void saveRunLog()
{
  const std::string folder = programFile(logFolder);
  attempt(
      [&]
      {
        if (!platform::folderExists(folder))
          platform::createFolder(folder);
      });
  attempt([&] { writeText(folder + "\\" + logFileName(), frmload.log.text()); });
}

void attachRunLog()
{
  frmload.Command1.onClick = Command1_Click;
  frmload.Command2.onClick = Command2_Click;
  frmmain.mnuukazlog.onClick = [] { frmload.show(); };
}

} // namespace tarvelin
