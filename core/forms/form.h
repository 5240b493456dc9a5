#pragma once

#include "core/forms/field.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarvelin
{

/// A view of a form: told of its showing, hiding, painting and caption.
class FormObserver
{
public:
  virtual ~FormObserver() = default;
  virtual void formChanged(Form& form) = 0;
  virtual void formRefreshed(Form& form) = 0;
};

/// A value that a form holds beside its fields, by name.
struct FormValueEntry
{
  std::string_view name;
  std::variant<std::string*, std::int16_t*, std::int32_t*, bool*> value;
};

/// A record of named fields with handlers. One instance of each lives from start to end, shown or not.
struct Form
{
  Form(std::string_view name, std::string_view caption);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return m_name; }

  const std::string& caption() const { return m_caption; }
  void setCaption(std::string_view caption);

  bool visible() const { return m_visible; }
  bool modal() const { return m_modal; }
  bool loaded() const { return m_loaded; }

  /// Runs the load handler when the form is not loaded yet.
  void load();

  /// Loads when needed, shows without waiting, runs the activate handler.
  void show();

  /// As show(), and waits until the form is hidden or closed.
  void showModal();

  void hide();

  /// Hides; the next showing loads anew. The fields keep their values.
  void unload();

  /// What the window's own close button does: the close handler, without one the form hides.
  void closeByUser();

  /// Paints the form at once.
  void refresh();

  /// All fields in the order of their declaration, elements of arrays one by one.
  const std::vector<Field*>& fields() const { return m_fields; }

  /// The field of that name ignoring case, an element of an array by its index; null when there is none.
  Field* find(std::string_view name, int index = Field::noIndex) const;

  /// True when the form has a field array of that name, ignoring case.
  bool hasArray(std::string_view name) const;

  /// The value beside the fields of that name, ignoring case; null when there is none.
  const FormValueEntry* findValue(std::string_view name) const;

  void observe(FormObserver* observer) { m_observer = observer; }

  Handler onLoad;
  Handler onActivate;
  Handler onClose; ///< the user closes the window

  // Used by the fields and values of the form.
  void addField(Field* field) { m_fields.push_back(field); }
  void removeField(const Field* field);
  void fieldsChanged() { tellView(); } ///< a field array got another element or lost one
  void addArray(std::string_view name) { m_arrays.emplace_back(name); }
  void addValue(const FormValueEntry& value) { m_values.push_back(value); }

private:
  void tellView();

  std::string m_name;
  std::string m_caption;
  bool m_visible = false;
  bool m_modal = false;
  bool m_loaded = false;
  std::vector<Field*> m_fields;
  std::vector<std::string> m_arrays;
  std::vector<FormValueEntry> m_values;
  FormObserver* m_observer = nullptr;
};

/// A value that a form holds beside its fields.
template <class T> struct FormValue
{
  FormValue(Form* form, std::string_view name, T initial = T{}) : value(initial) { form->addValue({name, &value}); }
  FormValue(const FormValue&) = delete;

  FormValue& operator=(const T& other)
  {
    value = other;
    return *this;
  }
  operator const T&() const { return value; }

  T value;
};

} // namespace tarvelin
