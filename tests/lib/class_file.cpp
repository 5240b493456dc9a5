#include "tests/lib/class_file.h"

#include <algorithm>
#include <cstddef>
#include <set>

namespace tarvelin::test
{

namespace
{

bool isNameCharacter(char c)
{
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

std::string asciiUpper(std::string_view text)
{
  std::string result(text);
  std::ranges::transform(result, result.begin(), [](char c) { return c >= 'a' && c <= 'z' ? char(c - 'a' + 'A') : c; });
  return result;
}

std::string_view trimmed(std::string_view text)
{
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
    text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
    text.remove_suffix(1);
  return text;
}

std::string takeName(std::string_view& text)
{
  text = trimmed(text);
  const auto end = std::ranges::find_if_not(text, isNameCharacter);
  std::string name(text.begin(), end);
  text.remove_prefix(name.size());
  return name;
}

/// Lines end in LF alone.
std::string withPlainEnds(std::string_view text)
{
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i)
  {
    if (text[i] != '\r')
      result += text[i];
    else if (i + 1 == text.size() || text[i + 1] != '\n')
      result += '\n';
  }
  return result;
}

/// Takes comments and preprocessor lines out; the lines keep their numbers.
class Preprocessor
{
public:
  Preprocessor(std::string_view text, std::vector<Refusal>& refusals) : m_refusals(refusals)
  {
    const std::string bare = withoutComments(withPlainEnds(text));
    bool goesOn = false;
    for (std::size_t start = 0; start < bare.size();)
    {
      const std::size_t end = std::min(bare.find('\n', start), bare.size());
      const std::string_view line = std::string_view(bare).substr(start, end - start);
      ++m_line;
      if (goesOn || trimmed(line).starts_with('#'))
      {
        if (!goesOn)
          direct(trimmed(line).substr(1));
        goesOn = line.ends_with('\\');
      }
      else if (std::ranges::find(m_branches, false) == m_branches.end())
        result += line;
      result += '\n';
      start = end + 1;
    }
    if (!m_branches.empty())
      refuse("#ifdef without #endif");
  }

  std::string result;
  std::set<std::string> macros;
  bool includes = false; ///< classes may stand in a file that is not at hand

private:
  void refuse(const std::string& reason) { m_refusals.push_back({m_line, reason}); }

  std::string withoutComments(const std::string& text)
  {
    std::string bare;
    bool inText = false;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
      if (text[i] == '"')
        inText = !inText;
      else if (text[i] == '\n')
        inText = false;
      const std::string_view ahead = std::string_view(text).substr(i, 2);
      if (!inText && ahead == "//")
      {
        i = std::min(text.find('\n', i), text.size()) - 1;
        continue;
      }
      if (!inText && ahead == "/*")
      {
        const std::size_t end = text.find("*/", i + 2);
        if (end == std::string::npos)
        {
          m_line = 1 + static_cast<int>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(i), '\n'));
          refuse("comment without an end");
          m_line = 0;
          return bare;
        }
        bare += ' ';
        bare.append(static_cast<std::size_t>(std::count(text.begin() + static_cast<std::ptrdiff_t>(i),
                                                        text.begin() + static_cast<std::ptrdiff_t>(end), '\n')),
                    '\n');
        i = end + 1;
        continue;
      }
      bare += text[i];
    }
    return bare;
  }

  void direct(std::string_view rest)
  {
    const std::string directive = takeName(rest);
    if (directive == "include")
    {
      const std::string_view file = trimmed(rest);
      includes = true;
      if (file.size() < 3 ||
          !((file.front() == '"' && file.back() == '"') || (file.front() == '<' && file.back() == '>')))
        refuse("#include without a file");
    }
    else if (directive == "define" || directive == "undef" || directive == "ifdef" || directive == "ifndef")
      name(directive, takeName(rest));
    else if (directive == "else" || directive == "endif")
      branch(directive);
    else
      refuse("unknown #" + directive);
  }

  void name(const std::string& directive, const std::string& macro)
  {
    if (macro.empty())
      return refuse("#" + directive + " without a name");
    if (directive == "define")
      macros.insert(macro);
    else if (directive == "undef")
      macros.erase(macro);
    else
      m_branches.push_back(macros.contains(macro) == (directive == "ifdef"));
  }

  void branch(const std::string& directive)
  {
    if (m_branches.empty())
      return refuse("#" + directive + " without #ifdef");
    if (directive == "else")
      m_branches.back() = !m_branches.back();
    else
      m_branches.pop_back();
  }

  std::vector<Refusal>& m_refusals;
  std::vector<bool> m_branches;
  int m_line = 0;
};

/// Thrown inside a statement that cannot be read; the next one is tried.
struct BadStatement
{
};

class Parser
{
public:
  Parser(const Preprocessor& source, ClassBody& root, std::vector<Refusal>& refusals)
      : m_source(source), m_text(source.result), m_refusals(refusals)
  {
    m_scopes.push_back(&root);
    for (skip(); !atEnd(); skip())
    {
      if (peek() == '}')
      {
        refuse("} closes nothing");
        ++m_at;
        skip();
        if (!atEnd() && peek() == ';')
          ++m_at;
      }
      else
        statement();
    }
  }

private:
  bool atEnd() const { return m_at >= m_text.size(); }
  char peek() const { return atEnd() ? '\0' : m_text[m_at]; }

  int line() const
  {
    return 1 + static_cast<int>(std::count(m_text.begin(), m_text.begin() + static_cast<std::ptrdiff_t>(m_at), '\n'));
  }

  void refuse(const std::string& reason) { m_refusals.push_back({line(), reason}); }

  [[noreturn]] void giveUp(const std::string& reason)
  {
    refuse(reason);
    throw BadStatement();
  }

  void skip()
  {
    while (!atEnd() && (peek() == ' ' || peek() == '\t' || peek() == '\n'))
      ++m_at;
  }

  void skipBlanks()
  {
    while (!atEnd() && (peek() == ' ' || peek() == '\t'))
      ++m_at;
  }

  std::string name()
  {
    skip();
    const std::size_t start = m_at;
    while (!atEnd() && isNameCharacter(peek()))
      ++m_at;
    return std::string(m_text.substr(start, m_at - start));
  }

  std::string neededName(const std::string& what)
  {
    std::string found = name();
    if (found.empty())
      giveUp("no name of " + what);
    return found;
  }

  void statement()
  {
    try
    {
      const std::string word = neededName("a class or a member");
      const std::string upperWord = asciiUpper(word);
      if (upperWord == "CLASS")
        readClass();
      else if (upperWord == "ENUM")
        readEnum();
      else if (upperWord == "__EXEC" || m_source.macros.contains(word))
        readMacro(upperWord == "__EXEC");
      else
        readMember(word);
    }
    catch (const BadStatement&)
    {
      recover();
    }
  }

  // Goes on at the next line, never over a brace but those of a bad array; a block that the bad statement opens is read
  // as if it were a class.
  void recover()
  {
    for (; !atEnd() && peek() != '\n'; ++m_at)
    {
      if ((peek() == '{' || peek() == '}') && m_open == 0)
        break;
      m_open += peek() == '{' ? 1 : peek() == '}' ? -1 : 0;
    }
    m_open = 0;
    skip();
    if (peek() != '{')
      return;
    ++m_at;
    ClassBody lost;
    m_scopes.push_back(&lost);
    static_cast<void>(body("what begins here"));
    m_scopes.pop_back();
    skipBlanks();
    if (peek() == ';')
      ++m_at;
  }

  void readClass()
  {
    const std::string own = neededName("a class");
    const int begin = line();
    skip();
    if (peek() == ';')
    {
      ++m_at;
      declare(own);
      return;
    }
    std::string base;
    if (peek() == ':')
    {
      ++m_at;
      base = asciiUpper(neededName("a base class"));
      skip();
    }
    if (peek() != '{')
      giveUp("class " + own + " without {");
    ++m_at;
    ClassBody& read = enter(own, base, begin);
    m_scopes.push_back(&read);
    const bool ended = body("class " + own);
    m_scopes.pop_back();
    skipBlanks();
    if (peek() == ';')
      ++m_at;
    else if (ended)
      refuse("class " + own + " without ; behind its }");
  }

  /// A class named before it is told.
  void declare(const std::string& own)
  {
    auto& place = m_scopes.back()->classes[asciiUpper(own)];
    if (place)
      return;
    place = std::make_unique<ClassBody>();
    place->isForward = true;
  }

  ClassBody& enter(const std::string& own, const std::string& base, int begin)
  {
    ClassBody& scope = *m_scopes.back();
    const std::string key = asciiUpper(own);
    if (!base.empty() && !m_source.includes && !knowsBase(base))
      m_refusals.push_back({begin, "class " + own + " has an unknown base " + base});
    if (scope.members.contains(key) || (scope.classes.contains(key) && !scope.classes.at(key)->isForward))
    {
      m_refusals.push_back({begin, "class " + own + " stands twice"});
      m_spare.push_back(std::make_unique<ClassBody>());
      return *m_spare.back();
    }
    auto& place = scope.classes[key];
    place = std::make_unique<ClassBody>();
    place->base = base;
    return *place;
  }

  /// Looks for a class in the open ones from the inside out, and in what those inherit.
  const ClassBody* find(const std::string& wanted, std::size_t depth) const
  {
    for (std::size_t i = depth; i-- > 0;)
    {
      const ClassBody* scope = m_scopes[i];
      for (int generations = 0; scope != nullptr && generations < 64; ++generations)
      {
        const auto found = scope->classes.find(wanted);
        if (found != scope->classes.end())
          return found->second.get();
        scope = scope->base.empty() || i == 0 ? nullptr : find(scope->base, i);
      }
    }
    return nullptr;
  }

  bool knowsBase(const std::string& base) const { return find(base, m_scopes.size()) != nullptr; }

  /// Reads up to the closing brace. False when there is none.
  bool body(const std::string& whose)
  {
    const int begin = line();
    for (skip(); peek() != '}'; skip())
    {
      if (atEnd())
      {
        m_refusals.push_back({begin, whose + " has no }"});
        return false;
      }
      statement();
    }
    ++m_at;
    return true;
  }

  void readEnum()
  {
    skip();
    if (peek() != '{')
      giveUp("enum without {");
    const std::size_t end = m_text.find('}', m_at);
    if (end == std::string_view::npos)
      giveUp("enum has no }");
    m_at = end + 1;
    skipBlanks();
    if (peek() != ';')
      giveUp("enum without ; behind its }");
    ++m_at;
  }

  void readMacro(bool needsBrackets)
  {
    skipBlanks();
    if (peek() == '(')
    {
      int open = 0;
      do
      {
        open += peek() == '(' ? 1 : peek() == ')' ? -1 : 0;
        ++m_at;
      }
      while (open > 0 && !atEnd());
      if (open > 0)
        giveUp("( without )");
    }
    else if (needsBrackets)
      giveUp("__EXEC without (");
    skipBlanks();
    if (peek() == ';')
      ++m_at;
  }

  void readMember(const std::string& word)
  {
    std::string key = asciiUpper(word);
    skip();
    const bool isArray = peek() == '[';
    if (isArray)
    {
      ++m_at;
      skip();
      if (peek() != ']')
        giveUp(word + "[ without ]");
      ++m_at;
      key += "[]";
      skip();
    }
    if (peek() != '=')
      giveUp(word + " without =");
    ++m_at;
    const int begin = line();
    std::string value = isArray ? readArray(word) : readValue(word);
    ClassBody& scope = *m_scopes.back();
    if (scope.classes.contains(key) || !scope.members.emplace(key, std::move(value)).second)
      m_refusals.push_back({begin, word + " stands twice"});
  }

  /// A text in quotes, without them. It must end on its line.
  std::string readText()
  {
    std::string text;
    for (++m_at; !atEnd() && peek() != '\n'; ++m_at)
    {
      if (peek() != '"')
        text += peek();
      else if (m_at + 1 < m_text.size() && m_text[m_at + 1] == '"')
        text += m_text[m_at++];
      else
      {
        ++m_at;
        return text;
      }
    }
    giveUp("text without an end");
  }

  std::string readValue(const std::string& word)
  {
    skipBlanks();
    std::string value;
    if (peek() == '"')
    {
      value = readText();
      skipBlanks();
      if (peek() == ';')
        ++m_at;
      else if (!atEnd() && peek() != '\n')
        giveUp(word + " goes on behind its closing quote");
      return value;
    }
    const std::size_t end = std::min(m_text.find_first_of(";\n{}\"", m_at), m_text.size());
    value = trimmed(m_text.substr(m_at, end - m_at));
    m_at = end;
    if (peek() == '{')
    {
      ++m_at;
      ++m_open;
      giveUp(word + " takes an array but has no []");
    }
    if (peek() == '"')
      giveUp(word + " has a quote in its value");
    if (peek() == '}')
    {
      refuse(word + " without ; before }");
      return value;
    }
    // Nothing up to the line's end: the game would take what stands in the next line.
    if (value.empty() && peek() != ';')
      giveUp(word + " has no value");
    if (!atEnd())
      ++m_at;
    return value;
  }

  std::string readItems()
  {
    std::string items;
    const int begin = line();
    ++m_at;
    ++m_open;
    for (skip(); peek() != '}'; skip())
    {
      if (atEnd())
      {
        m_refusals.push_back({begin, "array has no }"});
        throw BadStatement();
      }
      items += (items.empty() ? "" : ",") + readItem();
      skip();
      if (peek() == ',' || peek() == ';')
        ++m_at;
      else if (!atEnd() && peek() != '}')
        giveUp("no , between items of an array");
    }
    ++m_at;
    --m_open;
    return items;
  }

  std::string readItem()
  {
    if (peek() == '{')
      return "{" + readItems() + "}";
    if (peek() == '"')
      return readText();
    const std::size_t end = std::min(m_text.find_first_of(",;\n{}\"=", m_at), m_text.size());
    const std::string_view item = trimmed(m_text.substr(m_at, end - m_at));
    m_at = end;
    if (item.empty() && (peek() == ',' || peek() == ';'))
      giveUp("empty item in an array");
    if (peek() == '=')
      m_open = 0; // its } was forgotten
    if (peek() == '=' || peek() == '"' || peek() == '{')
      giveUp(std::string("no ") + peek() + " may stand in an item of an array");
    return std::string(item);
  }

  std::string readArray(const std::string& word)
  {
    skip();
    if (peek() != '{')
      giveUp(word + "[] without {");
    std::string items = readItems();
    skipBlanks();
    if (peek() != ';')
      giveUp(word + "[] without ; behind its }");
    ++m_at;
    return items;
  }

  const Preprocessor& m_source;
  std::string_view m_text;
  std::size_t m_at = 0;
  int m_open = 0; ///< braces of arrays
  std::vector<ClassBody*> m_scopes;
  std::vector<std::unique_ptr<ClassBody>> m_spare;
  std::vector<Refusal>& m_refusals;
};

} // namespace

ClassFile::ClassFile(std::string_view text)
{
  const Preprocessor source(text, m_refusals);
  Parser(source, m_root, m_refusals);
  std::ranges::stable_sort(m_refusals, {}, &Refusal::line);
}

std::string told(const std::vector<Refusal>& refusals)
{
  std::string result;
  for (const Refusal& refusal : refusals)
    result += "line " + std::to_string(refusal.line) + ": " + refusal.reason + "\n";
  return result;
}

} // namespace tarvelin::test
