#pragma once

#include <memory>

#include "route/route_screen.h"

namespace tanrosen {

/// The screen of the single-route correction (単路線閉合差補正): the operator opens a route, says which bench
/// marks are known points, has the closure errors distributed, and saves.
class fTHsei : public route::RouteScreen {
 public:
  ui::Label lblSuijyun{"lblSuijyun", this, "全水準点"};
  ui::ListBox lstSuijyun{"lstSuijyun", this};
  ui::Button Command1{"Command1", this, "追加"};
  ui::Label lblKiti{"lblKiti", this, "既知点"};
  ui::ListBox lstKiti{"lstKiti", this};
  ui::Button Command2{"Command2", this, "削除"};
  ui::Button cmdCalc{"cmdCalc", this, "計算"};
  ui::MenuItem onKnownHeightsItem{"calcOnKnownHeights", this, "既知点ごとに閉合させて計算(&K)"};

  fTHsei(const job::JobContext& context, ui::Desktop& desktop);

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
  void clear() override;

  void Command1_Click();
  void Command2_Click();
  void cmdCalc_Click();
  void calculateOnKnownHeights();
  void Grid1_KeyPress(char32_t code);
  void takeCorrection(int row);
  ui::CellUse cellUse(int row, int col) const;
};

}  // namespace tanrosen
