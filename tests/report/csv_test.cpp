#include "report/csv_writer.h"

#include <gtest/gtest.h>

#include "sample_document.h"
#include "text/error.h"

namespace {

using platform::Encoding;

TEST(Csv, HoldsTheHeadingsAndEveryRow) {
  EXPECT_EQ(
      report::csvOf(test::routeDocument(2, "起点"), Encoding::Utf8),
      "\xEF\xBB\xBF水準点,標高(m),備考\r\nA1,101.1234,起点\r\n,1.0000,\r\nA2,102.1234,起点\r\n,1.0000,\r\n");
}

TEST(Csv, QuotesWhatWouldPartAField) {
  const std::string csv = report::csvOf(test::routeDocument(1, "a,\"b\"\nc"), Encoding::Utf8);
  EXPECT_NE(csv.find("101.1234,\"a,\"\"b\"\"\nc\"\r\n"), std::string::npos);
}

TEST(Csv, IsWrittenInCp932WithoutAMark) {
  EXPECT_EQ(report::csvOf(test::routeDocument(0), Encoding::Cp932),
            "\x90\x85\x8F\x80\x93\x5F,\x95\x57\x8D\x82(m),\x94\xF5\x8D\x6C\r\n");
}

TEST(Csv, NamesTheCellThatCp932CannotHold) {
  try {
    report::csvOf(test::routeDocument(1, "𠮷"), Encoding::Cp932);
    FAIL() << "taken";
  } catch (const text::RuntimeError& error) {
    EXPECT_STREQ(error.what(), "1 行目の列「備考」の文字「𠮷」は、この CSV の文字コードにありません。");
  }
}

}  // namespace
