#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "support/whole_system.h"

namespace zerimo {
namespace {

using Cells = std::vector<std::string>;

Cells CellsOf(const std::string& row) {
  Cells cells;
  std::istringstream stream(row.substr(1));
  for (std::string cell; std::getline(stream, cell, '|');) {
    const std::size_t first = cell.find_first_not_of(' ');
    cells.push_back(first == std::string::npos ? "" : cell.substr(first, cell.find_last_not_of(' ') - first + 1));
  }
  return cells;
}

/// The table of keys in the user guide: its header, then a row for each key.
std::vector<Cells> KeyTable() {
  std::ifstream guide(std::filesystem::path(ZERIMO_SOURCE_DIR) / "docs" / "user-guide.md");
  std::vector<Cells> rows;
  for (std::string line; std::getline(guide, line);) {
    const bool begins = line.starts_with("| Key | Rows |");
    if (begins || (!rows.empty() && line.starts_with("|"))) rows.push_back(CellsOf(line));
    if (!rows.empty() && !line.starts_with("|")) break;
  }
  if (rows.size() > 1) rows.erase(rows.begin() + 1);
  return rows;
}

const std::map<std::string, int> codes = {
    {"Esc", key::Esc}, {"Enter", key::Enter}, {"Up", key::Up},   {"Down", key::Down}, {"F1", key::F1}, {"F2", key::F2},
    {"F3", key::F3},   {"F4", key::F4},       {"F5", 116},       {"F6", 117},         {"F7", 118},     {"F8", 119},
    {"F9", key::F9},   {"F10", key::F10},     {"F11", key::F11}, {"F12", key::F12}};

/// The control that a column of the table is about; nothing where no control has the keys.
Control* ControlOf(const std::string& column, WholeSystem& system) {
  Controls& controls = system.controls;
  const std::map<std::string, Control*> columns = {
      {"Rows", &controls.Text1[0]},          {"Text screen", &controls.List4}, {"Picture", &system.System.Picture1},
      {"Editor", &controls.Text2},           {"Help list", &controls.File1},   {"Anywhere else", nullptr},
      {"Help page", &controls.RichTextBox1},
  };
  return columns.at(column);
}

/// The states that the window may be in when a key is pressed.
const std::vector<std::function<void(WholeSystem&)>> looks = {
    [](WholeSystem&) {},
    [](WholeSystem& system) { system.Press(system.controls.Text1[0], key::F1); },
    [](WholeSystem& system) { system.Press(system.controls.Text1[0], key::F3); },
    [](WholeSystem& system) { system.Press(system.controls.Text1[0], key::F4); },
    [](WholeSystem& system) {
      system.controls.Frame1.Show();
      system.controls.File1.Show();
      system.controls.RichTextBox1.Show();
    },
};

/// Whether a key changes anything visible, asks something or writes a file. Every key goes to the window too.
bool DoesSomething(const std::string& column, int keyCode, const std::function<void(WholeSystem&)>& look) {
  WholeSystem system;
  system.controls.Text1[0].Text = "RT 1";
  look(system);
  system.services.InputAnswers.push_back("NAME");
  const auto before = system.EveryProperty();
  const std::string focus = system.Focus();
  system.Press(system.controls.Form1, keyCode);
  if (Control* const control = ControlOf(column, system)) system.Press(*control, keyCode);
  return system.EveryProperty() != before || system.Focus() != focus || !system.services.Inputs.empty() ||
         system.folder.Count() > 0;
}

bool DoesSomething(const std::string& column, int keyCode) {
  return std::ranges::any_of(looks, [&](const auto& look) { return DoesSomething(column, keyCode, look); });
}

}  // namespace

TEST(KeyTable, OfTheUserGuideTellsWhereEachKeyDoesSomething) {
  const std::vector<Cells> table = KeyTable();
  ASSERT_EQ(table.size(), codes.size() + 1);
  const Cells& head = table.front();
  for (std::size_t row = 1; row < table.size(); ++row) {
    const Cells& cells = table[row];
    ASSERT_EQ(cells.size(), head.size()) << cells.front();
    for (std::size_t column = 1; column < cells.size(); ++column)
      EXPECT_EQ(DoesSomething(head[column], codes.at(cells.front())), !cells[column].empty())
          << cells.front() << " in " << head[column];
  }
}

}  // namespace zerimo
