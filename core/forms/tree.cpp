#include "core/forms/tree.h"

#include "platform/failure.h"

#include <algorithm>

namespace tarvelin
{

Tree::Tree(Form* form, std::string_view name) : Field(form, name) {}

Tree::Node& Tree::nodeAt(std::string_view key)
{
  const auto found = m_byKey.find(std::string(key));
  if (found == m_byKey.end())
    throw Failure(Fault::elementNotFound);
  return found->second;
}

void Tree::add(std::string_view parent, std::string_view key, std::string_view text, int icon)
{
  Node* const above = parent.empty() ? nullptr : &nodeAt(parent);
  const auto [place, isNew] = m_byKey.try_emplace(std::string(key));
  if (!isNew)
    throw Failure(Fault::keyNotUnique);
  Node& node = place->second;
  node = {std::string(key), std::string(text), icon, false, above, {}};
  (above ? above->children : m_roots).push_back(&node);
  notify({Change::rows});
}

void Tree::forget(Node* node)
{
  if (m_selected == node)
    m_selected = nullptr;
  for (Node* const child : node->children)
    forget(child);
  m_byKey.erase(node->key);
}

void Tree::remove(std::string_view key)
{
  Node& node = nodeAt(key);
  std::erase(node.parent ? node.parent->children : m_roots, &node);
  forget(&node);
  notify({Change::rows});
}

void Tree::clear()
{
  m_roots.clear();
  m_byKey.clear();
  m_selected = nullptr;
  notify({Change::rows});
}

const Tree::Node* Tree::find(std::string_view key) const
{
  const auto found = m_byKey.find(std::string(key));
  return found == m_byKey.end() ? nullptr : &found->second;
}

void Tree::setText(std::string_view key, std::string_view text)
{
  nodeAt(key).text = text;
  notify({Change::rows});
}

void Tree::setKey(std::string_view key, std::string_view newKey)
{
  nodeAt(key);
  if (key == newKey)
    return;
  if (find(newKey))
    throw Failure(Fault::keyNotUnique);
  auto node = m_byKey.extract(std::string(key));
  node.key() = newKey;
  node.mapped().key = newKey;
  m_byKey.insert(std::move(node));
  notify({Change::rows});
}

void Tree::setExpanded(std::string_view key, bool on)
{
  nodeAt(key).expanded = on;
  notify({Change::rows});
}

std::vector<const Tree::Node*> Tree::nodes() const
{
  std::vector<const Node*> all;
  all.reserve(m_byKey.size());
  std::vector<const Node*> open(m_roots.rbegin(), m_roots.rend());
  while (!open.empty())
  {
    const Node* const node = open.back();
    open.pop_back();
    all.push_back(node);
    open.insert(open.end(), node->children.rbegin(), node->children.rend());
  }
  return all;
}

void Tree::select(std::string_view key)
{
  m_selected = &nodeAt(key);
  notify({Change::selection});
}

void Tree::userClick(std::string_view key)
{
  select(key);
  if (onClick)
    onClick();
}

} // namespace tarvelin
