#include "qt/every_kind.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "qt/choice_list.h"
#include "qt/grid_view.h"

EveryKind::EveryKind(ui::Desktop& desktop) : Screen("EveryKind", "すべて", desktop, 6000, 4500) {
  SSTab1.put(0, {&Grid1});
  SSTab1.put(1, {&lblName, &cmdGo, &optFirst, &optSecond, &txtNumber, &lstKinds, &cmbRoute});
  ui::OptionButton::group({&optFirst, &optSecond});
  optFirst.setOn(true);
  for (const char* item : {"い", "ろ", "は  "}) {
    lstKinds.addItem(item);
    cmbRoute.addItem(item);
  }
  cmdGo.onClick.handle([this] { events.push_back("go"); });
  optSecond.onClick.handle([this] { events.push_back("second"); });
  clearItem.onClick.handle([this] { events.push_back("clear"); });
  txtNumber.onChange.handle([this] { events.push_back("text " + txtNumber.text()); });
  lstKinds.onClick.handle([this] { events.push_back("kind " + lstKinds.text()); });
  cmbRoute.onClick.handle([this] { events.push_back("route " + cmbRoute.text()); });
}

void EveryKind::Form_Resize() {
  events.push_back("resize " + std::to_string(static_cast<int>(width())) + " " +
                   std::to_string(static_cast<int>(height())));
  SSTab1.setSize(width() - 450, height() - 450);
  Grid1.setSize(width() / 2, 1501);
}

namespace {

template <class WidgetKind>
WidgetKind* add(QLayout& layout, const char* name) {
  auto* widget = new WidgetKind;
  widget->setObjectName(QString::fromUtf8(name));
  layout.addWidget(widget);
  return widget;
}

void setUpPages(QTabWidget& tabs) {
  auto* first = new QWidget;
  add<qt::GridView>(*new QVBoxLayout(first), "Grid1");
  tabs.addTab(first, QStringLiteral("表"));
  auto* second = new QWidget;
  auto* layout = new QVBoxLayout(second);
  add<QLabel>(*layout, "lblName");
  add<QLineEdit>(*layout, "txtNumber");
  add<qt::ChoiceList>(*layout, "lstKinds");
  add<QComboBox>(*layout, "cmbRoute");
  add<QRadioButton>(*layout, "opt(0)");
  add<QRadioButton>(*layout, "opt(1)");
  add<QPushButton>(*layout, "cmdGo");
  tabs.addTab(second, QStringLiteral("選択"));
}

}  // namespace

void setUpEveryKind(QMainWindow& window) {
  window.setObjectName(QStringLiteral("EveryKind"));
  auto* client = new QWidget;
  client->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  window.setCentralWidget(client);
  auto* layout = new QVBoxLayout(client);
  setUpPages(*add<QTabWidget>(*layout, "SSTab1"));
  add<QGroupBox>(*layout, "fraBox");
  QMenu* menu = window.menuBar()->addMenu(QString());
  menu->setObjectName(QStringLiteral("m0item"));
  menu->addAction(QString())->setObjectName(QStringLiteral("mitem(0)"));
}
