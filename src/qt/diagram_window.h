#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QMainWindow>
#include <QMenu>
#include <QTimer>
#include <QToolBar>
#include <vector>

#include "qt/diagram_view.h"
#include "qt/host.h"
#include "qt/output_act.h"
#include "report/source.h"
#include "ui/grid.h"
#include "ui/screen.h"

namespace qt {

/// The diagram of a screen in a window of its own, alive: it follows the table, a click on a mark leads to
/// the row of its bench mark, and what can be wished of the diagram is chosen here.
class DiagramWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `parent` shows the screen. All must outlive this window.
  DiagramWindow(QMainWindow& parent, ui::Screen& screen, report::Source& source, Host& host);

  /// Opens the window, or brings it to the front, with all that can be wished now.
  void showAnew();
  /// The table may have changed: the diagram is drawn anew at the next turn of the event loop.
  void follow();

  const report::DiagramWish& wish() const { return wish_; }
  DiagramView& view() { return view_; }

 private:
  void addTools();
  void addAct(QToolBar& tools, const QString& text, const QString& tip, const std::function<void()>& act);
  void offer();
  void offerFixedPoints();
  void offerLayers(const report::DiagramOffer& offer);
  void draw();
  void lead(int row);
  void print();
  void file();
  QString name() const;

  QMainWindow& parent_;
  ui::Screen& screen_;
  report::Source& source_;
  Host& host_;
  OutputAct act_;
  ui::Grid* grid_;
  report::DiagramWish wish_;
  report::Figure figure_;
  QTimer later_;
  DiagramView& view_;
  QComboBox& fixed_;
  QStringList fixedNames_;
  std::vector<int> fixedRows_;
  QMenu& layers_;
  QAction* fixedPlace_ = nullptr;
  QAction* layersPlace_ = nullptr;
  QAction* fileAct_ = nullptr;
};

}  // namespace qt
