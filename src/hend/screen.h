#pragma once

#include "route/selection_screen.h"

namespace hend {

/// The screen of the variation correction (変動補正計算): the operator opens a route with two observations,
/// gives the reference date, sees the height differences carried to it, edits corrections and remarks, and
/// saves. It works in data category "0" alone.
///
/// Opening, reopening and recalculating trap no errors: a database error or a date that is none ends the
/// program. So the box of the reference date shows while it is typed whether its text is a date.
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
  report::Document tables(const std::string& route) const override;
  report::Diagram profile() const override;
  void clear() override;

  void calculate();
  void calculateAgain();
  void takeCorrection(int row);
  void pastePicture();
  void Grid1_KeyPress(char32_t code);
  ui::CellUse cellUse(int col) const;

  Source source_ = Source::None;
};

}  // namespace hend
