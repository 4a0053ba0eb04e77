#pragma once

#include <QMainWindow>
#include <QObject>
#include <QPointer>

#include "qt/diagram_window.h"
#include "qt/host.h"
#include "qt/output_act.h"
#include "qt/saved_dialog.h"
#include "report/source.h"
#include "ui/screen.h"

namespace qt {

/// What an operator prints and exports from the window of a screen: items at the end of its file menu.
class OutputMenu : public QObject {
  Q_OBJECT

 public:
  /// Puts the items into the first menu of `window`, for a screen that has something to print; into that of
  /// any other nothing. `screen` and `host` must outlive this object, or letGo be called before.
  OutputMenu(QMainWindow& window, ui::Screen& screen, Host& host);

  /// Takes no further act: the screen may be freed.
  void letGo();
  /// What the screen shows may have changed: an open diagram follows.
  void refresh();

 private:
  void addItems(QMenu& menu);
  void exportDiagram();
  void showDiagram();
  void showSaved(SavedDialog::What what);
  QString baseName() const;

  QMainWindow& window_;
  ui::Screen& screen_;
  Host& host_;
  OutputAct act_;
  report::Source* source_;
  const report::SavedResults* saved_;
  QPointer<DiagramWindow> diagram_;
};

}  // namespace qt
