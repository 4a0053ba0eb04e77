#include "script/runner.h"

#include <gtest/gtest.h>

#include <sstream>

#include "practice_program.h"
#include "script/headless.h"

namespace {

using script::Ending;

/// A practice program with headless hands, worked through one script.
class RunnerTest : public testing::Test {
 protected:
  Ending run(const std::string& lines, bool safeguards = false) {
    std::istringstream script(lines);
    return script::Runner(program, *hands, out, errors, safeguards).run(script);
  }

  /// A script of one line that must fail; the reason behind the line number.
  std::string refusal(const std::string& line) {
    errors.str("");
    EXPECT_EQ(run("\n" + line + "\nshow label\n"), Ending::Line) << line;
    EXPECT_EQ(errors.str().substr(0, 3), "2: ") << line;
    EXPECT_EQ(out.str(), "") << "nothing behind the failing line is done";
    const std::string reason = errors.str().substr(3);
    return reason.substr(0, reason.find('\n'));
  }

  const std::string& seen() { return program.seenScreen().seen; }

  std::unique_ptr<script::Hands> hands = script::headlessHands();
  test::PracticeProgram program{hands->desktop()};
  std::ostringstream out;
  std::ostringstream errors;
};

TEST_F(RunnerTest, AnEmptyScriptStartsTheProgramAndEnds) {
  EXPECT_EQ(run(""), Ending::Done);
  EXPECT_NE(program.screen(), nullptr);
  EXPECT_EQ(out.str() + errors.str(), "");
}

TEST_F(RunnerTest, AsksNothingWithoutSafeguards) {
  EXPECT_EQ(run("answer 消す\nclick asking"), Ending::Done);
  EXPECT_EQ(out.str() + seen(), "");
}

// The prepared answers are used up one by one; after them the safe button answers.
TEST_F(RunnerTest, AnswersQuestionsInLine) {
  EXPECT_EQ(run("answer 消す\nanswer やめる\nclick asking\nclick asking\nclick asking", true), Ending::Done);
  const std::string question = "question: \"路線「R1」の\\n入力を消しますか。\" -> ";
  EXPECT_EQ(out.str(), question + "\"消す\"\n" + question + "\"やめる\"\n" + question + "\"やめる\"\n");
  EXPECT_EQ(seen(), "answer0 answer1 answer1 ");
}

TEST_F(RunnerTest, EndsWhereAQuestionLacksTheButton) {
  EXPECT_EQ(run("answer 残す\nclick asking\nshow label", true), Ending::Line);
  EXPECT_EQ(errors.str(), "2: この質問に「残す」というボタンはありません。\n");
  EXPECT_EQ(seen(), "answer1 ") << "the safe button has answered";
}

TEST_F(RunnerTest, PrintsWhatTheChecksFind) {
  EXPECT_EQ(run("checks"), Ending::Done);
  EXPECT_EQ(out.str(), "checks: none\n");
}

TEST_F(RunnerTest, ShowsEveryKindOfControl) {
  EXPECT_EQ(run("show label\nshow frame\nshow menu\nshow mitem(1)\nshow button\nshow optSeika(1)\nshow box\n"
                "show list\nshow combo\nshow SSTab1\nshow Grid1"),
            Ending::Done);
  EXPECT_EQ(out.str(),
            "label: \"ラベル\\tの\\\"文\\\"\"\n"
            "frame: \"枠\"\n"
            "menu: \"ファイル(&F)\"\n"
            "mitem(1): \"終了(&X)\"\n"
            "button: \"押す\"\n"
            "optSeika(1): off \"前回\"\n"
            "box: \"\"\n"
            "list: 4 items, current -1\n  0 \"R001    \"\n  1 \"R002\"\n  2 \"#1\"\n  3 \"R002\"\n"
            "combo: 2 items, current -1\n  0 \"東\"\n  1 \"西 \\\"2\\\"\"\n"
            "SSTab1: page 0 of 2\n"
            "Grid1: 3 rows, 3 columns, current 1,0 to 1,0\n"
            "0\t水準点\t\t\n"
            "1\ta\\tb\\nc\\\\d\t\t\n"
            "2\t\t\"35.1\"\t\n");
}

TEST_F(RunnerTest, ShowingDoesNotTurnPages) {
  EXPECT_EQ(run("show deep\nsize deep\nshow SSTab1\nshow inner"), Ending::Done);
  EXPECT_EQ(out.str(), "deep: \"奥\"\ndeep: 0 x 0\nSSTab1: page 0 of 2\ninner: page 0 of 2\n");
}

TEST_F(RunnerTest, ShowsWhatIsDisabled) {
  EXPECT_EQ(run("show asleep"), Ending::Done);
  EXPECT_EQ(out.str(), "asleep: \"押せない\"\n");
}

TEST_F(RunnerTest, PressesButtonsAndOptions) {
  EXPECT_EQ(run("click button\nclick optSeika(1)\nclick optSeika(0)\nshow optSeika(0)\nshow optSeika(1)"),
            Ending::Done);
  EXPECT_EQ(seen(), "button second first ");
  EXPECT_EQ(out.str(), "optSeika(0): on \"今回\"\noptSeika(1): off \"前回\"\n");
}

TEST_F(RunnerTest, SelectsTheFirstItemWithTheTextTrailingBlanksAside) {
  EXPECT_EQ(run("select list R001\nselect list \"R002  \"\nselect combo \"西 \\\"2\\\"\""), Ending::Done);
  EXPECT_EQ(seen(), "list0 list1 combo1 ");
}

TEST_F(RunnerTest, SelectsByPosition) {
  EXPECT_EQ(run("select list #3\nselect list \"#1\"\nselect list #1"), Ending::Done);
  EXPECT_EQ(seen(), "list3 list2 list1 ");
}

TEST_F(RunnerTest, SelectingTheChosenItemAgainIsAnotherClick) {
  EXPECT_EQ(run("select combo #0\nselect combo #0"), Ending::Done);
  EXPECT_EQ(seen(), "combo0 combo0 ");
}

TEST_F(RunnerTest, EnteringIsOneChangeAndTypingOneForEachKey) {
  EXPECT_EQ(run("enter box 12.5\ntype box 東1\nenter box \"\"\nshow box"), Ending::Done);
  EXPECT_EQ(seen(), "<12.5> <12.5東> <12.5東1> <> ");
  EXPECT_EQ(out.str(), "box: \"\"\n");
}

TEST_F(RunnerTest, ClicksCellsAndPressesKeys) {
  EXPECT_EQ(run("cell Grid1 2 1\nkey Grid1 \"1{BackSpace 2}{{{Enter}\"\nshow Grid1"), Ending::Done);
  EXPECT_EQ(seen(), "cell 49 8 8 123 13 ");
  EXPECT_EQ(out.str().substr(0, out.str().find('\n')), "Grid1: 3 rows, 3 columns, current 2,1 to 2,1");
}

// The grid of the practice screen takes text in column 1; it shows what it holds and sums up nothing.
TEST_F(RunnerTest, PastesCopiesDeletesAndEdits) {
  EXPECT_EQ(run("cell Grid1 1 1\npaste Grid1 \"東\\t西\\n南\"\ncopy Grid1 1 0 2 1\nedit Grid1 2 1 北\n"
                "delete Grid1 1 1 1 1\ncopy Grid1 1 1 2 1\nfind Grid1 北\nfind Grid1 無"),
            Ending::Done);
  EXPECT_EQ(out.str(),
            "pasted: 2 taken, 1 passed over\n"
            "copied: \"a b c\\\\d\\t東\\n\\t南\"\n"
            "copied: \"\\n北\"\n"
            "found: 2,1\n"
            "found: nothing\n");
}

TEST_F(RunnerTest, GoesBackAndForwardThroughWhatWasDone) {
  EXPECT_EQ(run("undo Grid1\npaste Grid1 x\ncell Grid1 1 1\npaste Grid1 東\nundo Grid1\nundo Grid1\n"
                "redo Grid1\nredo Grid1\nshow Grid1"),
            Ending::Done);
  EXPECT_EQ(out.str(),
            "undo: nothing\npasted: 0 taken, 1 passed over\npasted: 1 taken, 0 passed over\n"
            "undo: 貼り付け\nundo: nothing\nredo: 貼り付け\nredo: nothing\n"
            "Grid1: 3 rows, 3 columns, current 1,1 to 1,1\n"
            "0\t水準点\t\t\n1\ta\\tb\\nc\\\\d\t東\t\n2\t\t\"35.1\"\t\n");
}

TEST_F(RunnerTest, RefusesWhatCannotBeEditedOrSelected) {
  EXPECT_EQ(refusal("edit Grid1 1 0 x"), "「Grid1」のセル 1,0 には入力できません。");
  EXPECT_EQ(refusal("edit Grid1 1 2 x"), "「Grid1」に、クリックできるセル 1,2 はありません。");
  EXPECT_EQ(refusal("copy Grid1 0 0 1 0"), "「Grid1」に、クリックできるセル 0,0 はありません。");
  EXPECT_EQ(refusal("delete Grid1 1 0 3 0"), "「Grid1」に、クリックできるセル 3,0 はありません。");
  EXPECT_EQ(refusal("undo label"), "「label」はラベルなので、この操作はできません。");
}

TEST_F(RunnerTest, BringsThePagesOfAControlToTheFrontOutermostFirst) {
  EXPECT_EQ(run("click deep\nshow SSTab1\nshow inner\ncell Grid1 1 0\nshow SSTab1"), Ending::Done);
  EXPECT_EQ(seen(), "deep cell ");
  EXPECT_EQ(out.str(), "SSTab1: page 1 of 2\ninner: page 1 of 2\nSSTab1: page 0 of 2\n");
}

TEST_F(RunnerTest, TurnsPages) {
  EXPECT_EQ(run("tab SSTab1 1\nshow SSTab1"), Ending::Done);
  EXPECT_EQ(out.str(), "SSTab1: page 1 of 2\n");
}

// 2000 / 3 = 666.67, 1000 − 0.6 = 999.4.
TEST_F(RunnerTest, ResizesAndMeasuresInWholeTwips) {
  EXPECT_EQ(run("resize 2000 1000\nsize box"), Ending::Done);
  EXPECT_EQ(out.str(), "box: 667 x 999\n");
}

TEST_F(RunnerTest, TellsMessagesSinceTheLastTime) {
  EXPECT_EQ(run("messages\nclick mitem(0)\nclick trapped\nmessages\nmessages"), Ending::Done);
  EXPECT_EQ(out.str(),
            "messages: none\n"
            "message: title=\"\" icon=none text=\"保存しました\"\n"
            "message: title=\"題\" icon=information text=\"二行\\nある\"\n"
            "message: title=\"trapped_Click\" icon=critical text=\"だめ\\\"です\\\"\"\n"
            "messages: none\n");
}

TEST_F(RunnerTest, TellsTheOpenScreenAndTheEnd) {
  EXPECT_EQ(run("screen\nclick mitem(0)\nclick mitem(1)\nscreen\nmessages\nmessages"), Ending::Done);
  EXPECT_EQ(out.str(),
            "screen: fPractice \"練習 \\\"1\\\"\"\n"
            "screen: none\n"
            "message: title=\"\" icon=none text=\"保存しました\"\n"
            "message: title=\"題\" icon=information text=\"二行\\nある\"\n"
            "messages: none\n");
}

TEST_F(RunnerTest, ClosesTheScreen) {
  EXPECT_EQ(run("close\nscreen"), Ending::Done);
  EXPECT_EQ(out.str(), "screen: none\n");
}

TEST_F(RunnerTest, AfterTheEndThereIsNothingToActOn) {
  for (const char* line :
       {"click button", "select list #0", "enter box 1", "type box 1", "cell Grid1 1 0", "key Grid1 1",
        "tab SSTab1 0", "resize 10 10", "close", "show label", "size label", "shot a.png"}) {
    errors.str("");
    EXPECT_EQ(run("close\n" + std::string(line)), Ending::Line) << line;
    EXPECT_EQ(errors.str(), "2: プログラムは終わっていて、開いている画面がありません。\n") << line;
  }
}

TEST_F(RunnerTest, SweepsAfterEveryCommand) {
  EXPECT_EQ(run("# note\n\nclick button\nscreen\nclose\nmessages\n"), Ending::Done);
  EXPECT_EQ(program.sweeps, 4);
}

TEST_F(RunnerTest, PicturesNeedAScreenAndLeaveNoTrace) {
  EXPECT_EQ(run("shot /nowhere/a.png"), Ending::Done);
  EXPECT_EQ(out.str(), "");
}

TEST_F(RunnerTest, TakesLineEndsAndMarksOfOtherEditors) {
  EXPECT_EQ(run("\xEF\xBB\xBF# note\r\nenter box ab\r\n\r\nshow box\r\n"), Ending::Done);
  EXPECT_EQ(out.str(), "box: \"ab\"\n");
}

TEST_F(RunnerTest, DoesWhatStandsBeforeAMalformedLine) {
  EXPECT_EQ(run("show box\n# note\n\nenter box \"1\nshow box"), Ending::Line);
  EXPECT_EQ(out.str(), "box: \"\"\n");
  EXPECT_EQ(errors.str(), "4: 引用符が閉じていません。\n");
}

TEST_F(RunnerTest, AnUnhandledErrorIsTheLastLine) {
  EXPECT_EQ(run("show button\nclick fail\nshow button"), Ending::Unhandled);
  EXPECT_EQ(out.str(), "button: \"押す\"\nunhandled error: オーバーフローしました。\n");
  EXPECT_EQ(errors.str(), "");
}

TEST_F(RunnerTest, AStartThatFailsIsUnhandled) {
  program.startError = "開けません";
  EXPECT_EQ(run("screen"), Ending::Unhandled);
  EXPECT_EQ(out.str(), "unhandled error: 開けません\n");
}

TEST_F(RunnerTest, ATranscriptThatCannotBeWrittenEndsTheRun) {
  out.setstate(std::ios::badbit);
  EXPECT_EQ(run("show label\nclick button"), Ending::Line);
  EXPECT_EQ(errors.str(), "1: 記録を書き出せません。\n");
  EXPECT_EQ(seen(), "");
}

TEST_F(RunnerTest, RefusesUnknownControls) {
  EXPECT_EQ(refusal("click nobody"), "画面「fPractice」に「nobody」はありません。");
  EXPECT_EQ(refusal("show Label"), "画面「fPractice」に「Label」はありません。");
  EXPECT_EQ(refusal("size mitem(9)"), "画面「fPractice」に「mitem(9)」はありません。");
}

TEST_F(RunnerTest, RefusesControlsOfAnotherKind) {
  EXPECT_EQ(refusal("click label"), "「label」はラベルなので、この操作はできません。");
  EXPECT_EQ(refusal("click frame"), "「frame」はフレームなので、この操作はできません。");
  EXPECT_EQ(refusal("click menu"), "「menu」はメニューなので、この操作はできません。");
  EXPECT_EQ(refusal("click list"), "「list」はリストボックスなので、この操作はできません。");
  EXPECT_EQ(refusal("select box 1"), "「box」はテキストボックスなので、この操作はできません。");
  EXPECT_EQ(refusal("select button #0"), "「button」はボタンなので、この操作はできません。");
  EXPECT_EQ(refusal("enter combo 1"), "「combo」はコンボボックスなので、この操作はできません。");
  EXPECT_EQ(refusal("type mitem(0) 1"), "「mitem(0)」はメニュー項目なので、この操作はできません。");
  EXPECT_EQ(refusal("cell SSTab1 1 1"), "「SSTab1」はタブなので、この操作はできません。");
  EXPECT_EQ(refusal("key box 1"), "「box」はテキストボックスなので、この操作はできません。");
  EXPECT_EQ(refusal("tab Grid1 0"), "「Grid1」は表なので、この操作はできません。");
  EXPECT_EQ(refusal("tab optSeika(0) 0"), "「optSeika(0)」はオプションボタンなので、この操作はできません。");
}

TEST_F(RunnerTest, RefusesItemsPagesAndCellsThatAreNotThere) {
  EXPECT_EQ(refusal("select list R003"), "「list」に項目「R003」はありません。");
  EXPECT_EQ(refusal("select list r002"), "「list」に項目「r002」はありません。");
  EXPECT_EQ(refusal("select list \" R002\""), "「list」に項目「 R002」はありません。");
  EXPECT_EQ(refusal("select list #4"), "「list」の項目は 4 個です。");
  EXPECT_EQ(refusal("tab SSTab1 2"), "「SSTab1」のページは 2 枚です。");
  for (const char* cell : {"0 0", "3 0", "1 3", "1 2"}) {
    const std::string comma = std::string(1, cell[0]) + "," + cell[2];
    EXPECT_EQ(refusal("cell Grid1 " + std::string(cell)),
              "「Grid1」に、クリックできるセル " + comma + " はありません。");
  }
}

TEST_F(RunnerTest, RefusesWhatIsDisabled) {
  EXPECT_EQ(refusal("click asleep"), "「asleep」は今は使えません。");
  EXPECT_EQ(refusal("click mitem(2)"), "「mitem(2)」は今は使えません。");
  EXPECT_EQ(refusal("tab sleepingTab 0"), "「sleepingTab」は今は使えません。");
  EXPECT_EQ(refusal("click behindSleep"), "「sleepingTab」は今は使えません。");
}

TEST_F(RunnerTest, RefusesControlCharactersAsKeys) {
  EXPECT_EQ(refusal("key Grid1 \"1\\t\""), "制御文字は打てません。");
  EXPECT_EQ(refusal("type box \"1\\n\""), "制御文字は打てません。");
}

}  // namespace
