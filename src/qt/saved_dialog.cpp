#include "qt/saved_dialog.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/convert.h"

namespace qt {
namespace {

constexpr QSize firstSize(420, 440);

}  // namespace

SavedDialog::SavedDialog(QWidget& parent, const report::SavedResults& results, What what, Host& host,
                         ui::Desktop& desktop)
    : QDialog(&parent),
      results_(results),
      what_(what),
      act_(*this, host, desktop),
      box_(*new QDialogButtonBox(QDialogButtonBox::Close, this)) {
  auto* column = new QVBoxLayout(this);
  setWindowTitle(what == What::Routes ? QStringLiteral("保存した路線の出力") : QStringLiteral("成果一覧"));
  what == What::Routes ? offerRoutes() : offerProjects();
  addActs();
  column->addWidget(&box_);
  connect(&box_, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void SavedDialog::offerRoutes() {
  resize(firstSize);
  routes_ = new QListWidget(this);
  routes_->setAccessibleName(QStringLiteral("保存した路線"));
  for (const std::string& route : results_.savedRoutes()) {
    auto* item = new QListWidgetItem(toQString(route), routes_);
    item->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item->setCheckState(Qt::Checked);
  }
  const bool any = routes_->count() > 0;
  layout()->addWidget(new QLabel(
      any ? QStringLiteral("一つの文書にまとめる路線(事業番号 %1)").arg(toQString(results_.chosenProject()))
          : QStringLiteral(
                "路線を選ぶ画面の右の欄(保存した結果)で、\nデータ形式と事業番号を選んでください。"),
      this));
  layout()->addWidget(routes_);
  connect(routes_, &QListWidget::itemChanged, this, [this] { tellWhetherAny(); });
}

void SavedDialog::offerProjects() {
  projects_ = new QComboBox(this);
  projects_->setAccessibleName(QStringLiteral("事業番号"));
  projects_->addItem(QStringLiteral("すべての事業番号"));
  for (const std::string& project : results_.resultProjects()) projects_->addItem(toQString(project), true);
  projects_->setCurrentIndex(std::max(0, projects_->findText(toQString(results_.chosenProject()))));
  layout()->addWidget(new QLabel(QStringLiteral("保存した結果から、水準点の標高の一覧をつくります。"), this));
  layout()->addWidget(projects_);
}

void SavedDialog::addActs() {
  const OutputAct::Maker made = [this](const report::Progress& progress) { return document(progress); };
  const QString name = windowTitle();
  addAct(box_, QStringLiteral("プレビュー(&V)..."), [this, made] { act_.preview(made); });
  addAct(box_, QStringLiteral("印刷(&P)..."), [this, made, name] { act_.print(made, name); });
  addAct(box_, QStringLiteral("PDF(&D)..."), [this, made, name] { act_.savePdf(made, name); });
  addAct(box_, QStringLiteral("Excel(&E)..."), [this, made, name] { act_.saveXlsx(made, name); });
  addAct(box_, QStringLiteral("CSV(&T)..."), [this, made, name] { act_.saveCsv(made, name); });
  tellWhetherAny();
}

void SavedDialog::addAct(QDialogButtonBox& box, const QString& text, const std::function<void()>& act) {
  QPushButton* const button = box.addButton(text, QDialogButtonBox::ActionRole);
  connect(button, &QPushButton::clicked, this, act);
}

/// Without a route there is nothing to print.
void SavedDialog::tellWhetherAny() {
  bool any = routes_ == nullptr;
  for (int row = 0; !any && row < routes_->count(); ++row)
    any = routes_->item(row)->checkState() == Qt::Checked;
  for (QAbstractButton* button : box_.buttons())
    if (box_.buttonRole(button) == QDialogButtonBox::ActionRole) button->setEnabled(any);
}

report::Document SavedDialog::document(const report::Progress& progress) const {
  if (what_ == What::List)
    return results_.resultList(
        projects_->currentData().isValid() ? fromQString(projects_->currentText()) : std::string(), progress);
  std::vector<std::size_t> chosen;
  for (int row = 0; row < routes_->count(); ++row)
    if (routes_->item(row)->checkState() == Qt::Checked) chosen.push_back(static_cast<std::size_t>(row));
  return results_.savedDocument(chosen, progress);
}

}  // namespace qt
