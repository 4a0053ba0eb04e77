#include "qt/output_menu.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "desk.h"
#include "platform/files.h"
#include "qt/forms.h"
#include "qt/print_pages.h"
#include "shell/calculations.h"
#include "support/temporary_folder.h"

namespace {

/// A document whose part has so many rows.
report::Document documentOf(int rows) {
  report::Document document{"正標高補正計算", {}, {}, {}};
  report::Table table{{}, {{"水準点", "", report::Side::Left, false}}, {}};
  for (int i = 0; i < rows; ++i) table.rows.push_back({{"A" + std::to_string(i)}, false, false});
  document.parts.push_back({"", {}, {table}});
  return document;
}

/// How many pages a PDF file says that it has.
int pagesIn(const std::string& path) {
  const std::string bytes = platform::readFile(path).value_or("");
  const std::size_t at = bytes.find("/Count ");
  return at == std::string::npos ? 0 : std::atoi(bytes.c_str() + at + 7);
}

class Printing : public testing::Test {
 protected:
  Printing() {
    printer_.setOutputFormat(QPrinter::PdfFormat);
    printer_.setOutputFileName(QString::fromStdString(path_));
    printer_.setPageSize(QPageSize(QPageSize::A4));
  }

  test::TemporaryFolder folder_;
  const std::string path_ = folder_.path("paper.pdf");
  QPrinter printer_{QPrinter::HighResolution};
};

TEST_F(Printing, PrintsEveryPage) {
  // 2347 of the first page and 2507 of the next hold 45 and 48 rows of 51.275.
  qt::printDocument(documentOf(60), printer_, {});
  EXPECT_EQ(pagesIn(path_), 2);
}

TEST_F(Printing, PrintsTheChosenPagesAlone) {
  printer_.setFromTo(2, 2);
  qt::printDocument(documentOf(100), printer_, {});
  EXPECT_EQ(pagesIn(path_), 1);
}

TEST_F(Printing, StopsWhereTheOperatorCancels) {
  EXPECT_THROW(qt::printDocument(documentOf(1), printer_, [](std::size_t, std::size_t) { return false; }),
               report::Cancelled);
}

/// The items of the first menu in the window of a screen.
QStringList fileItems(ui::Screen& screen, qt::WindowDesktop& desktop) {
  desktop.show(screen);
  const auto* bar = qobject_cast<QMenuBar*>(desktop.windowOf(screen)->menuWidget());
  QStringList items;
  if (bar != nullptr)
    for (const QAction* action : bar->actions().first()->menu()->actions())
      items << action->text() + action->shortcut().toString();
  desktop.hide(screen);
  return items;
}

TEST(OutputMenu, StandsInTheFileMenuOfEveryCalculation) {
  const job::JobContext context;
  qt::WindowDesktop desktop{qt::Opening::Design,
                            {.ask = [](QMessageBox&) {},
                             .failed = [](std::exception_ptr) {},
                             .settled = [] {},
                             .sweep = [] {},
                             .setUpForm = qt::setUpForm}};
  for (const shell::ScreenMaker& maker : shell::calculations()) {
    const auto screen = maker(context, desktop);
    const QStringList items = fileItems(*screen, desktop);
    EXPECT_TRUE(items.contains(QStringLiteral("印刷(&P)...Ctrl+P"))) << screen->name();
    for (const char* const text : {"印刷プレビュー(&V)...", "PDF に出力(&D)...", "Excel に出力(&E)...",
                                   "CSV に出力(&T)...", "図を出力(&G)..."})
      EXPECT_TRUE(items.contains(QString::fromUtf8(text))) << screen->name() << text;
  }
}

/// Two saved routes and two projects.
class Saved : public report::SavedResults {
 public:
  std::vector<std::string> savedRoutes() const override { return {"R1", "R2"}; }
  report::Document savedDocument(const std::vector<std::size_t>& routes,
                                 const report::Progress&) const override {
    chosen = routes;
    return documentOf(1);
  }
  bool hasResultList() const override { return true; }
  std::vector<std::string> resultProjects() const override { return {"1001", "1002"}; }
  std::string chosenProject() const override { return "1002"; }
  report::Document resultList(const std::string& project, const report::Progress&) const override {
    listed = project;
    return documentOf(1);
  }
  mutable std::vector<std::size_t> chosen;
  mutable std::string listed;
};

TEST(SavedDialog, PutsTheTickedRoutesIntoOneDocument) {
  Desk desk;
  QWidget parent;
  const Saved saved;
  const qt::SavedDialog dialog(parent, saved, qt::SavedDialog::What::Routes, desk.windows, desk.windows);
  dialog.document({});
  EXPECT_EQ(saved.chosen, (std::vector<std::size_t>{0, 1}));
  auto& routes = *dialog.findChild<QListWidget*>();
  routes.item(0)->setCheckState(Qt::Unchecked);
  dialog.document({});
  EXPECT_EQ(saved.chosen, std::vector<std::size_t>{1});
  const auto enabled = [&dialog] {
    int count = 0;
    for (const QPushButton* button : dialog.findChildren<QPushButton*>())
      count += button->isEnabled() ? 1 : 0;
    return count;
  };
  EXPECT_EQ(enabled(), 6) << "five ways out and the one back";
  routes.item(1)->setCheckState(Qt::Unchecked);
  EXPECT_EQ(enabled(), 1);
}

TEST(SavedDialog, ListsTheChosenProjectOrAll) {
  Desk desk;
  QWidget parent;
  const Saved saved;
  const qt::SavedDialog dialog(parent, saved, qt::SavedDialog::What::List, desk.windows, desk.windows);
  dialog.document({});
  EXPECT_EQ(saved.listed, "1002") << "the project of the selection page";
  dialog.findChild<QComboBox*>()->setCurrentIndex(0);
  dialog.document({});
  EXPECT_EQ(saved.listed, "");
}

}  // namespace
