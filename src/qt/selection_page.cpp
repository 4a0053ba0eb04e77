#include "qt/selection_page.h"

#include "ui_SelectionPage.h"

namespace qt {
namespace {

constexpr int narrowSet = 300;  // pixels across of a selection set without categories

}  // namespace

SelectionPage::SelectionPage(QWidget* parent)
    : QWidget(parent), form_(std::make_unique<Ui::SelectionPage>()) {
  const QString own = objectName();
  form_->setupUi(this);
  setObjectName(own);
}

SelectionPage::~SelectionPage() = default;

QString SelectionPage::openButton() const { return form_->openButton->objectName(); }

void SelectionPage::setOpenButton(const QString& name) { form_->openButton->setObjectName(name); }

QString SelectionPage::reopenButton() const { return form_->reopenButton->objectName(); }

void SelectionPage::setReopenButton(const QString& name) { form_->reopenButton->setObjectName(name); }

/// Without their lists the sets are small: they stand at the top, on the left.
void SelectionPage::setCategories(bool categories) {
  categories_ = categories;
  for (QWidget* widget :
       {static_cast<QWidget*>(form_->captionLstDataKubun), static_cast<QWidget*>(form_->LstDataKubun),
        static_cast<QWidget*>(form_->captionLstDataKubun1), static_cast<QWidget*>(form_->LstDataKubun1)})
    widget->setVisible(categories);
  const Qt::Alignment place = categories ? Qt::Alignment() : Qt::AlignLeft | Qt::AlignTop;
  for (QGroupBox* set : {form_->observedGroup, form_->savedGroup}) {
    set->setMinimumWidth(categories ? 0 : narrowSet);
    form_->selectionLayout->setAlignment(set, place);
  }
  form_->selectionLayout->setStretch(1, categories ? 0 : 1);
}

}  // namespace qt
