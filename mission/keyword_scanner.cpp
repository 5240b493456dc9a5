#include "mission/keyword_scanner.h"

#include <algorithm>
#include <map>
#include <queue>
#include <string>

namespace tarvelin
{

namespace
{

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
      const auto child = nodes[at].children.find(c);
      if (child != nodes[at].children.end())
        at = child->second;
      else
      {
        nodes[at].children.emplace(c, nodes.size());
        at = nodes.size();
        nodes.emplace_back();
      }
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

} // namespace

KeywordScanner::KeywordScanner(std::span<const std::string_view> keywords)
{
  std::vector<Node> nodes = keywordTree(keywords);
  setFallbacks(nodes);

  // Class 0 ends a line, class 1 is in no keyword.
  std::string letters;
  for (const std::string_view keyword : keywords)
    letters += keyword;
  std::ranges::sort(letters);
  letters.erase(std::ranges::unique(letters).begin(), letters.end());
  m_classes = letters.size() + 2;
  for (std::size_t byte = 0; byte < m_class.size(); ++byte)
  {
    const auto c = static_cast<char>(byte);
    const std::size_t letter = letters.find(upperCase(c));
    if (c == '\r' || c == '\n')
      m_class[byte] = 0;
    else
      m_class[byte] = static_cast<std::uint8_t>(letter == std::string::npos ? 1 : letter + 2);
  }

  // The plain states come first, so that one comparison tells the others.
  std::vector<std::size_t> order(nodes.size());
  for (std::size_t i = 0; i < order.size(); ++i)
    order[i] = i;
  std::ranges::stable_partition(order, [&](std::size_t node) { return nodes[node].found == 0; });
  std::vector<std::size_t> place(nodes.size());
  for (std::size_t i = 0; i < order.size(); ++i)
    place[order[i]] = i;

  const auto row = [this](std::size_t state) { return static_cast<State>(state * m_classes); };
  const std::size_t lineEnd = nodes.size();
  m_next.assign((lineEnd + 1) * m_classes, 0);
  m_found.assign(lineEnd + 1, 0);
  const auto plain = static_cast<std::size_t>(
      std::ranges::count_if(nodes, [](const Node& node) { return node.found == 0; }));
  m_firstSpecial = row(plain);
  for (std::size_t i = 0; i < order.size(); ++i)
  {
    m_found[i] = nodes[order[i]].found;
    m_next[i * m_classes] = row(lineEnd);
    for (std::size_t letter = 0; letter < letters.size(); ++letter)
      m_next[i * m_classes + letter + 2] = row(place[step(nodes, order[i], letters[letter])]);
  }
}

KeywordScanner::Line KeywordScanner::scan(std::string_view text) const
{
  const State* const next = m_next.data();
  const auto lineEnd = static_cast<State>(m_next.size() - m_classes);
  State state = 0;
  std::uint64_t found = 0;
  std::size_t at = 0;
  for (; at < text.size(); ++at)
  {
    state = next[std::size_t{state} + m_class[static_cast<unsigned char>(text[at])]];
    if (state < m_firstSpecial)
      continue;
    if (state == lineEnd)
      break;
    found |= m_found[static_cast<std::size_t>(state) / m_classes];
  }
  const std::string_view line = text.substr(0, at);
  if (at < text.size())
    at += text.substr(at).starts_with("\r\n") ? std::size_t{2} : std::size_t{1};
  return {line, found, text.substr(at)};
}

} // namespace tarvelin
