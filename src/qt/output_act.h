#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "qt/host.h"
#include "report/exporting.h"
#include "ui/desktop.h"

namespace qt {

/// How a window prints and exports: as an act of the operator. An error is told in a message box, a long work
/// shows how far it has come and can be cancelled.
class OutputAct {
 public:
  /// All three must outlive this object.
  OutputAct(QWidget& window, Host& host, ui::Desktop& desktop)
      : window_(window), host_(host), desktop_(desktop) {}

  void run(const std::function<void(const report::Progress&)>& work) const;

  /// Asks for a file, of one of `kinds` ("PDF (*.pdf);;…") and called `name` unless the operator wants
  /// another name, and lets `write` write it.
  void save(const QString& name, const QString& kinds,
            const std::function<void(const std::string& path, const report::Exporting&)>& write) const;

  /// Makes the document when it is wanted; it may be long in coming.
  using Maker = std::function<report::Document(const report::Progress&)>;

  void preview(const Maker& make) const;
  void print(const Maker& make, const QString& name) const;
  void savePdf(const Maker& make, const QString& name) const;
  void saveXlsx(const Maker& make, const QString& name) const;
  void saveCsv(const Maker& make, const QString& name) const;

  /// The same for a drawing.
  void saveDrawing(const QString& name, const std::function<report::Figure()>& figure) const;

 private:
  void saveTable(const Maker& make, const QString& name, const QString& suffix, const QString& kinds) const;

  QWidget& window_;
  Host& host_;
  ui::Desktop& desktop_;
};

}  // namespace qt
