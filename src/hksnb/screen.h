#pragma once

#include <string>

#include "hksnb/book_watch.h"
#include "hksnb/data.h"
#include "hksnb/kind.h"
#include "hksnb/place_names.h"
#include "hksnb/remembered.h"
#include "report/source.h"
#include "route/opening.h"
#include "ui/controls.h"
#include "ui/grid.h"
#include "ui/screen.h"

namespace hksnb {

/// The screen of the variation book (変動量計算簿・変動図). The work goes through three pages: 処理A chooses
/// the routes of a new book or a stored book, 処理B orders the bench marks and compares the results, 処理C
/// stores the book under its number.
class fHHksb : public ui::Screen, public report::Source {
 public:
  fHHksb(const job::JobContext& context, ui::Desktop& desktop);

  ui::Findings findings() const override;
  ui::Situation situation() const override;
  std::string unit(const ui::Grid& grid, int col) const override;
  std::string rowName(const ui::Grid& grid, int row) const override;

  ui::TabControl SSTab1{"SSTab1", this, 3};
  ui::Label lblShoriShiji{"lblShoriShiji", this, "処理A"};

  // 処理A: a new book
  ui::OptionButton optSeika0{"optSeika(0)", this, "正標高補正"};
  ui::OptionButton optSeika1{"optSeika(1)", this, "楕円補正"};
  ui::ListBox LstRosenNo1{"LstRosenNo1", this};
  ui::Button CmdExeC3{"CmdExeC3", this, "選択 →"};
  ui::Button CmdExeC4{"CmdExeC4", this, "← 戻す"};
  ui::ListBox LstRosenNo2{"LstRosenNo2", this};
  ui::Button CmdExeC2{"CmdExeC2", this, "次へ"};
  // 処理A: a stored book
  ui::OptionButton optSeika20{"optSeika2(0)", this, "正標高補正"};
  ui::OptionButton optSeika21{"optSeika2(1)", this, "楕円補正"};
  ui::ListBox LstHksnbNo{"LstHksnbNo", this};
  ui::Button Command1{"Command1", this, "次へ"};

  // 処理B
  ui::Grid Grid1{"Grid1", this};
  ui::Label lblHyousekiNo{"lblHyousekiNo", this, "水準点の順序"};
  ui::ListBox LstHyousekiNo{"LstHyousekiNo", this};
  ui::Label lblUe{"lblUe", this, "データを表示する順序"};
  ui::Button CmdExeD3{"CmdExeD3", this, "始点 →"};
  ui::Label lblStartNo{"lblStartNo", this};
  ui::Button CmdExeD4{"CmdExeD4", this, "終点 →"};
  ui::Label lblEndNo{"lblEndNo", this};
  ui::Button CmdExeD5{"CmdExeD5", this, "入れ替え"};
  ui::Label lblKansokuNen{"lblKansokuNen", this, "観測成果年度"};
  ui::TextBox txtKansokuNen{"txtKansokuNen", this};
  ui::Label lblHeikinNen{"lblHeikinNen", this, "平均成果年度"};
  ui::TextBox txtHeikinNen{"txtHeikinNen", this};
  ui::Button cmdSetNen{"cmdSetNen", this, "設定"};
  ui::Button CmdHendryocal{"CmdHendryocal", this, "変動量計算"};
  ui::Button CmdExeD1{"CmdExeD1", this, "戻る"};
  ui::Button CmdExeD2{"CmdExeD2", this, "次へ"};

  // 処理C
  ui::TextBox txtHksnbNo{"txtHksnbNo", this};
  ui::TextBox txtNewYearFr{"txtNewYearFr", this};
  ui::TextBox txtNewMonFr{"txtNewMonFr", this};
  ui::TextBox txtNewYearTo{"txtNewYearTo", this};
  ui::TextBox txtNewMonTo{"txtNewMonTo", this};
  ui::TextBox txtOldYearFr{"txtOldYearFr", this};
  ui::TextBox txtOldMonFr{"txtOldMonFr", this};
  ui::TextBox txtOldYearTo{"txtOldYearTo", this};
  ui::TextBox txtOldMonTo{"txtOldMonTo", this};
  ui::Button CmdExeE1{"CmdExeE1", this, "戻る"};
  ui::Button CmdExeE2{"CmdExeE2", this, "完了"};

  ui::MenuItem cmdMap{"cmdMap", this, "画像貼付(&H)"};
  ui::MenuItem m1item{"m1item", this, "終了(&X)"};

  report::Document document() const override;
  std::string diagramName() const override { return "変動図"; }
  report::DiagramOffer diagramOffer() const override;
  report::Figure diagram(const report::DiagramWish& wish) const override;
  void fileDiagram(const std::string& picture) override;

 private:
  void Form_Load() override;
  void Form_Resize() override;

  void putOnPages();
  void tieRouteLists();
  void tieSteps();
  void tieOrder();
  void tieBook();

  void newBook();
  void storedBook();
  using Fill = Status (fHHksb::*)();
  void showBook(const char* what, const ui::OptionButton& orthometric, Fill fill);
  void layOut(const ui::OptionButton& orthometric, Fill fill);
  std::string countText() const;
  int changedMonths() const;
  bool mayLeave() override;
  bool mayLoseBook(bool periodToo);
  Status fillFromRoutes();
  Status fillFromStore();
  void turn();
  void computeAmounts();
  bool save();
  bool replaceStored();
  void pastePicture();
  std::string pictureName() const;
  std::vector<std::string> otherBooks() const;

  void showOrder();
  ui::CellUse cellUse(int row, int col) const;
  void Grid1_KeyPress(char32_t code);
  void nextPrevious(int row);
  Period presentPeriod() const;
  void showPresent(const Period& period);
  void showPrevious(const Period& period);

  const job::JobContext context_;
  Kind kind_ = Kind::Orthometric;  // of the book in the grid
  PlaceNames places_;              // of its bench marks
  route::Opening opening_;         // the filling or reopening that laid it there
  mutable Remembered remembered_{context_};
  BookWatch watch_{context_};  // of what is stored under its number
  Period keptPeriod_;          // of the present observation, as filled, reopened or stored
};

}  // namespace hksnb
