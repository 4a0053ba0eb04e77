#include "qt/diagram_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>

#include "qt/convert.h"
#include "qt/grid_view.h"
#include "qt/page_writer.h"
#include "qt/print_pages.h"
#include "text/error.h"
#include "ui/controls.h"

namespace qt {
namespace {

constexpr QSize firstSize(980, 680);
constexpr double nearer = 1.25;

/// The column that an operator who comes from the diagram is led to: the first one that can be clicked.
int firstColumn(const ui::Grid& grid, int row) {
  for (int col = 0; col < grid.cols(); ++col)
    if (grid.clickable(row, col)) return col;
  return 0;
}

/// Brings the pages to the front on which a widget stands.
void bringToFront(QWidget* widget) {
  for (QWidget* at = widget; at != nullptr; at = at->parentWidget())
    if (auto* tabs = qobject_cast<QTabWidget*>(at))
      for (int page = 0; page < tabs->count(); ++page)
        if (tabs->widget(page)->isAncestorOf(widget)) tabs->setCurrentIndex(page);
}

}  // namespace

DiagramWindow::DiagramWindow(QMainWindow& parent, ui::Screen& screen, report::Source& source, Host& host)
    : QMainWindow(&parent, Qt::Window),
      parent_(parent),
      screen_(screen),
      source_(source),
      host_(host),
      act_(*this, host, screen.desktop()),
      grid_(dynamic_cast<ui::Grid*>(screen.find("Grid1"))),
      view_(*new DiagramView(this)),
      fixed_(*new QComboBox(this)),
      layers_(*new QMenu(this)) {
  setObjectName(QStringLiteral("diagram"));
  setCentralWidget(&view_);
  statusBar();
  addTools();
  resize(firstSize);
  later_.setSingleShot(true);
  connect(&later_, &QTimer::timeout, this, &DiagramWindow::draw);
  connect(&view_, &DiagramView::rowChosen, this, &DiagramWindow::lead);
  connect(&view_, &DiagramView::pointed, this,
          [this](QString words) { statusBar()->showMessage(words.replace(u'\n', QStringLiteral("　"))); });
}

void DiagramWindow::addTools() {
  auto& tools = *addToolBar(QStringLiteral("図"));
  tools.setMovable(false);
  auto* fixed = new QWidget(&tools);
  auto* row = new QHBoxLayout(fixed);
  row->setContentsMargins(4, 0, 4, 0);
  row->addWidget(new QLabel(QStringLiteral("仮不動点"), fixed));
  row->addWidget(&fixed_);
  fixed_.setObjectName(QStringLiteral("fixedPoint"));
  fixed_.setSizeAdjustPolicy(QComboBox::AdjustToContents);
  fixedPlace_ = tools.addWidget(fixed);
  connect(&fixed_, &QComboBox::activated, this, [this] {
    wish_.fixedRow = fixedRows_[static_cast<std::size_t>(fixed_.currentIndex())];
    draw();
  });
  auto* layers = new QToolButton(&tools);
  layers->setText(QStringLiteral("簿を重ねる"));
  layers->setPopupMode(QToolButton::InstantPopup);
  layers->setMenu(&layers_);
  layersPlace_ = tools.addWidget(layers);
  auto* steps = new QCheckBox(QStringLiteral("等間隔"), &tools);
  steps->setObjectName(QStringLiteral("equalSteps"));
  steps->setToolTip(QStringLiteral("距離によらず、水準点を等しい間隔に並べます"));
  tools.addWidget(steps);
  connect(steps, &QCheckBox::toggled, this, [this](bool on) {
    wish_.equalSteps = on;
    draw();
  });
  tools.addSeparator();
  const auto middle = [this] { return QRectF(view_.viewport()->rect()).center(); };
  addAct(tools, QStringLiteral("＋"), QStringLiteral("大きく見る（+、ホイール）"),
         [this, middle] { view_.zoom(nearer, middle()); });
  addAct(tools, QStringLiteral("－"), QStringLiteral("小さく見る（-、ホイール）"),
         [this, middle] { view_.zoom(1 / nearer, middle()); });
  addAct(tools, QStringLiteral("全体"), QStringLiteral("全体を見る（0）"), [this] { view_.showWhole(); });
  tools.addSeparator();
  addAct(tools, QStringLiteral("出力..."), QStringLiteral("PDF、SVG、PNG にします"),
         [this] { act_.saveDrawing(name(), [this] { return figure_; }); });
  addAct(tools, QStringLiteral("印刷..."), QStringLiteral("図を印刷します"), [this] { print(); });
  addAct(tools, QStringLiteral("図を登録"), QStringLiteral("画像貼付と同じところに、この図を登録します"),
         [this] { file(); });
  fileAct_ = tools.actions().last();
}

void DiagramWindow::addAct(QToolBar& tools, const QString& text, const QString& tip,
                           const std::function<void()>& act) {
  QAction* const made = tools.addAction(text);
  made->setToolTip(tip);
  connect(made, &QAction::triggered, this, act);
}

QString DiagramWindow::name() const {
  return toQString(screen_.caption()) + u' ' + toQString(source_.diagramName());
}

void DiagramWindow::showAnew() {
  setWindowTitle(name());
  offer();
  show();
  raise();
  activateWindow();
  draw();
}

void DiagramWindow::follow() {
  if (isVisible() && !later_.isActive()) later_.start(0);
}

/// Without what cannot be read there is less to wish.
void DiagramWindow::offer() {
  report::DiagramOffer offer;
  try {
    offer = source_.diagramOffer();
  } catch (const text::RuntimeError& error) {
    statusBar()->showMessage(toQString(error.what()));
  }
  fixedPlace_->setVisible(offer.fixedPoint);
  layersPlace_->setVisible(!offer.layers.empty());
  fileAct_->setVisible(!offer.picture.empty());
  offerLayers(offer);
}

void DiagramWindow::offerLayers(const report::DiagramOffer& offer) {
  std::vector<std::string> kept;
  for (const std::string& layer : wish_.layers)
    if (std::find(offer.layers.begin(), offer.layers.end(), layer) != offer.layers.end())
      kept.push_back(layer);
  wish_.layers = kept;
  layers_.clear();
  for (const std::string& layer : offer.layers) {
    QAction* const act = layers_.addAction(toQString(offer.layerName) + u' ' + toQString(layer));
    act->setCheckable(true);
    act->setChecked(std::find(kept.begin(), kept.end(), layer) != kept.end());
    connect(act, &QAction::toggled, this, [this, layer](bool on) {
      std::erase(wish_.layers, layer);
      if (on) wish_.layers.push_back(layer);
      draw();
    });
  }
}

/// The bench marks that have a mark in the diagram, by their rows.
void DiagramWindow::offerFixedPoints() {
  if (!fixedPlace_->isVisible() || grid_ == nullptr) return;
  QStringList names{QStringLiteral("なし")};
  std::vector<int> rows{0};
  for (const report::Shape& shape : figure_.drawing.shapes) {
    const auto* mark = std::get_if<report::Mark>(&shape);
    if (mark == nullptr || mark->row <= rows.back()) continue;
    rows.push_back(mark->row);
    names << toQString(mark->note).section(QStringLiteral("  "), 0, 0);
  }
  const auto at = std::find(rows.begin(), rows.end(), wish_.fixedRow);
  if (at == rows.end()) wish_.fixedRow = 0;
  const auto index = at == rows.end() ? 0 : static_cast<int>(at - rows.begin());
  if (names != fixedNames_) fixed_.clear();
  if (names != fixedNames_) fixed_.addItems(names);
  fixedNames_ = names;
  fixedRows_ = rows;
  fixed_.setCurrentIndex(index);
}

void DiagramWindow::draw() {
  later_.stop();
  try {
    figure_ = source_.diagram(wish_);
    offerFixedPoints();
    if (figure_.drawing.shapes.empty())
      view_.say(QStringLiteral("表に水準点がありません。"));
    else
      view_.show(figure_.drawing, grid_ == nullptr ? 0 : grid_->row());
  } catch (const text::RuntimeError& error) {
    view_.say(toQString(error.what()));
  }
}

void DiagramWindow::lead(int row) {
  if (grid_ == nullptr || row >= grid_->rows()) return;
  for (GridView* table : parent_.findChildren<GridView*>())
    if (table->objectName() == toQString(grid_->name())) bringToFront(table);
  host_.act([&] { grid_->moveTo(row, firstColumn(*grid_, row)); });
}

void DiagramWindow::print() {
  act_.run([this](const report::Progress&) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setDocName(name());
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted) printDrawing(figure_, printer);
  });
}

void DiagramWindow::file() {
  act_.run([this](const report::Progress&) {
    source_.fileDiagram(pageWriter()->bitmap(report::pageOf(figure_)));
  });
}

}  // namespace qt
