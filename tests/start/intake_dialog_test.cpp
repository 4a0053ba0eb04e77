#include "start/intake_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>

#include "platform/files.h"
#include "support/job_file.h"

namespace {

class IntakeDialogTest : public testing::Test {
 protected:
  IntakeDialogTest() {
    job_.sql({"INSERT INTO JobData VALUES ('1', '試験', 2, 1)"});
    open();
  }

  void open() {
    dialog_ = std::make_unique<start::IntakeDialog>(
        job_.path(), "1", folder_.path("settings.txt"),
        start::FileDialogs{
            .open = [this](QWidget*, const QString&, const QString&, const QString&) { return chosen_; },
            .save = [this](QWidget*, const QString&, const QString&, const QString&) { return chosen_; },
            .folder = {}},
        nullptr);
    dialog_->show();
  }

  template <typename Kind>
  Kind* find(const char* name) {
    return dialog_->findChild<Kind*>(QString::fromLatin1(name));
  }
  void press(const char* name) { find<QPushButton>(name)->click(); }
  void paste(const char* block) {
    QApplication::clipboard()->setText(QString::fromUtf8(block));
    press("paste");
  }
  std::string text(const char* label) { return find<QLabel>(label)->text().toStdString(); }
  QAbstractItemModel& model() { return *find<QTableView>("table")->model(); }
  std::string header(int column) {
    return model().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().toStdString();
  }
  void type(int row, int column, const char* words) {
    model().setData(model().index(row, column), QString::fromUtf8(words), Qt::EditRole);
  }

  test::JobFile job_;
  test::TemporaryFolder folder_;
  QString chosen_;
  std::unique_ptr<start::IntakeDialog> dialog_;
};

constexpr const char* block =
    "事業番号\t路線番号\t標石番号\t距離(km)\t比高差\n1001\tR1\tA\t1.5\t0.25\n\t\tB\tx\t0.5\n\t\tC\t\t\n";

TEST_F(IntakeDialogTest, ShowsWhatWouldBeStoredAndTheLineThatCannotBe) {
  EXPECT_FALSE(find<QPushButton>("store")->isEnabled());
  paste(block);
  EXPECT_EQ(text("summary"), "路線 1、水準点 3、取り込めない箇所 1");
  EXPECT_EQ(header(0), "取り込めない理由");
  EXPECT_EQ(header(4), "距離(km)\n→ 距離 (km)");
  EXPECT_EQ(header(5), "比高差\n(取り込まない)");
  EXPECT_EQ(model().headerData(1, Qt::Vertical, Qt::DisplayRole).toInt(), 3) << "lines of the block, from 1";
  EXPECT_FALSE(find<QPushButton>("store")->isEnabled());
  press("nextRefused");
  EXPECT_EQ(find<QTableView>("table")->currentIndex().row(), 1);
  EXPECT_EQ(find<QTableView>("table")->currentIndex().data().toString().toStdString(),
            "距離「x」は数値ではありません。");
  EXPECT_FALSE(model().flags(model().index(1, 0)) & Qt::ItemIsEditable) << "a reason is not typed over";
}

TEST_F(IntakeDialogTest, StoresWhenTheLineIsCorrected) {
  paste(block);
  type(1, 4, "1.25");
  EXPECT_EQ(text("summary"), "路線 1、水準点 3、取り込めない箇所 0");
  EXPECT_TRUE(find<QPlainTextEdit>("remarks")->toPlainText().contains("順番を 1 から 3 まで付けます。"));
  press("store");
  EXPECT_EQ(text("message"), "3 件を取り込みました。");
  EXPECT_EQ(job_.records("KansokuSeikaData").size(), 3U);
}

TEST_F(IntakeDialogTest, AColumnIsMatchedByHandAndKnownTheNextTime) {
  paste(block);
  EXPECT_EQ(find<QComboBox>("column")->currentText(), "比高差") << "the one that nobody knows";
  EXPECT_EQ(find<QComboBox>("field")->currentIndex(), 0);
  auto* field = find<QComboBox>("field");
  field->setCurrentIndex(field->findText("中数 (m)"));
  emit field->activated(field->currentIndex());
  EXPECT_EQ(header(5), "比高差\n→ 中数 (m)");
  open();
  paste(block);
  EXPECT_EQ(header(5), "比高差\n→ 中数 (m)");
}

TEST_F(IntakeDialogTest, ReplacesRoutesOnlyAfterAQuestionWithNumbers) {
  paste("事業番号\t路線番号\t標石番号\n1001\tR1\tA\n1001\tR1\tB\n");
  press("store");
  paste("事業番号\t路線番号\t標石番号\n1001\tR1\tC\n1001\tR1\tD\n1001\tR1\tE\n");
  press("store");
  auto* question = dialog_->findChild<QMessageBox*>();
  ASSERT_NE(question, nullptr);
  EXPECT_TRUE(question->text().contains("事業 1001 路線 R1 (区分 0): 今 2 件 → 取り込み 3 件"));
  EXPECT_EQ(question->defaultButton()->text(), "やめる");
  question->defaultButton()->click();
  EXPECT_EQ(job_.records("KansokuSeikaData").size(), 2U);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  press("store");
  dialog_->findChild<QPushButton*>("replace")->click();
  EXPECT_EQ(job_.records("KansokuSeikaData").size(), 3U);
  EXPECT_EQ(text("message"), "3 件を取り込みました。");
}

TEST_F(IntakeDialogTest, WhatTheTableLacksIsEnteredOnce) {
  paste("標石番号\nA\nB\n");
  EXPECT_FALSE(find<QPushButton>("store")->isEnabled());
  find<QLineEdit>("project")->setText("1001");
  find<QLineEdit>("route")->setText("R1");
  emit find<QLineEdit>("route")->editingFinished();
  EXPECT_TRUE(find<QPushButton>("store")->isEnabled());
}

TEST_F(IntakeDialogTest, ReadsFilesAndWritesTheTemplate) {
  chosen_ = QString::fromStdString(folder_.path("ひな形.xlsx"));
  press("writeTemplate");
  EXPECT_TRUE(platform::isFile(folder_.path("ひな形.xlsx")));
  press("readFile");
  EXPECT_NE(text("message").find("は文字のファイルではありません"), std::string::npos) << text("message");
  chosen_ = QString::fromStdString(folder_.write("a.csv", "標石番号\nA\n"));
  press("readFile");
  EXPECT_EQ(text("message"), "");
  EXPECT_EQ(model().rowCount(), 1);
  QApplication::clipboard()->clear();
  press("paste");
  EXPECT_EQ(text("message"), "クリップボードに表がありません。");
}

}  // namespace
