#include "script/catalogue.h"

#include "core/forms/frmmain.h"
#include "core/forms/frmrejstrik.h"
#include "core/logged_steps.h"
#include "core/procedures.h"
#include "core/run_log.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "script/word_classes.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace tarvelin
{

namespace
{

/// What stands behind the first `mark` of a line; nothing when there is no such mark.
std::optional<std::string> behind(char mark, const std::string& line)
{
  const std::size_t at = line.find(mark);
  return at == std::string::npos ? std::nullopt : std::optional(line.substr(at + 1));
}

/// Grows the tree line by line. A line that has nothing to hang on throws 35601.
class CommandTree
{
public:
  explicit CommandTree(Tree& tree) : m_tree(tree) {}

  void take(const std::string& line)
  {
    if (const auto heading = behind('@', line))
    {
      m_hlavni = *heading;
      m_vedlejsi.clear();
      checkName(m_hlavni);
      m_tree.add("", m_hlavni, m_hlavni);
    }
    else if (const auto subheading = behind('#', line))
    {
      m_vedlejsi = *subheading;
      checkName(m_hlavni);
      m_tree.add(m_hlavni, m_hlavni + m_vedlejsi, m_vedlejsi);
    }
    else
    {
      checkName(m_hlavni);
      checkName(m_vedlejsi); // the key of the heading alone would be found, but commands hang on sub-headings only
      m_tree.add(m_hlavni + m_vedlejsi, m_hlavni + m_vedlejsi + line, line);
    }
  }

private:
  static void checkName(const std::string& name)
  {
    if (name.empty())
      throw Failure(Fault::elementNotFound);
  }

  Tree& m_tree;
  std::string m_hlavni;
  std::string m_vedlejsi;
};

LoggedSteps stepsOf(std::string_view what, const std::string& path)
{
  return LoggedSteps([what, path](const Failure& failure)
                     { return std::string(what) + path + ", " + failureText(failure) + std::string(crlf); });
}

/// Hands each line that is not empty to `take`, each as a step of its own.
template <class Take> void eachLine(const std::string& path, const LoggedSteps& step, Take&& take)
{
  step(
      [&]
      {
        for (LineReader file(path); !file.atEnd();)
        {
          const std::string line = file.next();
          if (!trim(line).empty())
            step([&] { take(line); });
        }
      });
}

} // namespace

void NactiPrikazy(const std::string& path)
{
  ZapisLog("Načítání souboru s příkazy" + std::string(crlf));
  {
    const BulkChange bulk(frmmain.prikazy);
    frmmain.prikazy.clear();
    CommandTree tree(frmmain.prikazy);
    eachLine(path, stepsOf("Nastala chyba při načítání souboru s příkazy z: ", path),
             [&](const std::string& line) { tree.take(line); });
  }
  ZapisLog("Konec načítání souboru s příkazy" + std::string(crlf));
}

void NactiDruhePrikazy(const std::string& path)
{
  const BulkChange bulk(frmrejstrik.seznam);
  int tag = 0;
  eachLine(path, stepsOf("Nastala chyba při načítání druhého souboru s příkazy z: ", path),
           [&](const std::string& line)
           {
             if (const auto heading = behind('@', line))
             {
               const auto found = std::ranges::find(wordClasses, upper(trim(*heading)), &WordClass::heading);
               if (found != std::end(wordClasses))
                 tag = found->tag;
             }
             else
               frmrejstrik.seznam.add(trim(line), tag);
           });
}

void attachCatalogue()
{
  procedures.NactiPrikazy = NactiPrikazy;
  procedures.NactiDruhePrikazy = NactiDruhePrikazy;
}

} // namespace tarvelin
