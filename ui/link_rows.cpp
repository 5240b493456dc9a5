// Lists and combos.
#include "ui/item_mouse.h"
#include "ui/links.h"

#include <QComboBox>
#include <QEvent>
#include <QListWidget>

namespace tarvelin::ui
{
namespace
{

QString textOf(const Rows& rows, int row)
{
  return QString::fromStdString(rows.text(row));
}

class ListLink : public Link
{
public:
  ListLink(List& field, QListWidget* list) : Link(field, list), m_rows(field), m_list(list), m_mouse(*list)
  {
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setUniformItemSizes(true);
    m_mouse.onRight = [this] { user([this] { m_rows.userPress(MouseButton::right); }); };
    m_mouse.onReleased = [this] { follow(); };
    connect(list, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { clicked(m_list->row(item)); });
    connect(list, &QListWidget::itemSelectionChanged, this, [this] { chosenByKey(); });
    connect(list, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) { marked(*item); });
    begin();
  }

private:
  void clicked(int row)
  {
    if (!m_mouse.takeClick() || row >= m_rows.count())
      return;
    user([this, row] { m_rows.userSelect(row); });
  }

  void chosenByKey()
  {
    const int row = m_list->selectedItems().isEmpty() ? -1 : m_list->currentRow();
    if (!m_mouse.down() && row >= 0 && row != m_rows.index())
      user([this, row] { m_rows.userSelect(row); });
  }

  void marked(const QListWidgetItem& item)
  {
    const int row = m_list->row(&item);
    const bool on = item.checkState() == Qt::Checked;
    if (updating() || !m_rows.checkMarks() || row >= m_rows.count() || m_rows.marked(row) == on)
      return;
    m_mouse.spendClick(); // the click on a mark is told with the mark
    user(
        [this, row, on]
        {
          m_rows.userMark(row, on);
          m_rows.userPress(MouseButton::left); // it was pressed on the row that is highlighted now
        });
  }

  void update(const FieldChange& change) override
  {
    const int row = static_cast<int>(change.first);
    switch (change.what)
    {
    case Change::selection: break;
    case Change::row: showRow(*m_list->item(row), row); return;
    case Change::rowAdded: insert(row); break;
    case Change::rowRemoved: delete m_list->takeItem(row); break;
    default: fill();
    }
    showIndex();
  }

  void fill()
  {
    m_list->setUpdatesEnabled(false);
    m_list->clear();
    for (int row = 0; row < m_rows.count(); ++row)
      insert(row);
    m_list->setUpdatesEnabled(true);
  }

  void insert(int row)
  {
    auto item = std::make_unique<QListWidgetItem>();
    showRow(*item, row);
    m_list->insertItem(row, item.release()); // the list owns it
  }

  void showRow(QListWidgetItem& item, int row) const
  {
    item.setText(textOf(m_rows, row));
    if (m_rows.checkMarks())
      item.setCheckState(m_rows.marked(row) ? Qt::Checked : Qt::Unchecked);
  }

  void showIndex()
  {
    if (m_list->count() == m_rows.count() && m_list->currentRow() != m_rows.index())
      m_list->setCurrentRow(m_rows.index());
    if (m_rows.index() >= 0 && m_list->selectedItems().isEmpty())
      m_list->setCurrentRow(m_rows.index(), QItemSelectionModel::ClearAndSelect);
  }

  /// A press that was taken back leaves the highlight where the field has it.
  void follow() { fieldChanged(m_rows, {Change::selection}); }

  List& m_rows;
  QListWidget* m_list;
  ItemMouse m_mouse;
};

class ComboLink : public Link
{
public:
  ComboLink(Combo& field, QComboBox* box) : Link(field, box), m_rows(field), m_box(box)
  {
    box->setEditable(field.editable());
    box->setInsertPolicy(QComboBox::NoInsert);
    box->installEventFilter(this);
    connect(box, &QComboBox::activated, this, [this](int row) { chosen(row); });
    connect(box, &QComboBox::editTextChanged, this, [this](const QString& text) { typed(text); });
    begin();
  }

private:
  void chosen(int row)
  {
    if (row >= 0 && row < m_rows.count())
      user([this, row] { m_rows.userSelect(row); });
  }

  void typed(const QString& text)
  {
    if (m_rows.editable())
      user([this, text] { m_rows.setText(text.toStdString()); });
  }

  void update(const FieldChange& change) override
  {
    const int row = static_cast<int>(change.first);
    switch (change.what)
    {
    case Change::selection:
    case Change::text: break;
    case Change::row: m_box->setItemText(row, textOf(m_rows, row)); break;
    case Change::rowAdded: m_box->insertItem(row, textOf(m_rows, row)); break;
    case Change::rowRemoved: m_box->removeItem(row); break;
    default: fill();
    }
    if (m_box->count() == m_rows.count())
      m_box->setCurrentIndex(m_rows.index());
    if (m_rows.editable() && m_box->currentText().toStdString() != m_rows.text())
      m_box->setEditText(QString::fromStdString(m_rows.text()));
  }

  void fill()
  {
    QStringList texts;
    for (int row = 0; row < m_rows.count(); ++row)
      texts += textOf(m_rows, row);
    m_box->clear();
    m_box->addItems(texts);
  }

  /// A wheel that only passes by must not choose.
  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (event->type() == QEvent::Wheel && !m_box->hasFocus())
    {
      event->ignore();
      return true;
    }
    return Link::eventFilter(watched, event);
  }

  Combo& m_rows;
  QComboBox* m_box;
};

} // namespace

std::unique_ptr<Link> linkList(List& field, QWidget* widget)
{
  if (auto* const list = qobject_cast<QListWidget*>(widget))
    return std::make_unique<ListLink>(field, list);
  return {};
}

std::unique_ptr<Link> linkCombo(Combo& field, QWidget* widget)
{
  if (auto* const box = qobject_cast<QComboBox*>(widget))
    return std::make_unique<ComboLink>(field, box);
  return {};
}

} // namespace tarvelin::ui
