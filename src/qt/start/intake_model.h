#pragma once

#include <QAbstractTableModel>

#include "jobs/observation_table.h"

namespace start {

/// The table of an import as the toolkit shows it: first why a line cannot be taken, then its cells, which
/// can be typed over. The headings say what each column is read as.
class IntakeModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int reasonColumn = 0;

  /// The table outlives the model.
  IntakeModel(jobs::ObservationTable& table, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  /// Another table has been read.
  void readAnew();
  /// Columns or defaults are others now.
  void thoughtAnew();

 signals:
  /// A cell was typed over.
  void corrected();

 private:
  jobs::ObservationTable& table_;
};

/// The name of a field with its unit, as operators read it.
QString fieldText(intake::Field field);

}  // namespace start
