#include "qt/find_bar.h"

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolButton>

namespace qt {
namespace {

QToolButton& button(QWidget& bar, const char* name, const QString& caption, const QString& tip) {
  auto* made = new QToolButton(&bar);
  made->setObjectName(QLatin1String(name));
  made->setText(caption);
  made->setToolTip(tip);
  made->setAccessibleName(tip);
  made->setAutoRaise(true);
  bar.layout()->addWidget(made);
  return *made;
}

}  // namespace

/// The table's horizontal scroll bar, as high as the find bar while that one is open.
class FindBar::Room : public QScrollBar {
 public:
  explicit Room(QAbstractScrollArea& table) : QScrollBar(Qt::Horizontal, &table), table_(table) {
    table.setHorizontalScrollBar(this);
  }

  void make(int height) {
    height_ = height;
    table_.setHorizontalScrollBarPolicy(height > 0 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded);
    QEvent layOut(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(&table_, &layOut);
  }

  QSize sizeHint() const override { return QScrollBar::sizeHint().expandedTo({0, height_}); }

 private:
  QAbstractScrollArea& table_;
  int height_ = 0;
};

FindBar::FindBar(QAbstractScrollArea& table)
    : QWidget(&table),
      table_(table),
      room_(*new Room(table)),
      text_(*new QLineEdit(this)),
      result_(*new QLabel(this)) {
  setObjectName(QStringLiteral("findBar"));
  setAutoFillBackground(true);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 2, 6, 2);
  auto* caption = new QLabel(QStringLiteral("検索"), this);
  caption->setBuddy(&text_);
  row->addWidget(caption);
  text_.setObjectName(QStringLiteral("findText"));
  text_.setAccessibleName(QStringLiteral("検索する文字"));
  text_.setPlaceholderText(QStringLiteral("水準点、備考、数値"));
  text_.setMaximumWidth(text_.fontMetrics().averageCharWidth() * 40);
  row->addWidget(&text_, 1);
  const auto& back = button(*this, "findBack", QStringLiteral("▲"), QStringLiteral("前を検索 (Shift+F3)"));
  const auto& next = button(*this, "findNext", QStringLiteral("▼"), QStringLiteral("次を検索 (F3)"));
  result_.setObjectName(QStringLiteral("findResult"));
  row->addWidget(&result_, 1);
  const auto& end = button(*this, "findClose", QStringLiteral("✕"), QStringLiteral("検索を終わる (Esc)"));
  connect(&back, &QToolButton::clicked, this, [this] { emit asked(ui::Way::Back); });
  connect(&next, &QToolButton::clicked, this, [this] { emit asked(ui::Way::Forward); });
  connect(&end, &QToolButton::clicked, this, &FindBar::close);
  connect(&text_, &QLineEdit::textChanged, this, [this] { result_.clear(); });
  hide();
}

void FindBar::open() {
  show();
  room_.make(sizeHint().height());
  place();
  raise();
  text_.setFocus(Qt::ShortcutFocusReason);
  text_.selectAll();
}

void FindBar::close() {
  hide();
  room_.make(0);
  emit closed();
}

void FindBar::place() {
  if (isHidden()) return;
  const int frame = table_.frameWidth();
  const int height = sizeHint().height();
  setGeometry(frame, table_.height() - height - frame, table_.width() - 2 * frame, height);
}

void FindBar::tell(bool found) { result_.setText(found ? QString() : QStringLiteral("見つかりません")); }

void FindBar::keyPressEvent(QKeyEvent* event) {
  const ui::Way way = event->modifiers().testFlag(Qt::ShiftModifier) ? ui::Way::Back : ui::Way::Forward;
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F3:
      return emit asked(way);
    case Qt::Key_Escape:
      return close();
    default:
      event->accept();  // none of them is meant for the table
  }
}

}  // namespace qt
