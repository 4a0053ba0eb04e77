#include "qt/limits_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "qt/convert.h"
#include "text/error.h"
#include "text/number.h"

namespace qt {
namespace {

constexpr int fieldWidth = 90;  // pixels

/// An amount of the limits that stands alone.
struct Bound {
  const char* name;
  const char* words;
  double route::Limits::*amount;
};

constexpr std::array<Bound, 4> bounds = {{
    {"limitCorrection", "正標高補正数の目安 (mm)", &route::Limits::correction},
    {"limitSection", "距離のない路線の1区間の長さ (km)", &route::Limits::sectionKilometres},
    {"limitRate", "1日の変化の目安 (m/日)", &route::Limits::rate},
    {"limitVariation", "前の成果との差の目安 (mm)", &route::Limits::variation},
}};

/// A column of the table of tolerances.
struct Kind {
  const char* name;
  const char* words;
  double route::Tolerance::*amount;
};

constexpr std::array<Kind, 3> kinds = {{
    {"Misclosure", "既知点間の閉合差", &route::Tolerance::misclosure},
    {"Loop", "環閉合差", &route::Tolerance::loop},
    {"Double", "往復差", &route::Tolerance::doubleRun},
}};

/// Every amount of the limits, in the order in which the dialog shows them.
template <class AnyLimits, class Take>
void forEachAmount(AnyLimits& limits, const Take& take) {
  for (const Bound& bound : bounds) take(limits.*bound.amount);
  for (auto& grade : limits.tolerances.grades)
    for (const Kind& kind : kinds) take(grade.*kind.amount);
}

bool isAmount(const QString& text) {
  try {
    const std::string words = fromQString(text);
    return text::isNumeric(words) && text::readNumber(words) > 0;
  } catch (const text::RuntimeError&) {
    return false;
  }
}

}  // namespace

LimitsDialog::LimitsDialog(const route::Limits& limits, QWidget* parent)
    : QDialog(parent), before_(limits), source_(*new QLineEdit), complaint_(*new QLabel) {
  setObjectName(QStringLiteral("limitsDialog"));
  setWindowTitle(QStringLiteral("許容範囲"));
  auto* column = new QVBoxLayout(this);
  auto* boundsBox = new QGroupBox(QStringLiteral("点検の目安"));
  addBounds(*new QGridLayout(boundsBox));
  column->addWidget(boundsBox);
  auto* tolerancesBox = new QGroupBox(QStringLiteral("許容範囲 (mm × √S、S は km 単位の距離)"));
  addTolerances(*new QGridLayout(tolerancesBox));
  column->addWidget(tolerancesBox);
  column->addWidget(&complaint_);
  addButtons(*column);
  show(limits);
}

QLineEdit& LimitsDialog::addField(QGridLayout& grid, int row, int col, const char* name,
                                  const QString& words) {
  auto* field = new QLineEdit;
  field->setObjectName(QLatin1String(name));
  field->setAccessibleName(words);
  field->setAlignment(Qt::AlignRight);
  field->setMinimumWidth(fieldWidth);
  connect(field, &QLineEdit::textChanged, this, &LimitsDialog::look);
  grid.addWidget(field, row, col);
  amounts_.push_back(field);
  return *field;
}

void LimitsDialog::addBounds(QGridLayout& grid) {
  for (int row = 0; row < static_cast<int>(bounds.size()); ++row) {
    const Bound& bound = bounds[static_cast<std::size_t>(row)];
    const QString words = QString::fromUtf8(bound.words);
    auto* label = new QLabel(words);
    grid.addWidget(label, row, 0);
    label->setBuddy(&addField(grid, row, 1, bound.name, words));
  }
  grid.setColumnStretch(0, 1);
}

void LimitsDialog::addTolerances(QGridLayout& grid) {
  for (int col = 0; col < static_cast<int>(kinds.size()); ++col)
    grid.addWidget(new QLabel(QString::fromUtf8(kinds[static_cast<std::size_t>(col)].words)), 0, col + 1,
                   Qt::AlignRight);
  for (int grade = 1; grade <= static_cast<int>(before_.tolerances.grades.size()); ++grade) {
    const QString name = QStringLiteral("%1級").arg(grade);
    grid.addWidget(new QLabel(name), grade, 0);
    for (int col = 0; col < static_cast<int>(kinds.size()); ++col) {
      const Kind& kind = kinds[static_cast<std::size_t>(col)];
      const std::string field = "limit" + std::string(kind.name) + std::to_string(grade);
      addField(grid, grade, col + 1, field.c_str(),
               name + QStringLiteral(" ") + QString::fromUtf8(kind.words));
    }
  }
  const int last = static_cast<int>(before_.tolerances.grades.size()) + 1;
  source_.setObjectName(QStringLiteral("limitSource"));
  source_.setAccessibleName(QStringLiteral("出典"));
  grid.addWidget(new QLabel(QStringLiteral("出典")), last, 0);
  grid.addWidget(&source_, last, 1, 1, static_cast<int>(kinds.size()));
}

void LimitsDialog::addButtons(QVBoxLayout& column) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  ok_ = buttons->button(QDialogButtonBox::Ok);
  auto* usual = buttons->addButton(QStringLiteral("標準に戻す(&D)"), QDialogButtonBox::ResetRole);
  usual->setObjectName(QStringLiteral("limitsUsual"));
  connect(usual, &QPushButton::clicked, this, [this] { show(route::Limits()); });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column.addWidget(buttons);
}

void LimitsDialog::show(const route::Limits& limits) {
  auto field = amounts_.begin();
  forEachAmount(limits,
                [&](const double& amount) { (*field++)->setText(toQString(text::numberText(amount))); });
  source_.setText(toQString(limits.tolerances.source));
}

/// A field that holds no amount stands in the colour of what is wrong, and there is no OK.
void LimitsDialog::look() {
  bool all = true;
  for (QLineEdit* field : amounts_) {
    const bool right = isAmount(field->text());
    QPalette colours;
    if (!right) colours.setColor(QPalette::Text, palette().color(QPalette::BrightText));
    field->setPalette(colours);
    field->setToolTip(right ? QString() : QStringLiteral("0 より大きい数を入力してください"));
    all = all && right;
  }
  complaint_.setText(all ? QString() : QStringLiteral("0 より大きい数を入力してください。"));
  if (ok_ != nullptr) ok_->setEnabled(all);
}

route::Limits LimitsDialog::limits() const {
  route::Limits limits = before_;
  auto field = amounts_.begin();
  forEachAmount(limits, [&](double& amount) { amount = text::readNumber(fromQString((*field++)->text())); });
  limits.tolerances.source = fromQString(source_.text());
  return limits;
}

}  // namespace qt
