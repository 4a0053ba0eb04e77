#pragma once

#include <memory>
#include <vector>

#include "route/route_screen.h"

namespace seihyou {

/// The screen of the orthometric correction (正標高補正): the operator opens a route, types the correction of
/// each section, sees the corrected heights follow, and saves.
class fSHsei : public route::RouteScreen {
 public:
  ui::MenuItem throughMeansItem{"calcThroughMeans", this, "繰り返し点の平均を通して計算(&M)"};

  fSHsei(const job::JobContext& context, ui::Desktop& desktop);

  ui::Findings findings() const override;
  std::string unit(const ui::Grid& grid, int col) const override;

 private:
  void Form_Resize() override;
  void setUpGrids() override;
  bool openData(const route::Selection& selection) override;
  bool reopenData(const route::Selection& selection) override;
  bool saveData(const route::Selection& selection) override;
  route::SavedParts savedParts(const route::Selection& selection) const override;
  bool takeEntries(const ui::Findings& untaken) override;
  std::unique_ptr<route::SelectionScreen> another(ui::Desktop& desktop) const override;
  report::Document tables(const std::string& route) const override;
  report::Diagram profile() const override;

  void Grid1_KeyPress(char32_t code);
  void calculateFrom(int row);
  void calculateThroughMeans();
  void correctionKey(int row, char32_t code);
  void takeBlock(const std::vector<ui::CellPlace>& cells);
  ui::CellUse cellUse(int row, int col) const;
};

}  // namespace seihyou
