#pragma once

#include <string>

#include "hksnb/kind.h"
#include "job/context.h"
#include "route/saved_watch.h"
#include "ui/desktop.h"
#include "ui/grid.h"

namespace hksnb {

/// Watches what is stored under the number of the book on the screen, and asks before a save takes a book
/// away that is not the one on the screen. Nothing is read and nothing asked without safeguards.
class BookWatch {
 public:
  explicit BookWatch(const job::JobContext& context) : context_(&context) {}

  /// The book on the screen is the stored one of this kind and number, as it is stored now. Where that cannot
  /// be read nothing is known of what others store.
  void own(ui::Desktop& desktop, Kind kind, const std::string& number);
  /// The book on the screen is a new one.
  void disown(ui::Desktop& desktop);
  /// What the operator should know of the job: that nothing can be stored in it at present; "" for nothing.
  std::string notice() const { return stored_.notice(); }
  /// The number that the book on the screen is stored under; "" for a new book.
  const std::string& number() const { return number_; }
  /// What the book on the screen is called in questions.
  std::string name() const;

  /// Asks what has to be asked before `grid` is stored as the book `number`: that it has none, that another
  /// book has it already, that its own has been stored by somebody else or would lose bench marks. Raises
  /// db::Error.
  bool mayStore(ui::Desktop& desktop, Kind kind, const std::string& number, const ui::Grid& grid) const;

 private:
  route::SavedParts parts(Kind kind, const std::string& number, std::size_t benchMarks) const;
  bool mayReplaceOther(ui::Desktop& desktop, Kind kind, const std::string& number) const;

  const job::JobContext* context_;  ///< never null
  bool owned_ = false;
  std::string number_;
  route::SavedWatch stored_;
};

}  // namespace hksnb
