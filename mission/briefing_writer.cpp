#include "mission/briefing_writer.h"

#include "core/forms/frmdebrief.h"
#include "core/forms/frmmain.h"
#include "core/forms/tmpfrm.h"
#include "core/logged_steps.h"
#include "core/run_log.h"
#include "core/sides.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "mission/page.h"
#include "platform/files.h"

namespace tarvelin
{

namespace
{

bool severalSides()
{
  return frmmain.chkvicestran.checked();
}

void addSection(std::string& page, std::string_view comment, std::string_view anchor, std::string_view text)
{
  addLine(page, "<!- " + std::string(comment) + ">"); // one dash: the pages have always had it so
  addLine(page, "<H3><A name=\"" + std::string(anchor) + "\"></A></H3>");
  addLine(page, "<P><BR></P>");
  addLine(page, "<P>");
  addLine(page, text);
  addLine(page, "</P><BR><HR>");
  addLine(page, "<BR><BR>");
}

void addNotes(std::string& page, const std::string& notes)
{
  if (!severalSides())
    return addSection(page, "SEkce poznamky", "Main", notes);
  for (const Side& side : sides)
    addSection(page, "SEkce poznamky pro " + std::string(side.comment), "Main." + std::string(side.anchor), side.notes);
}

void addPlan(std::string& page, const std::string& plan)
{
  if (!severalSides())
    return addSection(page, "plan pro vsechny", "Plan", plan);
  for (const Side& side : sides)
    addSection(page, "plan pro " + std::string(side.comment), "Plan." + std::string(side.anchor), side.plan);
}

/// Used objectives are numbered from 1 without gaps, whatever holes the array has.
void addObjectives(std::string& page, std::string_view prefix, const ObjectiveStore& objectives,
                   const LoggedSteps& steps)
{
  int n = 0;
  for (int i = 0; i < objectives.count; ++i)
    steps(
        [&]
        {
          const ZaznamUkolu& objective = objectives.records.at(i);
          if (objective.Pouzit != -1)
            return;
          ++n;
          addLine(page, "<P>");
          addLine(page, "<A name=\"" + std::string(prefix) + std::to_string(n) + "\"></A>");
          addLine(page, objective.Text);
          addLine(page, "</P><BR><HR><BR>");
        });
}

void addAllObjectives(std::string& page, const LoggedSteps& steps)
{
  if (!severalSides())
    return addObjectives(page, "OBJ_", commonObjectives, steps);
  for (const Side& side : sides)
    addObjectives(page, "OBJ_" + upper(side.anchor) + "_", side.objectives, steps);
}

void addEnds(std::string& page, const LoggedSteps& steps)
{
  int n = 0;
  const List& ends = frmdebrief.List1;
  for (int i = 0; i < ends.count(); ++i)
  {
    if (!ends.marked(i))
      continue;
    ++n;
    const auto end = [&]() -> const ZaznamKonce& { return shared.Konce.at(ends.tag(i)); };
    addLine(page, "<P>");
    steps([&]
          { addLine(page, "<H2><A name=\"Debriefing: End" + std::to_string(n) + "\">" + end().Nadpis + "</A></H2>"); });
    steps([&] { addLine(page, end().Text); });
    addLine(page, "</P><BR><HR><BR>");
  }
}

} // namespace

void UlozBriefing(const std::string& cesta, const std::string& plan, const std::string& poznamky)
{
  const LoggedSteps steps(
      [](const Failure& failure) // the name is the same for every page
      {
        return "Nastala chyba při ukládání Briefing.html : " + std::to_string(failure.number) + " ," +
               failure.description + std::string(crlf);
      });
  ZapisLog("Vytváření: " + cesta + std::string(crlf));
  steps([&] { platform::writeFile(cesta, {}); });
  std::string page = pageHead("Operation Flashpoint User Misssion Briefing"); // the game's players know it misspelt
  addNotes(page, poznamky);
  addPlan(page, plan);
  addAllObjectives(page, steps);
  addEnds(page, steps);
  addLine(page, "<BR><BR>");
  addLine(page, "</BODY>");
  addLine(page, "</HTML>");
  tmpfrm.tmptxt.set(page);
  steps([&] { writeText(cesta, tmpfrm.tmptxt.text()); });
}

} // namespace tarvelin
