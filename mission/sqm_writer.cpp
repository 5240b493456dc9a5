#include "mission/sqm_writer.h"

#include "core/attempt.h"
#include "core/run_log.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "mission/page.h"
#include "platform/clock.h"

namespace tarvelin
{

namespace
{

struct Section
{
  std::string_view name;
  std::string_view seed;
  std::string_view intelEnd;
};

constexpr Section sections[] = {
    {"Mission", "6065155", "    };"},
    {"Intro", "7186435", "     };"}, // one blank more: generated missions have always had it
    {"OutroWin", "1900035", "    };"},
    {"OutroLoose", "3372035", "    };"},
};

} // namespace

void UlozSqm(const std::string& path)
{
  ZapisLog("Vytváření Mission.sqm do: " + path + ", " + platform::timeText() + std::string(crlf));
  std::string text;
  addLine(text, "Version = 11.000000;");
  for (const Section& section : sections)
  {
    addLine(text, "class " + std::string(section.name));
    addLine(text, "{");
    addLine(text, "    addOns[]={};");
    addLine(text, "    randomSeed=" + std::string(section.seed) + ".000000;");
    addLine(text, "    class Intel");
    addLine(text, "    {");
    addLine(text, section.intelEnd);
    addLine(text, "};");
  }
  attempt([&] { writeText(path, text); },
          [&](const Failure& failure)
          {
            ZapisLog("Nastala chyba při ukládání mission.sqm do složky: " + path + ", " + failureText(failure) +
                     std::string(crlf));
          });
  ZapisLog("Konec vytváření Mission.sqm" + std::string(crlf));
}

} // namespace tarvelin
