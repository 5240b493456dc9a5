#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelin
{

struct Form;
class Field;

/// What a field can be.
enum class Kind
{
  text,
  richtext,
  label,
  command,
  check,
  option,
  list,
  combo,
  tree,
  picture,
  slider,
  filelist,
  folderlist,
  drivelist,
  tabstrip,
  progress,
  browser,
  dialog,
  menu,
  group,
};

/// The word for a kind: "text", "richtext" and so on.
const char* kindName(Kind kind);

/// What a view is told about a change of a field.
enum class Change
{
  caption,
  enabled,
  visible,
  text,      ///< FieldChange::first, removed, added: a splice in characters
  selection, ///< caret and selected length of a text; highlighted row of a list, combo, tree, file list
  style,     ///< colours and faces of a rich text; first, added: the range
  font,
  rows,     ///< the rows as a whole (list, combo, tree, file and folder lists)
  row,      ///< text, tag or mark of row `first`
  rowAdded, ///< a row came in at `first`
  rowRemoved,
  value, ///< check, option, slider, progress, tab strip, drive
  range, ///< limits of a slider or a progress; place of a picture
  path,  ///< folder, pattern, picture or address
  colour,
  everything, ///< a bulk change: read the field anew
};

struct FieldChange
{
  Change what;
  std::size_t first = 0;
  std::size_t removed = 0;
  std::size_t added = 0;
  std::string_view gone = {}; ///< of a splice: what was removed; only while it is told
};

/// A view of a field: told of each change after it happened.
class FieldObserver
{
public:
  virtual ~FieldObserver() = default;
  virtual void fieldChanged(Field& field, const FieldChange& change) = 0;

  /// The field is being taken away, as an element of a field array may be: it must not be touched any more.
  virtual void fieldGone(const Field& /*field*/) {}
};

using Handler = std::function<void()>;

enum class MouseButton
{
  left,
  right,
  middle,
};

using PressHandler = std::function<void(MouseButton)>;

/// A key that was let go. `key` is the upper-case letter or digit; the shift state has bit 1 Shift, 2 Ctrl, 4 Alt.
struct KeyEvent
{
  char key = 0;
  int shift = 0;
};

using KeyHandler = std::function<void(const KeyEvent&)>;

/// A named field of a form. It keeps its state whether or not a window shows it; views attach as observers.
class Field
{
public:
  Field(Form* form, std::string_view name, int index = noIndex);
  virtual ~Field() = default;
  Field(const Field&) = delete;
  Field& operator=(const Field&) = delete;

  static constexpr int noIndex = -1;

  virtual Kind kind() const = 0;

  Form& form() const { return *m_form; }

  /// The field's own name; of an element of a field array the array's.
  const std::string& name() const { return m_name; }

  /// Index in its field array, `noIndex` for a single field.
  int index() const { return m_index; }

  /// The name with the index: "Label1(25)".
  std::string fullName() const;

  bool enabled() const { return m_enabled; }
  void enable(bool on);

  bool visible() const { return m_visible; }
  void show(bool on);

  /// The caption of a kind that has one; of a text field a caption is its text. Others have none and ignore it.
  virtual std::string caption() const { return {}; }
  virtual bool hasCaption() const { return false; }
  virtual void setCaption(std::string_view) {}

  void observe(FieldObserver& observer);
  void stopObserving(FieldObserver& observer);

  /// Tells the views that the field is about to be taken away.
  void tellGone();

protected:
  void notify(const FieldChange& change);

private:
  friend class BulkChange;

  Form* m_form;
  std::string m_name;
  int m_index;
  bool m_enabled = true;
  bool m_visible = true;
  int m_bulk = 0;
  bool m_bulkChanged = false;
  std::vector<FieldObserver*> m_observers;
};

/// While it lives, the changes of a field reach its views as one, at the end.
class BulkChange
{
public:
  explicit BulkChange(Field& field);
  ~BulkChange();
  BulkChange(const BulkChange&) = delete;
  BulkChange& operator=(const BulkChange&) = delete;

private:
  Field& m_field;
};

} // namespace tarvelin
