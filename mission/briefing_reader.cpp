#include "mission/briefing_reader.h"

#include "core/forms/frmdebrief.h"
#include "core/forms/frmmain.h"
#include "core/logged_steps.h"
#include "core/numbers.h"
#include "core/run_log.h"
#include "core/sides.h"
#include "core/strings.h"
#include "core/text_file.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <vector>

namespace tarvelin
{

namespace
{

constexpr std::string_view anyAnchor = "<ANAME=\"";
constexpr std::string_view endAnchor = "<ANAME=\"DEBRIEFING:END";

/// Anchors are searched in a copy of the line: without blanks, in upper case.
std::string comparisonCopy(std::string_view line)
{
  std::string copy;
  copy.reserve(line.size());
  std::ranges::copy_if(line, std::back_inserter(copy), [](char c) { return c != ' '; });
  return upper(copy);
}

/// Objectives that are being read. Their anchors are only counted, whatever number they bear, and a record begins with
/// the first character behind its anchor: one without a text has none.
struct ObjectiveReading
{
  ObjectiveStore store;
  bool hasRows;             ///< in List1, which shows one side at a time and is filled when the side is chosen
  std::int16_t anchors = 0; ///< met so far
  std::int16_t begun = 0;   ///< the one that was begun last
  int record = 0;           ///< its place
};

/// The same for the endings.
struct EndReading
{
  std::int16_t anchors = 0;
  std::int16_t begun = 0;
};

using Destination = std::function<void(std::string_view)>;

/// What a line is searched for.
struct Anchor
{
  std::string text;
  bool severalSides;
  ObjectiveReading* counted; ///< null for notes and plan
  Destination destination;   ///< of the text behind it
};

/// One reading of a page.
class BriefingReading
{
public:
  explicit BriefingReading(const LoggedSteps& steps);

  void line(std::string_view line);

private:
  void addAnchor(std::string_view name, bool severalSides, Destination destination);
  void addObjectiveAnchor(std::string_view name, bool severalSides, const ObjectiveStore& store);

  void findAnchors(std::string_view copy);
  std::string outsideTags(std::string_view line);
  void readObjective(ObjectiveReading& reading, std::string_view text);
  void readHeading(std::string_view line);
  void readEnd(std::string_view text);

  const LoggedSteps& m_steps;
  std::vector<ObjectiveReading> m_objectives;
  EndReading m_ends;
  std::vector<Anchor> m_anchors; ///< in the order of their tests: the last one that a line holds wins
  Destination m_toEnds = [this](std::string_view text) { readEnd(text); };
  const Destination* m_section = nullptr;
  bool m_outside = true; ///< of tags; it outlives the line
};

BriefingReading::BriefingReading(const LoggedSteps& steps) : m_steps(steps)
{
  const auto toField = [](Text& field) { return [&field](std::string_view text) { field.append(text); }; };
  const auto toText = [](std::string& target) { return [&target](std::string_view text) { target += text; }; };
  m_objectives.reserve(1 + std::size(sides)); // their addresses are kept
  addAnchor("MAIN\">", false, toField(frmmain.txtPoznamky));
  for (const Side& side : sides)
    addAnchor("MAIN." + upper(side.anchor) + "\">", true, toText(side.notes));
  addAnchor("PLAN\">", false, toField(frmmain.txtBriefink));
  for (const Side& side : sides)
    addAnchor("PLAN." + upper(side.anchor) + "\">", true, toText(side.plan));
  // This one lies in the anchors of all sides, too. They are counted here with the common ones.
  addObjectiveAnchor("OBJ_", false, commonObjectives);
  for (const Side& side : sides)
    addObjectiveAnchor("OBJ_" + upper(side.anchor) + "_", true, side.objectives);
}

void BriefingReading::addAnchor(std::string_view name, bool severalSides, Destination destination)
{
  m_anchors.push_back({std::string(anyAnchor) + std::string(name), severalSides, nullptr, std::move(destination)});
}

void BriefingReading::addObjectiveAnchor(std::string_view name, bool severalSides, const ObjectiveStore& store)
{
  ObjectiveReading& reading = m_objectives.emplace_back(ObjectiveReading{store, !severalSides});
  addAnchor(name, severalSides, [this, &reading](std::string_view text) { readObjective(reading, text); });
  m_anchors.back().counted = &reading;
}

void BriefingReading::line(std::string_view line)
{
  const std::string copy = comparisonCopy(line);
  if (copy.find(anyAnchor) != std::string::npos)
    findAnchors(copy);
  if (copy.find(endAnchor) != std::string::npos)
    return readHeading(line);
  if (!m_section)
    return;
  const std::string text = outsideTags(line);
  if (!text.empty())
    (*m_section)(text);
}

void BriefingReading::findAnchors(std::string_view copy)
{
  for (const Anchor& anchor : m_anchors)
  {
    if (copy.find(anchor.text) == std::string_view::npos)
      continue;
    frmmain.chkvicestran.set(anchor.severalSides);
    m_section = &anchor.destination;
    if (anchor.counted)
      m_steps([&] { anchor.counted->anchors = counted(anchor.counted->anchors); });
  }
}

std::string BriefingReading::outsideTags(std::string_view line)
{
  std::string text;
  for (const char c : line)
  {
    if (c == '<')
      m_outside = false;
    if (m_outside)
      text += c;
    if (c == '>')
      m_outside = true;
  }
  return text;
}

void BriefingReading::readObjective(ObjectiveReading& reading, std::string_view text)
{
  auto& [records, count] = reading.store;
  if (reading.begun != reading.anchors)
  {
    reading.begun = count = reading.anchors;
    m_steps([&] { records.redimPreserve(count); });
    reading.record = reading.anchors - 1;
    if (reading.hasRows)
    {
      List& list = frmmain.List1;
      m_steps([&] { list.add(Texty(112) + " " + std::to_string(reading.anchors)); });
      reading.record = list.newest();
      m_steps([&] { list.setTag(reading.record, reading.record); });
      m_steps([&] { list.mark(reading.record, true); });
    }
    m_steps([&] { records.at(reading.record) = {{}, -1}; });
  }
  m_steps([&] { records.at(reading.record).Text += text; });
}

/// The anchor's line is the heading and nothing else.
void BriefingReading::readHeading(std::string_view line)
{
  m_section = &m_toEnds;
  m_steps([this] { m_ends.anchors = counted(m_ends.anchors); });
  m_steps([this] { shared.Konce.redimPreserve(m_ends.anchors); });
  const std::string heading = outsideTags(line);
  m_steps([&] { shared.Konce.at(m_ends.anchors - 1).Nadpis = heading; });
}

void BriefingReading::readEnd(std::string_view text)
{
  const int record = m_ends.anchors - 1; // heading and text stay together
  if (m_ends.begun != m_ends.anchors)
  {
    m_ends.begun = shared.PocetKoncu = m_ends.anchors;
    List& list = frmdebrief.List1;
    m_steps([&] { list.add(Texty(121) + " " + std::to_string(m_ends.anchors)); });
    m_steps([&] { list.setTag(list.newest(), list.newest()); });
    m_steps([&] { list.mark(list.newest(), true); });
    m_steps([&] { shared.Konce.at(record).Text.clear(); });
  }
  m_steps([&] { shared.Konce.at(record).Text += text; });
}

} // namespace

void NactiBriefing(const std::string& cesta)
{
  const LoggedSteps steps(
      [&](const Failure& failure)
      { return "Nastala chyba při načítání brífingu z: " + cesta + ", " + failureText(failure) + std::string(crlf); });
  std::optional<LineReader> page;
  steps([&] { page.emplace(cesta); });
  // The list of objectives, the side texts and the arrays are fresh already.
  for (Text* const field : {&frmmain.txtBriefink, &frmmain.txtPoznamky, &frmmain.txtUkol})
    field->set({});
  frmdebrief.List1.clear();
  if (page)
    for (BriefingReading reading(steps); !page->atEnd();)
      reading.line(page->next());
  steps([] { frmmain.List1.select(0); });
  steps([] { frmdebrief.List1.select(0); });
}

} // namespace tarvelin
