#pragma once

#include <memory>

#include "daen/calculation.h"
#include "route/route_screen.h"

namespace daen {

/// The screen of the ellipsoidal correction (楕円補正量の計算): the operator opens a route, chooses a
/// section, types the latitudes of its ends, computes it, goes on to the next one, and saves route and
/// sections.
class fDHsei : public route::RouteScreen {
 public:
  fDHsei(const job::JobContext& context, ui::Desktop& desktop);

  std::string unit(const ui::Grid& grid, int col) const override;
  std::string rowName(const ui::Grid& grid, int row) const override;

  ui::Menu m0item{"m0item", this, "ファイル(&F)"};
  ui::ListBox LstHyousekiNo1{"LstHyousekiNo1", this};
  ui::ListBox LstHyousekiNo2{"LstHyousekiNo2", this};
  ui::Label lblHyousekiNo1{"lblHyousekiNo1", this};
  ui::Label lblHyousekiNo2{"lblHyousekiNo2", this};
  ui::TextBox txtStartIdo{"txtStartIdo", this};
  ui::TextBox txtStartFun{"txtStartFun", this};
  ui::TextBox txtEndIdo{"txtEndIdo", this};
  ui::TextBox txtEndFun{"txtEndFun", this};
  ui::ListBox LstSanshouDaen{"LstSanshouDaen", this};
  ui::Label lblSanshouDaenHoseichi{"lblSanshouDaenHoseichi", this};
  ui::Button CmdDaenCal{"CmdDaenCal", this, "OK"};
  ui::Label lblH{"lblH", this};
  ui::Label lblDaenHoseichi{"lblDaenHoseichi", this};
  ui::Grid Grid2{"Grid2", this};
  ui::Button CmdGrid2RowDel{"CmdGrid2RowDel", this, "選択行を削除"};
  ui::Button cmdMap{"cmdMap", this, "画像貼付(&H)"};
  ui::Label Label12{"Label12", this, "１２０％"};

  ui::Findings findings() const override;

 private:
  void Form_Resize() override;
  void setUpGrids() override;
  bool openData(const route::Selection& selection) override;
  bool reopenData(const route::Selection& selection) override;
  bool saveData(const route::Selection& selection) override;
  int entriesBesideTable() const override;
  route::SavedParts savedParts(const route::Selection& selection) const override;
  bool takeEntries(const ui::Findings& untaken) override;
  std::unique_ptr<route::SelectionScreen> another(ui::Desktop& desktop) const override;
  std::string pictureName() const override;
  report::Document tables(const std::string& route) const override;
  report::Diagram profile() const override;

  void arrange();
  void tieEvents();
  void keepNumeric(ui::TextBox& box);
  void showKeys(const route::Selection& selection);
  Section section() const;
  void CmdDaenCal_Click();
  void CmdGrid2RowDel_Click();
  void cmdMap_Click();

  const Formats formats_ = FcDaenInit(context_.grade());
};

}  // namespace daen
