#include "odbc/data_source.h"

#include <gtest/gtest.h>

#include "odbc/utf16.h"

namespace {

TEST(DataSource, KeysOfTheOdbcSectionAlone) {
  const db::DataSource source = db::readDataSource(
      "\xEF\xBB\xBF[その他]\r\nDRIVER=no\r\n[odbc]\r\n; a remark\r\nDriver = {My "
      "Driver}\r\nDBQ=C:\\現場\\a.mdb\r\n[End]\r\nUID=x\r\n");
  EXPECT_EQ(source.value("DRIVER"), "My Driver");
  EXPECT_EQ(source.value("dbq"), "C:\\現場\\a.mdb");
  EXPECT_EQ(source.value("UID"), "");
  EXPECT_EQ(source.connectionString(), "Driver={My Driver};DBQ=C:\\現場\\a.mdb;");
}

TEST(DataSource, ATextWithoutTheSectionHasNoKeys) {
  EXPECT_EQ(db::readDataSource("DRIVER=x\n").connectionString(), "");
  EXPECT_EQ(db::readDataSource("").connectionString(), "");
}

TEST(DataSource, ValuesWithSpecialCharactersStandInBraces) {
  db::DataSource source;
  source.setDefault("PWD", "a;b}c");
  source.setDefault("pwd", "later");
  EXPECT_EQ(source.connectionString(), "PWD={a;b}}c};");
}

TEST(DataSource, AKeyStandsOnceAndPartsNoOtherText) {
  EXPECT_EQ(db::readDataSource("[ODBC]\nUID=\nUID=tanaka\nuid=suzuki\n").connectionString(), "UID=tanaka;");
  EXPECT_EQ(db::readDataSource("[ODBC]\n=x\nA;B=1\n{C}=2\nD=3\n").connectionString(), "D=3;");
}

TEST(Utf16, TextsComeBack) {
  for (const char* text : {"", "abc", "水準点『一』", "髙𠮷"}) EXPECT_EQ(db::utf8(db::utf16(text)), text);
  EXPECT_EQ(db::utf16("𠮷").size(), 2U);  // U+20BB7 is a pair of surrogates
}

TEST(Utf16, WhatIsNoTextBecomesTheReplacement) {
  EXPECT_EQ(db::utf8(std::u16string{0xD842}), "\xEF\xBF\xBD");
  EXPECT_EQ(db::utf16("\xFF"), std::u16string{0xFFFD});
}

}  // namespace
