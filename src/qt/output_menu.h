#pragma once

#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QPrinter>

#include "qt/diagram_window.h"
#include "qt/host.h"
#include "qt/output_act.h"
#include "report/exporting.h"
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
  void preview();
  void print();
  void exportTable(const QString& suffix, const QString& kinds);
  void exportDiagram();
  void showDiagram();
  QString baseName() const;

  QMainWindow& window_;
  ui::Screen& screen_;
  Host& host_;
  OutputAct act_;
  report::Source* source_;
  QPointer<DiagramWindow> diagram_;
};

/// Paints a drawing with its title on a printer, lying. One that is too long for the sheet in letters that
/// can be read goes on over several sheets, to be joined side by side.
void printDrawing(const report::Figure& figure, QPrinter& printer);

/// Paints a document on a printer, on the paper that it is set to and the pages chosen for it. Raises
/// Cancelled.
void printDocument(const report::Document& document, QPrinter& printer, const report::Progress& progress);

}  // namespace qt
