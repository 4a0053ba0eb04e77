#include "script/command.h"

#include <gtest/gtest.h>

#include "script/line_error.h"

namespace {

using script::parseLine;

template <class Kind>
Kind parsed(std::string_view line) {
  const auto command = parseLine(line);
  if (!command) throw std::runtime_error("passed over");
  return std::get<Kind>(*command);
}

std::string reasonOf(std::string_view line) {
  try {
    parseLine(line);
  } catch (const script::LineError& error) {
    return error.what();
  }
  return "understood";
}

TEST(ParseLine, PassesOverBlankLinesAndComments) {
  EXPECT_FALSE(parseLine(""));
  EXPECT_FALSE(parseLine(" \t"));
  EXPECT_FALSE(parseLine("# grade: 1"));
  EXPECT_FALSE(parseLine("#\"\xFF")) << "a comment may hold anything";
}

TEST(ParseLine, OnlyTheFirstCharacterMakesAComment) {
  EXPECT_EQ(reasonOf(" # note"), "「#」という操作はありません。");
}

TEST(ParseLine, NamesWithIndex) {
  EXPECT_EQ(parsed<script::Click>("click mitem(1)").name, "mitem(1)");
  EXPECT_EQ(parsed<script::Show>("show optSeika(0)").name, "optSeika(0)");
  EXPECT_EQ(parsed<script::SizeOf>("size Grid1").name, "Grid1");
}

TEST(ParseLine, SelectByTextOrPosition) {
  EXPECT_EQ(parsed<script::SelectText>("select cmb R001").item, "R001");
  EXPECT_EQ(parsed<script::SelectText>("select cmb \"R 1 \"").item, "R 1 ");
  EXPECT_EQ(parsed<script::SelectAt>("select cmb #12").index, 12);
  EXPECT_EQ(parsed<script::SelectText>("select cmb \"#12\"").item, "#12") << "quotes make it a text";
  EXPECT_EQ(parsed<script::SelectText>("select cmb #").item, "#");
  EXPECT_EQ(parsed<script::SelectText>("select cmb #1a").item, "#1a");
  EXPECT_EQ(reasonOf("select cmb #99999999999"), "「99999999999」は 0 以上の整数ではありません。");
}

TEST(ParseLine, Texts) {
  EXPECT_EQ(parsed<script::Enter>("enter txt \"\"").text, "");
  EXPECT_EQ(parsed<script::Enter>(R"(enter txt "a\tb")").text, "a\tb");
  EXPECT_EQ(parsed<script::Type>("type txt {1}").characters, U"{1}");
  EXPECT_EQ(parsed<script::Keys>("key Grid1 1{Enter}").codes, (std::u32string{U'1', 13}));
}

TEST(ParseLine, Numbers) {
  const auto cell = parsed<script::Cell>("cell Grid1 2 13");
  EXPECT_EQ(cell.row, 2);
  EXPECT_EQ(cell.col, 13);
  EXPECT_EQ(parsed<script::Page>("tab SSTab1 0").page, 0);
  const auto resize = parsed<script::Resize>("resize 8970 6075");
  EXPECT_EQ(resize.width, 8970);
  EXPECT_EQ(resize.height, 6075);
}

TEST(ParseLine, ActsOnAGrid) {
  EXPECT_EQ(parsed<script::Paste>(R"(paste Grid1 "1\t2\n3")").text, "1\t2\n3");
  EXPECT_EQ(parsed<script::Copy>("copy Grid1 1 2 3 4").from, (ui::CellPlace{1, 2}));
  EXPECT_EQ(parsed<script::Copy>("copy Grid1 1 2 3 4").to, (ui::CellPlace{3, 4}));
  EXPECT_EQ(parsed<script::Delete>("delete Grid1 1 2 3 4").to, (ui::CellPlace{3, 4}));
  EXPECT_EQ(parsed<script::Edit>("edit Grid1 2 3 \"橋 上\"").cell, (ui::CellPlace{2, 3}));
  EXPECT_EQ(parsed<script::Edit>("edit Grid1 2 3 \"橋 上\"").text, "橋 上");
  EXPECT_EQ(parsed<script::Undo>("undo Grid1").grid, "Grid1");
  EXPECT_EQ(parsed<script::Redo>("redo Grid2").grid, "Grid2");
  EXPECT_EQ(parsed<script::Find>("find Grid1 BM1").text, "BM1");
  EXPECT_NE(reasonOf("copy Grid1 1 2"), "understood");
  EXPECT_NE(reasonOf("delete Grid1 1 2 3 -4"), "understood");
}

TEST(ParseLine, NumbersMustBeWhole) {
  for (const char* bad : {"-1", "1.5", "+1", "a", "\"\"", "1a", "2147483648"})
    EXPECT_NE(reasonOf("cell Grid1 1 " + std::string(bad)), "understood") << bad;
  EXPECT_EQ(reasonOf("tab SSTab1 x"), "「x」は 0 以上の整数ではありません。");
}

TEST(ParseLine, WindowsHaveASizeThatScreensHave) {
  for (const char* bad : {"0 10", "10 0", "240001 10", "10 240001"})
    EXPECT_EQ(reasonOf("resize " + std::string(bad)), "画面の大きさは 1 から 240000 までの twip です。")
        << bad;
}

TEST(ParseLine, CommandsWithoutArguments) {
  EXPECT_NO_THROW(parsed<script::Close>("close"));
  EXPECT_NO_THROW(parsed<script::WhichScreen>("screen"));
  EXPECT_NO_THROW(parsed<script::Messages>("\"messages\""));
}

TEST(ParseLine, PicturesArePng) {
  EXPECT_EQ(parsed<script::Shot>("shot a/b.PNG").path, "a/b.PNG");
  EXPECT_EQ(reasonOf("shot a.bmp"), "画面の写しのファイル名は「.png」で終わります。");
  EXPECT_EQ(reasonOf("shot .png"), "画面の写しのファイル名は「.png」で終わります。");
}

TEST(ParseLine, UnknownCommands) {
  EXPECT_EQ(reasonOf("press x"), "「press」という操作はありません。");
  EXPECT_EQ(reasonOf("Click x"), "「Click」という操作はありません。");
}

TEST(ParseLine, TheNumberOfWordsMustFit) {
  const std::string hint = "」と書きます（空白を含む語は引用符で囲みます）。";
  EXPECT_EQ(reasonOf("click"), "「click NAME" + hint);
  EXPECT_EQ(reasonOf("click a b"), "「click NAME" + hint);
  EXPECT_EQ(reasonOf("select a"), "「select NAME TEXT" + hint);
  EXPECT_EQ(reasonOf("enter a b c"), "「enter NAME TEXT" + hint);
  EXPECT_EQ(reasonOf("type a"), "「type NAME TEXT" + hint);
  EXPECT_EQ(reasonOf("cell a 1"), "「cell GRID ROW COL" + hint);
  EXPECT_EQ(reasonOf("key Grid1 {BackSpace 2}"), "「key GRID TEXT" + hint);
  EXPECT_EQ(reasonOf("tab a"), "「tab NAME N" + hint);
  EXPECT_EQ(reasonOf("resize 1"), "「resize WIDTH HEIGHT" + hint);
  EXPECT_EQ(reasonOf("close now"), "「close" + hint);
  EXPECT_EQ(reasonOf("show"), "「show NAME" + hint);
  EXPECT_EQ(reasonOf("size"), "「size NAME" + hint);
  EXPECT_EQ(reasonOf("screen x"), "「screen" + hint);
  EXPECT_EQ(reasonOf("messages x"), "「messages" + hint);
  EXPECT_EQ(reasonOf("shot"), "「shot FILE.png" + hint);
}

}  // namespace
