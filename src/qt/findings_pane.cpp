#include "qt/findings_pane.h"

#include <QHBoxLayout>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/convert.h"

namespace qt {
namespace {

constexpr int aroundText = 3;    // pixels above and below a finding
constexpr int besideText = 6;    // pixels left and right of it
constexpr int leastHeight = 46;  // of the pane with its list, pixels: two lines and a frame
constexpr int goodHeight = 84;   // of the pane with its list, where the window has room

QString severityName(ui::Severity severity) {
  return severity == ui::Severity::Error ? QStringLiteral("誤り") : QStringLiteral("注意");
}

/// Severity, text and way out as one text.
QString wholeText(const ui::Finding& finding) {
  QString text =
      QStringLiteral("【") + severityName(finding.severity) + QStringLiteral("】") + toQString(finding.text);
  if (!finding.wayOut.empty()) text += QStringLiteral(" → ") + toQString(finding.wayOut);
  return text;
}

/// A finding takes as many lines as its text needs in the width of the list.
class FindingPainter : public QStyledItemDelegate {
 public:
  explicit FindingPainter(QListView& list) : QStyledItemDelegate(&list), list_(list) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const int width = std::max(list_.viewport()->width() - 2 * besideText, 1);
    const QRect room(0, 0, width, 0);
    const QRect text =
        option.fontMetrics.boundingRect(room, Qt::TextWordWrap, index.data(Qt::DisplayRole).toString());
    return {width, text.height() + 2 * aroundText};
  }

 private:
  QListView& list_;
};

}  // namespace

QString countText(const ui::Findings& findings) {
  if (findings.empty()) return {};
  const int errors = ui::countFindings(findings, ui::Severity::Error);
  const int warnings = ui::countFindings(findings, ui::Severity::Warning);
  return QStringLiteral("誤り %1、注意 %2").arg(errors).arg(warnings);
}

void FindingsModel::setFindings(ui::Findings findings) {
  beginResetModel();
  findings_ = std::move(findings);
  endResetModel();
}

int FindingsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(findings_.size());
}

QVariant FindingsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const ui::Finding& finding = findings_[static_cast<std::size_t>(index.row())];
  if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) return wholeText(finding);
  return {};
}

FindingsPane::FindingsPane(QWidget* parent)
    : QWidget(parent), button_(*new QToolButton), count_(*new QLabel), list_(*new QListView) {
  setObjectName(QStringLiteral("findingsPane"));
  button_.setObjectName(QStringLiteral("findingsFold"));
  button_.setText(QStringLiteral("点検"));
  button_.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button_.setFocusPolicy(Qt::TabFocus);
  button_.setAutoRaise(true);
  count_.setObjectName(QStringLiteral("findingsCount"));
  count_.setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("誤り 999、注意 999")));
  count_.setAccessibleName(QStringLiteral("点検の結果"));
  list_.setObjectName(QStringLiteral("findingsList"));
  list_.setAccessibleName(QStringLiteral("点検"));
  list_.setModel(&model_);
  list_.setItemDelegate(new FindingPainter(list_));
  list_.setWordWrap(true);
  list_.setResizeMode(QListView::Adjust);
  list_.setLayoutMode(QListView::Batched);
  list_.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  list_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  auto* head = new QVBoxLayout;
  head->setSpacing(0);
  head->addWidget(&button_);
  head->addWidget(&count_);
  head->addStretch(1);
  auto* across = new QHBoxLayout(this);
  across->setContentsMargins(6, 1, 6, 1);
  across->addLayout(head);
  across->addWidget(&list_, 1);
  connect(&button_, &QToolButton::clicked, this, [this] {
    fold(!isFolded());
    emit folded(isFolded());
  });
  connect(&list_, &QListView::clicked, this, &FindingsPane::choose);
  connect(&list_, &QListView::activated, this, &FindingsPane::choose);
  fold(false);
  setFindings({});
}

void FindingsPane::setFindings(const ui::Findings& findings) {
  if (model_.rowCount() == 0 || findings != model_.findings()) {
    const int before = list_.currentIndex().row();
    const ui::Finding current =
        before < 0 ? ui::Finding() : model_.findings()[static_cast<std::size_t>(before)];
    model_.setFindings(findings);
    const auto again = std::find(findings.begin(), findings.end(), current);
    if (before >= 0 && again != findings.end())
      list_.setCurrentIndex(model_.index(static_cast<int>(again - findings.begin())));
  }
  const QString count = countText(findings);
  count_.setText(count.isEmpty() ? QStringLiteral("指摘なし") : count);
}

QSize FindingsPane::sizeHint() const {
  const QSize least = QWidget::sizeHint();
  return {least.width(), isFolded() ? least.height() : goodHeight};
}

void FindingsPane::fold(bool away) {
  list_.setHidden(away);
  setMinimumHeight(away ? 0 : leastHeight);
  setMaximumHeight(away ? QWidget::sizeHint().height() : QWIDGETSIZE_MAX);
  showButton();
}

void FindingsPane::showButton() {
  button_.setArrowType(isFolded() ? Qt::RightArrow : Qt::DownArrow);
  button_.setToolTip(isFolded() ? QStringLiteral("点検の一覧を開きます")
                                : QStringLiteral("点検の一覧を畳みます"));
}

void FindingsPane::choose(const QModelIndex& index) {
  if (index.isValid()) emit chosen(model_.findings()[static_cast<std::size_t>(index.row())]);
}

}  // namespace qt
