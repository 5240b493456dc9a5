// Every form and field against a table that was typed by hand: a renamed, lost or misspelt field shows here first,
// because language packs, scripts and the window reach the fields by name.

#include "core/forms/all_forms.h"
#include "core/forms/kinds.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvelin
{

namespace
{

/// One line of field_table.tsv.
struct TableRow
{
  std::string form;
  std::string field;
  std::string kind;
  std::string fallback; ///< the default as it is typed in the table
  std::vector<std::string> states;

  bool isCaption() const { return field == "-caption-"; }
  bool hasDefault() const { return fallback != "-"; }
  bool is(std::string_view state) const { return std::find(states.begin(), states.end(), state) != states.end(); }
  std::string where() const { return form + "." + field; }

  /// The default with its line ends.
  std::string expected() const
  {
    if (fallback == "empty")
      return {};
    std::string text;
    for (std::size_t i = 0; i < fallback.size(); ++i)
    {
      const std::string_view pair = std::string_view(fallback).substr(i, 2);
      const bool lineEnd = pair == "\\r" || pair == "\\n";
      text += pair == "\\r" ? '\r' : pair == "\\n" ? '\n' : fallback[i];
      i += lineEnd ? 1 : 0;
    }
    return text;
  }
};

/// A field that the table leaves out.
struct ExtraField
{
  std::string_view form;
  std::string_view field;
  std::string_view reason;
};

constexpr std::string_view copiedCaption = "takes its caption from a label of the sound panel";
constexpr std::string_view ownText = "says what the field or the form is for, and no pack has a line for it";

constexpr std::array<ExtraField, 17> extraFields{{
    {"frmcamp5", "Label1(0)", copiedCaption},
    {"frmcamp5", "Label1(4)", copiedCaption},
    {"frmcamp5", "Label1(41)", copiedCaption},
    {"frmcamp5", "Label1(42)", copiedCaption},
    {"frmcamp5", "Label1(51)", copiedCaption},
    {"frmcamp5", "Label1(54)", copiedCaption},
    {"frmdalsinast", "Label1", copiedCaption},
    {"frmdalsinast", "Label2", copiedCaption},
    {"frmdalsinast", "Label3", copiedCaption},
    {"frmdalsinast", "Label16", copiedCaption},
    {"frmdalsinast", "Label17", copiedCaption},
    {"frmdalsinast", "Label18", copiedCaption},
    {"frmdalsinast", "Label21", copiedCaption},
    {"frmdalsinast", "Label22", copiedCaption},
    {"frmdalsinast", "Label23", copiedCaption},
    {"frmdalsinast", "lblzvukroz", ownText},
    {"frmnactizvuky", "Label1", ownText},
}};

std::vector<std::string> cut(const std::string& text, char separator)
{
  std::vector<std::string> parts(1);
  for (const char c : text)
  {
    if (c == separator)
      parts.emplace_back();
    else
      parts.back() += c;
  }
  return parts;
}

std::vector<TableRow> readTable()
{
  std::ifstream file(std::string(TARVELIN_TESTS) + "/core/forms/field_table.tsv", std::ios::binary);
  std::vector<TableRow> rows;
  std::string line;
  std::getline(file, line); // the headings
  while (std::getline(file, line))
  {
    const std::vector<std::string> columns = cut(line, '\t');
    EXPECT_EQ(columns.size(), 5u) << line;
    if (columns.size() == 5)
      rows.push_back({columns[0], columns[1], columns[2], columns[3], cut(columns[4], ',')});
  }
  return rows;
}

/// The form of exactly that name; null when there is none.
Form* formNamed(const std::string& name)
{
  const std::vector<Form*>& forms = allForms();
  const auto found = std::find_if(forms.begin(), forms.end(), [&](const Form* form) { return form->name() == name; });
  return found == forms.end() ? nullptr : *found;
}

/// The field of exactly that name; null when there is none.
Field* fieldNamed(const TableRow& row)
{
  const Form* form = formNamed(row.form);
  if (form == nullptr)
    return nullptr;
  const std::vector<Field*>& fields = form->fields();
  const auto found =
      std::find_if(fields.begin(), fields.end(), [&](const Field* field) { return field->fullName() == row.field; });
  return found == fields.end() ? nullptr : *found;
}

std::string tabCaptions(const TabStrip& strip)
{
  std::string captions;
  for (int tab = 0; tab < strip.count(); ++tab)
    captions += (tab == 0 ? "" : "|") + strip.tabCaption(tab);
  return captions;
}

/// What the table's default column says of a field, read from the field.
std::string defaultOf(const Field& field)
{
  if (const auto* captioned = dynamic_cast<const Captioned*>(&field))
    return captioned->caption();
  if (const auto* text = dynamic_cast<const Text*>(&field))
    return text->text();
  if (const auto* files = dynamic_cast<const FileList*>(&field))
    return files->pattern();
  if (const auto* strip = dynamic_cast<const TabStrip*>(&field))
    return tabCaptions(*strip);
  if (const auto* slider = dynamic_cast<const Slider*>(&field))
    return std::to_string(slider->minimum()) + ".." + std::to_string(slider->maximum());
  return "a field of the kind " + std::string(kindName(field.kind())) + " has no default";
}

class FieldTable : public testing::Test
{
protected:
  void SetUp() override
  {
    renewForms();
    m_rows = readTable();
    ASSERT_GT(m_rows.size(), 700u);
  }

  /// Calls `action(row, field)` for each field of the table that exists.
  template <class Action> void eachField(Action&& action) const
  {
    std::size_t met = 0;
    for (const TableRow& row : m_rows)
    {
      if (const Field* field = row.isCaption() ? nullptr : fieldNamed(row))
      {
        action(row, *field);
        ++met;
      }
    }
    EXPECT_GT(met, 600u);
  }

  std::vector<TableRow> m_rows;
};

} // namespace

TEST_F(FieldTable, NamesEachFieldOnce)
{
  std::set<std::string> names;
  for (const TableRow& row : m_rows)
    EXPECT_TRUE(names.insert(row.where()).second) << row.where();
}

TEST_F(FieldTable, FormsExistWithTheirCaptions)
{
  for (const TableRow& row : m_rows)
  {
    if (!row.isCaption())
      continue;
    const Form* form = formNamed(row.form);
    ASSERT_NE(form, nullptr) << row.form;
    EXPECT_EQ(form->caption(), row.expected()) << row.form;
    EXPECT_EQ(findForm(row.form), form) << row.form;
  }
}

TEST_F(FieldTable, NoOtherFormExists)
{
  for (const Form* form : allForms())
  {
    const auto known = [&](const TableRow& row) { return row.isCaption() && row.form == form->name(); };
    EXPECT_TRUE(std::any_of(m_rows.begin(), m_rows.end(), known)) << form->name();
  }
}

TEST_F(FieldTable, FieldsExistInTheirSpellingAndKind)
{
  for (const TableRow& row : m_rows)
  {
    if (row.isCaption())
      continue;
    const Field* field = fieldNamed(row);
    EXPECT_NE(field, nullptr) << row.where();
    if (field != nullptr)
    {
      EXPECT_EQ(kindName(field->kind()), row.kind) << row.where();
    }
  }
}

TEST_F(FieldTable, FieldsStandAtTheirDefaults)
{
  eachField(
      [](const TableRow& row, const Field& field)
      {
        if (row.hasDefault())
        {
          EXPECT_EQ(defaultOf(field), row.expected()) << row.where();
        }
      });
}

TEST_F(FieldTable, FieldsAreEnabledAndVisibleAsTheTableSays)
{
  eachField(
      [](const TableRow& row, const Field& field)
      {
        EXPECT_EQ(field.enabled(), !row.is("disabled")) << row.where();
        EXPECT_EQ(field.visible(), !row.is("hidden")) << row.where();
      });
}

TEST_F(FieldTable, ChecksStandAsTheTableSays)
{
  eachField(
      [](const TableRow& row, const Field& field)
      {
        if (!row.is("checked") && !row.is("unchecked"))
          return;
        const auto* check = dynamic_cast<const Check*>(&field);
        ASSERT_NE(check, nullptr) << row.where();
        EXPECT_EQ(check->checked(), row.is("checked")) << row.where();
      });
}

TEST_F(FieldTable, ListsAreEmptyAndOfTheirStyle)
{
  eachField(
      [](const TableRow& row, const Field& field)
      {
        const auto* rows = dynamic_cast<const Rows*>(&field);
        if (rows == nullptr)
          return;
        EXPECT_EQ(rows->count(), 0) << row.where();
        EXPECT_EQ(rows->index(), -1) << row.where();
        EXPECT_EQ(rows->sorted(), row.is("sorted")) << row.where();
        if (const auto* list = dynamic_cast<const List*>(rows))
        {
          EXPECT_EQ(list->checkMarks(), row.is("marks")) << row.where();
        }
      });
}

TEST_F(FieldTable, SeparatorsAreDashes)
{
  eachField(
      [](const TableRow& row, const Field& field)
      {
        if (field.kind() == Kind::menu)
        {
          EXPECT_EQ(field.caption() == "-", row.is("separator")) << row.where();
        }
      });
}

TEST_F(FieldTable, NoOtherFieldExists)
{
  std::set<std::string> known;
  for (const TableRow& row : m_rows)
    known.insert(row.where());
  for (const ExtraField& extra : extraFields)
    EXPECT_TRUE(known.insert(std::string(extra.form) + "." + std::string(extra.field)).second) << extra.field;

  for (const Form* form : allForms())
  {
    for (const Field* field : form->fields())
      EXPECT_TRUE(known.contains(form->name() + "." + field->fullName())) << form->name() << "." << field->fullName();
  }
}

TEST_F(FieldTable, ExtraFieldsAreLabelsThatExist)
{
  for (const ExtraField& extra : extraFields)
  {
    const TableRow row{std::string(extra.form), std::string(extra.field), "label", "-", {}};
    const Field* field = fieldNamed(row);
    ASSERT_NE(field, nullptr) << row.where() << " " << extra.reason;
    EXPECT_EQ(field->kind(), Kind::label) << row.where() << " " << extra.reason;
  }
}

TEST_F(FieldTable, RenewingPutsChangedFieldsBack)
{
  const std::vector<std::pair<std::string, std::string>> texts{{"frmmain", "avgScore"}, {"frmcamp1", "txtzivoty"}};
  for (const auto& [form, name] : texts)
  {
    const TableRow row{form, name, "text", "-", {}};
    auto* text = dynamic_cast<Text*>(fieldNamed(row));
    ASSERT_NE(text, nullptr) << row.where();
    const std::string before = text->text();
    text->set(before + "7");
    text->enable(false);
    renewForms();
    text = dynamic_cast<Text*>(fieldNamed(row));
    ASSERT_NE(text, nullptr) << row.where();
    EXPECT_EQ(text->text(), before) << row.where();
    EXPECT_TRUE(text->enabled()) << row.where();
  }
}

} // namespace tarvelin
