#include "mission/sqm_reader.h"

#include "core/attempt.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmdebrief.h"
#include "core/forms/frmmain.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "mission/keyword_scanner.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "tools/mission_readme.h"

#include <cstdint>
#include <optional>
#include <span>

namespace tarvelin
{

namespace
{

/// The keywords of the scanner. A line holds one when it contains it anywhere, also inside of a longer word.
enum Keyword
{
  briefingName,
  briefingDescription,
  startWeather,
  forecastWeather,
  startFog,
  forecastFog,
  month,
  day,
  hour,
  minute,
  classIntro,
  classMission,
  classOutroWin,
  classOutroLoose,
  resistanceEast,
  resistanceWest,
  classMarkers,
  classSensors,
  addOns,
  emptyAddOns,
  classItem,
  openBrace,
  closeBrace,
  colorName,
  fillName,
  markerName,
  textKey,
  typeKey,
  activationType,
  titleText,
  expCond,
};

/// In the order of Keyword. The first ones are of interest anywhere, the rest only among the items of a class.
constexpr std::string_view keywords[] = {
    "BRIEFINGNAME",
    "BRIEFINGDESCRIPTION",
    "STARTWEATHER",
    "FORECASTWEATHER",
    "STARTFOG",
    "FORECASTFOG",
    "MONTH",
    "DAY",
    "HOUR",
    "MINUTE",
    "CLASS INTRO",
    "CLASS MISSION",
    "CLASS OUTROWIN",
    "CLASS OUTROLOOSE",
    "RESISTANCEEAST",
    "RESISTANCEWEST",
    "CLASS MARKERS",
    "CLASS SENSORS",
    "ADDONS[]",
    "ADDONS[]={}",
    "CLASS ITEM",
    "{",
    "}",
    "COLORNAME",
    "FILLNAME",
    "NAME",
    "TEXT",
    "TYPE",
    "ACTIVATIONTYPE",
    "TITLETEXT",
    "EXPCOND",
};

constexpr std::size_t keywordsAnywhere = classItem;

struct IntelValue
{
  Keyword keyword;
  std::string& target;
};

const IntelValue intelValues[] = {
    {briefingName, shared.BrifingJmeno},
    {briefingDescription, shared.BrifingPopis},
    {startWeather, shared.Pocasi},
    {forecastWeather, shared.PredpovedPocasi},
    {startFog, shared.Mlha},
    {forecastFog, shared.PredpovedMlhy},
    {month, shared.Mesic},
    {day, shared.Den},
    {hour, shared.Hodina},
    {minute, shared.Minuta},
};

struct Section
{
  Keyword keyword;
  bool mission;
  std::string_view addonHeader;
};

constexpr Section sections[] = {
    {classMission, true, "Mission -->"},
    {classIntro, false, "Intro -->"},
    {classOutroWin, false, "OutroWin -->"},
    {classOutroLoose, false, "OutroLoose -->"},
};

/// The lines of the file, each with the keywords that it holds.
class SqmLines
{
public:
  explicit SqmLines(std::string_view text)
      : m_scanner(keywords),
        m_finder(std::span(keywords).first(keywordsAnywhere), text),
        m_text(text),
        m_line{{}, 0, text}
  {
  }

  /// Goes to the next line. False at the end of the file.
  bool next()
  {
    if (m_line.rest.empty())
      return false;
    m_line = m_scanner.scan(m_line.rest);
    return true;
  }

  /// Goes to the next line that is of interest anywhere.
  bool nextOfInterest()
  {
    const std::size_t from = m_text.size() - m_line.rest.size();
    m_line.rest = m_text.substr(m_finder.lineFrom(from));
    return next();
  }

  bool has(Keyword keyword) const { return (m_line.keywords >> keyword & 1) != 0; }
  bool hasAny() const { return m_line.keywords != 0; }
  std::string text() const { return platform::decode(m_line.text); }
  std::string value() const { return HodnotaRadku(text()); }

private:
  KeywordScanner m_scanner;
  KeywordFinder m_finder;
  std::string_view m_text;
  KeywordScanner::Line m_line;
};

/// One reading of a mission file.
class SqmReading
{
public:
  explicit SqmReading(std::string_view text) : m_lines(text) {}

  void run()
  {
    while (m_lines.nextOfInterest())
      line();
  }

private:
  void line();
  void alliance(Keyword keyword, int ally);
  void addonList();
  template <class Record, class ReadFields>
  void items(std::int16_t& count, Array<Record>& records, ReadFields readFields);

  SqmLines m_lines;
  bool m_inMission = false;
  bool m_inItem = false; // once set it stays, from one class to the next
  const Section* m_section = nullptr;
};

void SqmReading::line()
{
  for (const auto& [keyword, target] : intelValues)
    if (m_lines.has(keyword))
      attempt([&] { target = m_lines.value(); });
  for (const Section& section : sections)
    if (m_lines.has(section.keyword))
      m_section = &section;
  // Of several on one line the outros win over the mission, and the mission over the intro.
  if (m_lines.has(classOutroWin) || m_lines.has(classOutroLoose))
    m_inMission = false;
  else if (m_lines.has(classMission))
    m_inMission = true;
  else if (m_lines.has(classIntro))
    m_inMission = false;
  alliance(resistanceEast, 33);
  alliance(resistanceWest, 34);
  const bool sensors = m_lines.has(classSensors) && m_inMission;
  const bool addons = m_lines.has(addOns) && !m_lines.has(emptyAddOns);
  if (m_lines.has(classMarkers))
    items(shared.PocetZnacek, shared.Znacky,
          [this](int i)
          {
            if (m_lines.has(colorName) || m_lines.has(fillName))
              return;
            if (m_lines.has(markerName))
              attempt([&] { shared.Znacky.at(i).Name = m_lines.value(); });
            if (m_lines.has(textKey))
              attempt([&] { shared.Znacky.at(i).Text = m_lines.value(); });
            if (m_lines.has(typeKey)) // markerType too: whichever of the two came last
              attempt([&] { shared.Znacky.at(i).Type = m_lines.value(); });
          });
  if (sensors)
    items(shared.PocetSenzoru, shared.Senzory,
          [this](int i)
          {
            if (m_lines.has(activationType) || m_lines.has(titleText))
              return;
            if (m_lines.has(typeKey))
              attempt([&] { shared.Senzory.at(i).Type = m_lines.value(); });
            if (m_lines.has(textKey))
              attempt([&] { shared.Senzory.at(i).Text = m_lines.value(); });
            if (m_lines.has(expCond))
              attempt([&] { shared.Senzory.at(i).Expcond = m_lines.value(); });
          });
  if (addons)
    addonList();
}

void SqmReading::alliance(Keyword keyword, int ally)
{
  if (m_lines.has(keyword))
    attempt([&] { shared.Spojenci = Texty(val(m_lines.value()) == 1 ? ally : 107); });
}

/// The items of a class of markers or sensors: its brace, its count, then the items by the balance of their braces.
template <class Record, class ReadFields>
void SqmReading::items(std::int16_t& count, Array<Record>& records, ReadFields readFields)
{
  if (!m_lines.next() || !m_lines.next())
    return;
  attempt([&] { count = integerVal(m_lines.value()); });
  attempt([&] { records.redim(count); });
  int depth = 0;
  int i = 0;
  do
  {
    if (!m_lines.next())
      return;
    if (m_lines.has(classItem))
    {
      m_inItem = true;
      if (!m_lines.next())
        return;
    }
    if (m_inItem)
    {
      depth += m_lines.has(openBrace) ? 1 : 0;
      depth -= m_lines.has(closeBrace) ? 1 : 0;
      if (depth == 0)
        ++i;
    }
    if (m_lines.hasAny())
      readFields(i);
  }
  while (i != count);
}

/// Add-on names between the braces that follow. The last of a list has no comma behind it, so it gets no row and the
/// row before it is tagged once more: the lists come out one short, and users know them so.
void SqmReading::addonList()
{
  List& addony = frmdalsinast.addony;
  if (m_section)
    addony.add(m_section->addonHeader);
  std::string rest;
  while (m_lines.next() && !m_lines.has(closeBrace))
  {
    if (m_lines.has(openBrace))
      continue;
    const std::string line = m_lines.text();
    attempt([&] { rest = mid(line, inStr(line, "\"")); });
    attempt([&] { addony.add(BezUvozovek(trim(left(rest, inStr(rest, ",") - 1)))); });
    attempt([&] { addony.setTag(addony.newest(), 1); });
  }
}

void showIntel()
{
  frmmain.txtBrifingJmeno.set(shared.BrifingJmeno);
  frmmain.txtBrifingPopis.set(shared.BrifingPopis);
  frmmain.txtSpojenci.set(shared.Spojenci);
  attempt([] { frmmain.lblMesic.setCaption(numberText(val(shared.Mesic))); });
  attempt([] { frmmain.lblDen.setCaption(numberText(val(shared.Den))); });
  attempt([] { frmmain.lblHodina.setCaption(numberText(val(shared.Hodina))); });
  attempt([] { frmmain.lblMinuta.setCaption(numberText(val(shared.Minuta))); });
  frmmain.lblPocasi.setCaption(shared.Pocasi);
  frmmain.lblMlha.setCaption(shared.Mlha);
  frmmain.lblPredpovedPocasi.setCaption(shared.PredpovedPocasi);
  frmmain.lblPredpovedMlhy.setCaption(shared.PredpovedMlhy);
}

void showFirstMarker()
{
  frmmain.lblznackypocet.setCaption(std::to_string(shared.PocetZnacek));
  shared.AktualniZnacka = 0;
  attempt([] { frmmain.lblJmenoZnacky.setCaption(shared.Znacky.at(0).Name); });
  attempt([] { frmmain.lblPopisZnacky.setCaption(shared.Znacky.at(0).Text); });
  attempt([] { frmmain.lbltypZnacky.setCaption(shared.Znacky.at(0).Type); });
  frmmain.cmdPrev.enable(false);
  frmmain.cmdnext.enable(shared.PocetZnacek > 1);
}

void showFirstSensor()
{
  shared.AktualniSenzor = 0;
  frmdebrief.lblpocetkoncu.setCaption(std::to_string(shared.PocetSenzoru));
  attempt([] { frmdebrief.lbltyp.setCaption(shared.Senzory.at(0).Type); });
  attempt([] { frmdebrief.lbltext.setCaption(shared.Senzory.at(0).Text); });
  attempt([] { frmdebrief.lblpodminka.setCaption(shared.Senzory.at(0).Expcond); });
  frmdebrief.cmdprev.enable(false);
  frmdebrief.cmdnext.enable(shared.PocetSenzoru > 1);
}

} // namespace

std::string HodnotaRadku(std::string_view line)
{
  const int at = inStr(line, "=");
  return mid(line, at + 1, static_cast<int>(length(line)) - at - 1);
}

void NactiSqm(const std::string& path)
{
  frmdalsinast.addony.clear();
  std::optional<platform::MappedFile> file;
  const bool opened = attempt(
      [&] { file.emplace(path); }, [&](const Failure& failure)
      { ZapisLog("Nastala chyba při čtení mise z: " + path + ", " + failureText(failure) + std::string(crlf)); });
  if (!opened)
    return;
  SqmReading(file->bytes()).run();
  file.reset();
  showIntel();
  showFirstMarker();
  showFirstSensor();
  const std::string readme = programFile("\\Bfdata\\Readme.txt");
  if (platform::fileExists(readme))
    NactiReadme(readme, frmdalsinast.txtdokument);
}

} // namespace tarvelin
