#include "mission/keyword_machine.h"

#include <algorithm>
#include <map>
#include <queue>
#include <string>

namespace tarvelin
{

namespace
{

constexpr std::uint8_t lineEndClass = 0;
constexpr std::uint8_t otherClass = 1; // in no keyword

constexpr char upperCase(char c)
{
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

/// A node of the tree of all keywords.
struct Node
{
  std::map<char, std::size_t> children;
  std::size_t fallback = 0; ///< node of the longest proper end of this one's text
  std::uint64_t found = 0;
};

std::vector<Node> keywordTree(std::span<const std::string_view> keywords)
{
  std::vector<Node> nodes(1);
  for (std::size_t bit = 0; bit < keywords.size(); ++bit)
  {
    std::size_t at = 0;
    for (const char c : keywords[bit])
    {
      const auto [child, isNew] = nodes[at].children.try_emplace(c, nodes.size());
      at = child->second;
      if (isNew)
        nodes.emplace_back();
    }
    nodes[at].found |= std::uint64_t{1} << bit;
  }
  return nodes;
}

std::size_t step(const std::vector<Node>& nodes, std::size_t from, char c)
{
  for (;; from = nodes[from].fallback)
  {
    const auto child = nodes[from].children.find(c);
    if (child != nodes[from].children.end())
      return child->second;
    if (from == 0)
      return 0;
  }
}

void setFallbacks(std::vector<Node>& nodes)
{
  std::queue<std::size_t> open;
  open.push(0);
  while (!open.empty())
  {
    const std::size_t at = open.front();
    open.pop();
    for (const auto& [c, child] : nodes[at].children)
    {
      nodes[child].fallback = at == 0 ? 0 : step(nodes, nodes[at].fallback, c);
      nodes[child].found |= nodes[nodes[child].fallback].found;
      open.push(child);
    }
  }
}

std::string lettersOf(std::span<const std::string_view> keywords)
{
  std::string letters;
  for (const std::string_view keyword : keywords)
    letters += keyword;
  std::ranges::sort(letters);
  letters.erase(std::ranges::unique(letters).begin(), letters.end());
  return letters;
}

} // namespace

KeywordMachine::KeywordMachine(std::span<const std::string_view> keywords, LineEnds lineEnds)
{
  std::vector<Node> nodes = keywordTree(keywords);
  setFallbacks(nodes);
  for (const std::string_view keyword : keywords)
    m_longest = std::max(m_longest, keyword.size());

  const std::string letters = lettersOf(keywords);
  m_classes = letters.size() + otherClass + 1;
  for (std::size_t byte = 0; byte < m_class.size(); ++byte)
  {
    const std::size_t letter = letters.find(upperCase(static_cast<char>(byte)));
    m_class[byte] = static_cast<std::uint8_t>(letter == std::string::npos ? otherClass : otherClass + 1 + letter);
  }
  if (lineEnds == LineEnds::stop)
    m_class['\r'] = m_class['\n'] = lineEndClass;

  // The plain states come first, so that one comparison tells the others; the end of a line is the last.
  std::vector<std::size_t> order(nodes.size());
  for (std::size_t i = 0; i < order.size(); ++i)
    order[i] = i;
  const auto specials = std::ranges::stable_partition(order, [&](std::size_t node) { return nodes[node].found == 0; });
  std::vector<std::size_t> place(nodes.size());
  for (std::size_t i = 0; i < order.size(); ++i)
    place[order[i]] = i;

  const auto row = [this](std::size_t state) { return static_cast<State>(state * m_classes); };
  m_firstSpecial = row(static_cast<std::size_t>(specials.begin() - order.begin()));
  m_lineEnd = row(nodes.size());
  m_next.assign((nodes.size() + 1) * m_classes, start);
  m_found.assign(nodes.size() + 1, 0);
  for (std::size_t i = 0; i < order.size(); ++i)
  {
    m_found[i] = nodes[order[i]].found;
    m_next[i * m_classes + lineEndClass] = m_lineEnd;
    for (std::size_t letter = 0; letter < letters.size(); ++letter)
      m_next[i * m_classes + otherClass + 1 + letter] = row(place[step(nodes, order[i], letters[letter])]);
  }
}

} // namespace tarvelin
