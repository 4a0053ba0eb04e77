#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>

#include "hands/operator.h"
#include "qt/choice_list.h"
#include "qt/grid_view.h"
#include "start/operator_steps.h"
#include "support/temporary_folder.h"

// The road from nothing to a route that is saved and reopened, in real windows: what somebody does who has
// only this program.

namespace {

using test::look;
using test::openWindow;
using test::push;
using test::seen;
using test::steps;

constexpr int marks = 40;
constexpr int badLine = 20;

/// Forty bench marks, each 0.5 m above the one before; the distance of one of them is no number.
QString block() {
  QString lines = QStringLiteral("事業番号\t路線番号\t標石番号\t観測日\t距離(km)\t比高(m)\t標高(m)\n");
  for (int mark = 1; mark <= marks; ++mark)
    lines += QStringLiteral("1001\t01A00101\tB%1\t2026/4/1\t%2\t%3\t%4\n")
                 .arg(mark)
                 .arg(mark == badLine ? "2,0 km" : "2.0", mark == marks ? "" : "0.5", mark == 1 ? "100" : "");
  return lines;
}

template <typename Kind>
Kind& in(QWidget& window, const char* name) {
  auto* found = window.findChild<Kind*>(QString::fromLatin1(name));
  if (found == nullptr) throw std::logic_error(std::string("nothing is called ") + name);
  return *found;
}

QDialog& dialog(const char* name) { return in<QDialog>(openWindow(), name); }

/// The action, as the menu's item would trigger it.
std::function<void()> choose(const char* item) {
  return [item] { in<QAction>(openWindow(), item).trigger(); };
}

void makeJob(const std::string& folder) {
  QDialog& made = dialog("NewJob");
  in<QLineEdit>(made, "folder").setText(QString::fromStdString(folder));
  in<QLineEdit>(made, "name").setText(QStringLiteral("諏訪"));
  in<QPushButton>(made, "make").click();
}

void note(const QString& words) { seen.push_back(words.toStdString()); }

void pasteBlock() {
  QApplication::clipboard()->setText(block());
  in<QPushButton>(dialog("Intake"), "paste").click();
  note(in<QLabel>(dialog("Intake"), "summary").text());
}

void correctTheLine() {
  QDialog& intake = dialog("Intake");
  in<QPushButton>(intake, "nextRefused").click();
  auto& table = in<QTableView>(intake, "table");
  note(table.currentIndex().data().toString());
  const QModelIndex distance = table.model()->index(table.currentIndex().row(), 5);
  table.setCurrentIndex(distance);
  table.edit(distance);
  auto* editor = table.viewport()->findChild<QLineEdit*>();
  editor->setText(QStringLiteral("2.0"));
  QTest::keyClick(editor, Qt::Key_Return);
}

void storeBlock() {
  QDialog& intake = dialog("Intake");
  in<QPushButton>(intake, "store").click();
  note(in<QLabel>(intake, "message").text());
  in<QPushButton>(intake, "leave").click();
}

/// Chooses the route on one side of the page of selection and opens it.
std::function<void()> open(const char* categories, const char* projects, const char* routes,
                           const char* button) {
  return [=] {
    QMainWindow& window = openWindow();
    hands::choose(in<qt::ChoiceList>(window, categories), 0);
    hands::choose(in<QComboBox>(window, projects), 0);
    hands::choose(in<QComboBox>(window, routes), 0);
    in<QPushButton>(window, button).click();
  };
}

qt::GridView& grid() { return in<qt::GridView>(openWindow(), "Grid1"); }

QString cell(int row, int col) { return grid().indexOf(row, col).data().toString(); }

/// A correction of 7 units in the first section.
void typeCorrection() {
  note(cell(1, 0) + " " + cell(2 * marks - 1, 0));
  hands::clickCell(grid(), 2, 2);
  hands::keyInGrid(grid(), U'7');
  hands::keyInGrid(grid(), U'\r');
  note(cell(3, 3));
}

void lookAtTheRoute() { note(cell(2, 2) + " " + cell(3, 3) + " " + cell(5, 3)); }

void openRecent() {
  auto& recent = in<QTreeWidget>(openWindow(), "recent");
  note(recent.topLevelItem(0)->text(0) + " " + recent.topLevelItem(0)->text(3));
  in<QPushButton>(openWindow(), "open").click();
}

void closeWindow() { openWindow().close(); }

TEST(Road, LeadsFromNothingToASavedAndReopenedRoute) {
  const test::TemporaryFolder folder;
  steps = {look,
           push("newJob"),
           [&] { makeJob(folder.path()); },
           choose("takeObservationsIn"),
           pasteBlock,
           correctTheLine,
           storeBlock,
           push("Command1"),
           open("LstDataKubun", "cmbJIgyoBango1", "cmbRosenBango1", "CmdDataOpen"),
           typeCorrection,
           choose("mitem(1)"),
           test::answer,
           closeWindow,
           push("Command3"),
           openRecent,
           push("Command1"),
           open("LstDataKubun1", "cmbJIgyoBango2", "cmbRosenBango2", "CmdReOpen"),
           lookAtTheRoute,
           closeWindow,
           push("Command3"),
           push("leave")};
  EXPECT_EQ(test::runProgram(""), 0);
  // First grade counts corrections in 0.1 mm: B2 stands at 100 + 0.5 + 0.0007 = 100.5007, B3 at 101.0007.
  EXPECT_EQ(seen, (std::vector<std::string>{"ジョブを開く", "路線 1、水準点 40、取り込めない箇所 1",
                                            "距離「2,0 km」は数値ではありません。", "40 件を取り込みました。",
                                            "B1 B40", "100.5007", "正標高補正|保存しました",
                                            "諏訪.sqlite 1・1級", "7 100.5007 101.0007"}));
  EXPECT_TRUE(steps.empty());
}

}  // namespace
