#pragma once

#include "core/forms/field.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace tarvelin
{

/// A tree of nodes, each reached by its key.
class Tree : public Field
{
public:
  struct Node
  {
    std::string key;
    std::string text;
    int icon = 0; ///< 0 for none
    bool expanded = false;
    Node* parent = nullptr;
    std::vector<Node*> children;
  };

  Tree(Form* form, std::string_view name);
  Kind kind() const override { return Kind::tree; }

  Handler onClick; ///< a node was clicked; it is selected()

  int count() const { return static_cast<int>(m_byKey.size()); }

  /// Adds a node below `parent` ("" for a root), behind its brothers. Throws 35601 when there is no such parent, 35602
  /// when the key is taken.
  void add(std::string_view parent, std::string_view key, std::string_view text, int icon = 0);

  /// Takes a node out with all below it. Throws 35601.
  void remove(std::string_view key);

  void clear();

  /// The node of a key; null when there is none.
  const Node* find(std::string_view key) const;

  void setText(std::string_view key, std::string_view text);

  /// Gives a node another key. Throws 35601, 35602.
  void setKey(std::string_view key, std::string_view newKey);
  void setExpanded(std::string_view key, bool on);

  /// Nodes in the order in which they are displayed.
  std::vector<const Node*> nodes() const;
  const std::vector<Node*>& roots() const { return m_roots; }

  /// The selected node; null for none.
  const Node* selected() const { return m_selected; }

  /// Selects without running the handler. Throws 35601.
  void select(std::string_view key);

  /// The user clicks a node. Throws 35601.
  void userClick(std::string_view key);

private:
  Node& nodeAt(std::string_view key);
  void forget(Node* node);

  std::unordered_map<std::string, Node> m_byKey;
  std::vector<Node*> m_roots;
  Node* m_selected = nullptr;
};

} // namespace tarvelin
