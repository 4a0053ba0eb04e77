#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class SelectionPage;
}

namespace qt {

/// The page on which a route is chosen, the same in every screen of a route: on the left from the observation
/// results, on the right from the saved results; category, project, route and a button each. A form takes it
/// as one widget and says in what its screen differs.
class SelectionPage : public QWidget {
  Q_OBJECT
  /// Name of the button that opens observation results, and of the one that opens saved results.
  Q_PROPERTY(QString openButton READ openButton WRITE setOpenButton)
  Q_PROPERTY(QString reopenButton READ reopenButton WRITE setReopenButton)
  /// False for a screen that works in one data category: the lists of categories are left out.
  Q_PROPERTY(bool categories READ categories WRITE setCategories)

 public:
  explicit SelectionPage(QWidget* parent = nullptr);
  ~SelectionPage() override;

  QString openButton() const;
  void setOpenButton(const QString& name);
  QString reopenButton() const;
  void setReopenButton(const QString& name);
  bool categories() const { return categories_; }
  void setCategories(bool categories);

 private:
  std::unique_ptr<Ui::SelectionPage> form_;
  bool categories_ = true;
};

}  // namespace qt
