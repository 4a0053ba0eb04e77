#include "start/intake_model.h"

#include <QGuiApplication>
#include <QPalette>

#include "qt/convert.h"

namespace start {
namespace {

std::size_t at(int number) { return static_cast<std::size_t>(number); }

}  // namespace

IntakeModel::IntakeModel(jobs::ObservationTable& table, QObject* parent)
    : QAbstractTableModel(parent), table_(table) {}

int IntakeModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.lines().size());
}

int IntakeModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || table_.headings().empty() ? 0 : static_cast<int>(table_.headings().size()) + 1;
}

QVariant IntakeModel::data(const QModelIndex& index, int role) const {
  const std::size_t line = at(index.row());
  if (role == Qt::DisplayRole || role == Qt::EditRole || role == Qt::ToolTipRole) {
    if (index.column() == reasonColumn) return qt::toQString(table_.refusal(line));
    return role == Qt::ToolTipRole ? QVariant() : qt::toQString(table_.cell(line, at(index.column() - 1)));
  }
  if (role == Qt::ForegroundRole && !table_.refusal(line).empty())
    return QGuiApplication::palette().brush(QPalette::BrightText);
  if (role == Qt::ForegroundRole && index.column() > reasonColumn && !table_.fieldOf(at(index.column() - 1)))
    return QGuiApplication::palette().brush(QPalette::PlaceholderText);
  return {};
}

QVariant IntakeModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Vertical) return static_cast<qulonglong>(table_.lines()[at(section)].number);
  if (section == reasonColumn) return QStringLiteral("取り込めない理由");
  const auto field = table_.fieldOf(at(section - 1));
  return qt::toQString(table_.headings()[at(section - 1)]) + u'\n' +
         (field ? QStringLiteral("→ ") + fieldText(*field) : QStringLiteral("(取り込まない)"));
}

Qt::ItemFlags IntakeModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags shown = QAbstractTableModel::flags(index);
  return index.column() == reasonColumn ? shown : shown | Qt::ItemIsEditable;
}

bool IntakeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || index.column() == reasonColumn) return false;
  table_.setCell(at(index.row()), at(index.column() - 1), qt::fromQString(value.toString()));
  thoughtAnew();
  emit corrected();
  return true;
}

void IntakeModel::readAnew() {
  beginResetModel();
  endResetModel();
}

void IntakeModel::thoughtAnew() {
  if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  if (columnCount() > 0) emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

QString fieldText(intake::Field field) {
  const intake::FieldInfo& info = intake::infoOf(field);
  const QString unit = QString::fromUtf8(info.unit);
  return QString::fromUtf8(info.heading) + (unit.isEmpty() ? unit : QStringLiteral(" (%1)").arg(unit));
}

}  // namespace start
