#pragma once

#include "core/forms/field.h"
#include "core/forms/form.h"
#include "platform/failure.h"

#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace tarvelin
{

/// One name, many fields. Handlers put on all elements receive the index.
template <class T> class FieldArray
{
public:
  using Entry = std::pair<int, std::string_view>; ///< index and caption or text

  /// Elements with a caption (a text, where T is a text) each.
  FieldArray(Form* form, std::string_view name, std::initializer_list<Entry> entries) : m_form(form), m_name(name)
  {
    form->addArray(name);
    for (const auto& [index, text] : entries)
      m_elements.emplace(index, std::make_unique<T>(form, name, text, index));
  }

  /// Elements of a kind without a caption.
  FieldArray(Form* form, std::string_view name, std::initializer_list<int> indexes) : m_form(form), m_name(name)
  {
    form->addArray(name);
    for (const int index : indexes)
      load(index);
  }

  FieldArray(const FieldArray&) = delete;
  FieldArray& operator=(const FieldArray&) = delete;

  bool has(int index) const { return m_elements.contains(index); }

  /// The element at `index`. Throws 9 when there is none.
  T& operator()(int index) const
  {
    const auto found = m_elements.find(index);
    if (found == m_elements.end())
      throw Failure(Fault::subscript);
    return *found->second;
  }

  /// Adds an element; one that exists stays.
  T& load(int index)
  {
    auto& element = m_elements[index];
    if (!element)
    {
      if constexpr (std::is_constructible_v<T, Form*, std::string_view, int>)
        element = std::make_unique<T>(m_form, m_name, index);
      else
        element = std::make_unique<T>(m_form, m_name, std::string_view{}, index);
      m_form->fieldsChanged();
    }
    return *element;
  }

  /// Takes an element away.
  void unload(int index)
  {
    const auto found = m_elements.find(index);
    if (found == m_elements.end())
      return;
    found->second->tellGone();
    m_form->removeField(found->second.get());
    m_elements.erase(found);
    m_form->fieldsChanged();
  }

  /// Calls `action(field, index)` for each element, by rising index.
  template <class Action> void each(Action&& action) const
  {
    for (const auto& [index, element] : m_elements)
      action(*element, index);
  }

private:
  Form* m_form;
  std::string m_name;
  std::map<int, std::unique_ptr<T>> m_elements;
};

} // namespace tarvelin
