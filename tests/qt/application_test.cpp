#include "qt/application.h"

#include <gtest/gtest.h>

#include <QIcon>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <memory>

namespace {

QString wordsOf(const QMessageBox& box, QMessageBox::StandardButton button) {
  return box.button(button)->text().remove(QLatin1Char('&'));
}

TEST(Application, ButtonsOfMessageBoxesAreJapanese) {
  const QMessageBox box(QMessageBox::Question, QString(), QString(),
                        QMessageBox::Ok | QMessageBox::Cancel | QMessageBox::Save);
  EXPECT_EQ(wordsOf(box, QMessageBox::Ok), QStringLiteral("OK"));
  EXPECT_EQ(wordsOf(box, QMessageBox::Cancel), QStringLiteral("キャンセル"));
  EXPECT_EQ(wordsOf(box, QMessageBox::Save), QStringLiteral("保存"));
}

TEST(Application, TheMenuOfATextBoxIsJapanese) {
  QLineEdit box;
  const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());
  ASSERT_FALSE(menu->actions().isEmpty());
  EXPECT_TRUE(menu->actions().front()->text().contains(QStringLiteral("元に戻す")))
      << menu->actions().front()->text().toStdString();
}

TEST(Application, WindowsCarryItsIconInEverySize) {
  const QIcon icon = QApplication::windowIcon();
  for (const int size : {16, 32, 64, 256})
    EXPECT_TRUE(icon.availableSizes().contains(QSize(size, size))) << size;
}

}  // namespace
