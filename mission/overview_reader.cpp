#include "mission/overview_reader.h"

#include "core/forms/frmmain.h"
#include "core/logged_steps.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "platform/clock.h"

#include <algorithm>
#include <optional>

namespace tarvelin
{

namespace
{

constexpr std::string_view nameAnchor = R"(<ANAME="MAIN">)"; // blanks do not count

/// A size of the picture in the page: its attribute and the combo that shows it.
struct SizeAttribute
{
  std::string_view word;
  Combo& sizes;
};

const SizeAttribute sizeAttributes[] = {
    {"WIDTH", frmmain.Sirka},
    {"HEIGHT", frmmain.Vyska},
};

/// One reading of an overview page. Line ends of the page are lost: they are blanks to the game.
class OverviewReading
{
public:
  explicit OverviewReading(const LoggedSteps& steps) : m_steps(steps) {}

  void line(const std::string& raw);

  const std::string& text() const { return m_text; }

private:
  std::string outsideTags(std::string_view raw);
  void picture(std::string_view source) const;
  void size(std::string_view upperLine, const SizeAttribute& attribute) const;

  const LoggedSteps& m_steps;
  std::string m_text;
  bool m_inBody = false;
  bool m_inTag = false; // a tag may go on in the next line
};

void OverviewReading::line(const std::string& raw)
{
  const std::string upperLine = upper(raw);
  std::string compared = upperLine;
  std::erase(compared, ' ');
  if (compared.find(nameAnchor) != std::string::npos)
  {
    frmmain.txtJmenoMise.set(outsideTags(raw));
    m_inBody = true;
  }
  else if (m_inBody)
    m_text += outsideTags(raw);
  constexpr std::string_view imageTag = "<IMG SRC=";
  if (const int at = inStr(upperLine, imageTag); at > 0)
    picture(mid(raw, at + static_cast<int>(imageTag.size())));
  for (const SizeAttribute& attribute : sizeAttributes)
    size(upperLine, attribute);
  // Behind the text: what stands on the line of the body tag itself is not taken.
  if (compared.find("<BODY") != std::string::npos)
    m_inBody = true;
  if (compared.find("</BODY>") != std::string::npos)
    m_inBody = false;
}

std::string OverviewReading::outsideTags(std::string_view raw)
{
  std::string outside;
  for (const char c : raw)
  {
    if (c == '<')
      m_inTag = true;
    if (!m_inTag)
      outside += c;
    if (c == '>')
      m_inTag = false;
  }
  return outside;
}

/// `source` is what stands behind "src=": the name between the first two quotes, if the tag does not end before.
void OverviewReading::picture(std::string_view source) const
{
  const std::size_t end = source.find('>');
  const std::size_t first = source.find('"');
  const std::size_t second = first == std::string_view::npos ? first : source.find('"', first + 1);
  if (second < end)
  {
    shared.CestaObrazku = shared.CestaMise + "\\" + std::string(source.substr(first + 1, second - first - 1));
    frmmain.lbljmeno.setCaption(shared.CestaObrazku);
    if (upper(right(shared.CestaObrazku, 3)) == "JPG")
      m_steps([] { frmmain.Picnahled.load(shared.CestaObrazku); });
    else
      frmmain.Picnahled.clear();
  }
  else if (end != std::string_view::npos)
  {
    shared.CestaObrazku.clear();
    frmmain.lbljmeno.setCaption("");
    frmmain.Picnahled.clear();
  }
}

/// Shows a number of the page as the power of two at or below it; row k is 2 to the power k + 1.
void selectSize(Combo& sizes, int number)
{
  if (number == 0)
    throw Failure(Fault::invalidCall);
  int row = -1;
  while (number >>= 1)
    ++row;
  if (row < 0)
    throw Failure(Fault::invalidValue);
  sizes.select(row);
}

/// The number behind the sign, with or without quotes and blanks; the first other character ends it.
void OverviewReading::size(std::string_view upperLine, const SizeAttribute& attribute) const
{
  const std::string word(attribute.word);
  const std::size_t at = std::min(upperLine.find(word + "="), upperLine.find(word + " ="));
  if (at == std::string_view::npos)
    return;
  constexpr int tooLarge = 1 << 20;
  int number = 0;
  for (const char c : upperLine.substr(upperLine.find('=', at) + 1))
    if (c >= '0' && c <= '9')
      number = std::min(10 * number + (c - '0'), tooLarge);
    else if (c != '"' && c != ' ')
      break;
  m_steps([&] { selectSize(attribute.sizes, number); });
}

} // namespace

void NactiOverview(const std::string& cesta, Text& pole)
{
  const LoggedSteps steps(
      [&](const Failure& failure)
      {
        return "Nastala chyba při čtení Overview.html ze složky: " + cesta + ", " + failureText(failure) +
               std::string(crlf);
      });
  pole.set("");
  std::optional<LineReader> file;
  steps([&] { file.emplace(cesta); });
  ZapisLog("Načítání overview z: " + cesta + ", " + platform::timeText() + std::string(crlf));
  OverviewReading reading(steps);
  while (file && !file->atEnd())
    reading.line(file->next());
  pole.set(reading.text());
  ZapisLog("Konec načítání overview" + std::string(crlf));
  ZapisLog("Jméno mise: " + frmmain.txtJmenoMise.text() + std::string(crlf));
  ZapisLog("Text Overview: " + std::string(crlf) + pole.text() + std::string(crlf));
}

} // namespace tarvelin
