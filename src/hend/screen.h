#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "route/selection_screen.h"
#include "text/error.h"

namespace hend {

/// The screen of the variation correction (変動補正計算): the operator opens a route with two observations,
/// gives the reference date, sees the height differences carried to it, edits corrections and remarks, and
/// saves. It works in data category "0" alone.
///
/// Opening, reopening and recalculating trap no errors: a database error or a date that is none ends the
/// program. So the box of the reference date shows while it is typed whether its text is a date. With
/// safeguards the operator is told instead and led to the cell; what he has typed stays.
class fHHsei : public route::SelectionScreen {
 public:
  fHHsei(const job::JobContext& context, ui::Desktop& desktop);

  std::string unit(const ui::Grid& grid, int col) const override;

  ui::TextBox txtKijunbi{"txtKijunbi", this};
  ui::Button CmdSettei{"CmdSettei", this, "設定"};
  ui::Button cmdMap{"cmdMap", this, "画像貼付(&H)"};
  ui::Menu m0item{"m0item", this, "ファイル(&F)"};

  ui::Findings findings() const override;

 private:
  /// Where the grid was filled from, which says what may be typed into it.
  enum class Source {
    None,         ///< nothing is open: no typing
    Observation,  ///< "B": corrections and remarks
    Saved         ///< "C": these, and observations, counts of days and results
  };

  void Form_Load() override;
  void Form_Resize() override;
  void setUpGrids() override;
  bool openData(const route::Selection& selection) override;
  bool reopenData(const route::Selection& selection) override;
  bool saveData(const route::Selection& selection) override;
  route::SavedParts savedParts(const route::Selection& selection) const override;
  bool takeEntries(const ui::Findings& untaken) override;
  std::unique_ptr<route::SelectionScreen> another(ui::Desktop& desktop) const override;
  std::string pictureName() const override;
  report::Document tables(const std::string& route) const override;
  report::Diagram profile() const override;
  void clear() override;
  std::function<void()> knowledge() override;

  /// What keeps a calculation from its end.
  struct Trouble {
    std::string text;          ///< with the bench mark and the cell
    std::string wayOut;        ///< what the operator does about it
    ui::CellPlace place = {};  ///< the cell; row 0 for the reference date
  };

  void guarded(const std::string& procedure, const std::function<void()>& act);
  void tellTrouble(const std::string& procedure);
  Trouble troubleOf(const text::RuntimeError& error) const;
  void openChosen();
  bool readObservations(const route::Selection& selection);
  std::vector<std::pair<int, std::string>> typedCorrections() const;
  void calculate();
  void calculateAgain();
  void carryBackTo(const std::string& date);
  void takeCorrection(int row);
  void pastePicture();
  void Grid1_KeyPress(char32_t code);
  ui::CellUse cellUse(int col) const;

  Source source_ = Source::None;
  std::string carriedTo_;           ///< the reference date that the heights in the grid are carried to
  std::optional<Trouble> trouble_;  ///< of the act under way, with safeguards
};

}  // namespace hend
