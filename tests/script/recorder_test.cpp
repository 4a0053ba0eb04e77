#include "script/recorder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using ui::OperatorAct;

/// Acts one after another, none within another.
class Recorded {
 public:
  Recorded& act(const OperatorAct& act) {
    recorder.began(act);
    recorder.ended();
    return *this;
  }
  std::string text() {
    recorder.finish();
    return out.str();
  }

  std::ostringstream out;
  script::Recorder recorder{out};
};

TEST(Recorder, WritesActsInTheWordsOfAScript) {
  Recorded recorded;
  recorded.act({"click", "Command1"})
      .act({"select", "LstDataKubun", {"0:1往復 本作業、検測、取付"}})
      .act({"select", "lst", {"#1"}})
      .act({"select #", "lst", {"3"}})
      .act({"enter", "txt", {""}})
      .act({"tab", "SSTab1", {"1"}})
      .act({"edit", "Grid1", {"2", "2", "a\"b"}})
      .act({"close", ""});
  EXPECT_EQ(
      recorded.text(),
      "click Command1\nselect LstDataKubun \"0:1往復 本作業、検測、取付\"\nselect lst \"#1\"\nselect lst #3\n"
      "enter txt \"\"\ntab SSTab1 1\nedit Grid1 2 2 \"a\\\"b\"\nclose\n");
}

TEST(Recorder, KeysCharactersAndSizesOneAfterAnotherAreOneLine) {
  Recorded recorded;
  recorded.act({"key", "Grid1", {"1"}})
      .act({"key", "Grid1", {"2"}})
      .act({"key", "Grid1", {"{Enter}"}})
      .act({"key", "Grid2", {"3"}})
      .act({"type", "txt", {"a"}})
      .act({"type", "txt", {"b"}})
      .act({"resize", "", {"100", "200"}})
      .act({"resize", "", {"300", "400"}});
  EXPECT_EQ(recorded.text(), "key Grid1 12{Enter}\nkey Grid2 3\ntype txt ab\nresize 300 400\n");
}

TEST(Recorder, WhatAnActDoesByItselfIsNoAct) {
  Recorded recorded;
  recorded.recorder.began({"click", "mitem(2)"});
  recorded.recorder.began({"close", ""});
  recorded.recorder.ended();
  recorded.recorder.ended();
  EXPECT_EQ(recorded.text(), "click mitem(2)\n");
}

/// Only where something is done is it of any matter how the operator came there.
TEST(Recorder, CellsThatWereOnlyPassedAreNotWritten) {
  Recorded recorded;
  recorded.act({"go", "Grid1", {"2", "2"}})
      .act({"go", "Grid1", {"4", "2"}})
      .act({"key", "Grid1", {"5"}})
      .act({"go", "Grid1", {"6", "2"}})
      .act({"key", "Grid1", {"7"}})
      .act({"go", "Grid1", {"8", "2"}})
      .act({"edit", "Grid1", {"8", "2", "9"}})
      .act({"go", "Grid1", {"1", "0"}});
  EXPECT_EQ(recorded.text(), "cell Grid1 4 2\nkey Grid1 5\ncell Grid1 6 2\nkey Grid1 7\nedit Grid1 8 2 9\n");
}

TEST(Recorder, AFillIsThePasteThatItComesTo) {
  Recorded recorded;
  recorded.act({"go", "Grid1", {"2", "2"}})
      .act({"mark", "Grid1", {"2", "2"}})
      .act({"fill", "Grid1", {"2", "2", "1\n\n1\n"}})
      .act({"go", "Grid1", {"9", "3"}})
      .act({"mark", "Grid1", {"8", "2"}})
      .act({"paste", "Grid1", {"4\t5"}});
  EXPECT_EQ(recorded.text(),
            "cell Grid1 2 2\npaste Grid1 \"1\\n\\n1\\n\"\ncell Grid1 8 2\npaste Grid1 \"4\\t5\"\n");
}

TEST(Recorder, AnswersStandBeforeTheActThatAsked) {
  Recorded recorded;
  recorded.act({"click", "Command1"});
  recorded.recorder.began({"click", "mitem(1)"});
  recorded.recorder.answered("保存する");
  recorded.recorder.answered("やめる");
  recorded.recorder.ended();
  recorded.act({"close", ""});
  EXPECT_EQ(recorded.text(), "click Command1\nanswer 保存する\nanswer やめる\nclick mitem(1)\nclose\n");
}

TEST(Recorder, WhatIsLookedAtStandsInItsPlace) {
  Recorded recorded;
  recorded.act({"key", "Grid1", {"1"}});
  recorded.recorder.looked("show Grid1");
  recorded.act({"key", "Grid1", {"2"}});
  EXPECT_EQ(recorded.text(), "key Grid1 1\nshow Grid1\nkey Grid1 2\n");
}

}  // namespace
