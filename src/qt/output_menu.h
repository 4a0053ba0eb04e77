#pragma once

#include <QMainWindow>
#include <QObject>
#include <QPrinter>

#include "qt/host.h"
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
  OutputMenu(QMainWindow& window, const ui::Screen& screen, Host& host);

  /// Takes no further act: the screen may be freed.
  void letGo() { source_ = nullptr; }

 private:
  void addItems(QMenu& menu);
  void preview();
  void print();
  void exportTable(const QString& suffix, const QString& kinds);
  void exportDiagram();
  void save(const QString& name, const QString& kinds,
            const std::function<report::Exported(const std::string& path, const report::Exporting&)>& write);
  void run(const std::function<void(const report::Progress&)>& work);
  QString baseName() const;

  QMainWindow& window_;
  const ui::Screen& screen_;
  Host& host_;
  const report::Source* source_;
};

/// Paints a document on a printer, on the paper that it is set to and the pages chosen for it. Raises
/// Cancelled.
void printDocument(const report::Document& document, QPrinter& printer, const report::Progress& progress);

}  // namespace qt
