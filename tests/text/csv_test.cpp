#include "text/csv.h"

#include <gtest/gtest.h>

namespace {

using text::CsvFault;
using text::CsvReader;

/// The records of a file, fields joined with "|", quoted ones in "<>".
std::vector<std::string> read(std::string_view bytes) {
  std::vector<std::string> lines;
  CsvReader reader(bytes);
  std::vector<text::CsvField> record;
  while (reader.next(record)) {
    std::string& line = lines.emplace_back();
    for (const auto& field : record) {
      if (&field != &record.front()) line += '|';
      line += field.quoted ? "<" + field.bytes + ">" : field.bytes;
    }
  }
  return lines;
}

/// "line:field" of the fault in a file; "" where it has none.
std::string faultOf(std::string_view bytes) {
  try {
    read(bytes);
  } catch (const CsvFault& fault) {
    return std::to_string(fault.line()) + ":" + std::to_string(fault.field());
  }
  return {};
}

using Lines = std::vector<std::string>;

TEST(CsvReader, PartsFieldsAndLines) {
  EXPECT_EQ(read("a,b\r\n1, 2 \n,\r\nx,"), (Lines{"a|b", "1| 2 ", "|", "x|"}));
  EXPECT_EQ(read(""), Lines{});
  EXPECT_EQ(read("a"), Lines{"a"});
  EXPECT_EQ(read("a\r\n\r\n"), (Lines{"a", ""}));
}

TEST(CsvReader, TakesQuotedFields) {
  EXPECT_EQ(read("\"a,b\",\"\",\"say \"\"hi\"\"\"\r\n\"1\r\n2\",\"\"\"\""),
            (Lines{"<a,b>|<>|<say \"hi\">", "<1\r\n2>|<\">"}));
}

TEST(CsvReader, CountsTheLinesInsideQuotes) {
  CsvReader reader("a\n\"1\n2\n3\",x\nlast\n");
  std::vector<text::CsvField> record;
  ASSERT_TRUE(reader.next(record) && reader.next(record));
  EXPECT_EQ(record[0].line, 2U);
  EXPECT_EQ(record[1].line, 4U);
  ASSERT_TRUE(reader.next(record));
  EXPECT_EQ(record[0].line, 5U);
  EXPECT_FALSE(reader.next(record));
}

TEST(CsvReader, NamesThePlaceOfAFault) {
  EXPECT_EQ(faultOf("a,b\r\n1,2\"\r\n"), "2:2");       // a quote in a plain field
  EXPECT_EQ(faultOf("a,b\n\"1\n2\" ,3\n"), "3:1");     // a blank behind a closing quote
  EXPECT_EQ(faultOf("a,b\n1,2\n3,\"4\n5\n6"), "3:2");  // never closed: where it was opened
  EXPECT_EQ(faultOf("a,b\n1,2\r3"), "2:2");            // a CR alone
  EXPECT_EQ(faultOf("a,\"b\"\r"), "1:2");
}

TEST(AppendField, QuotesWhatNeedsIt) {
  const auto written = [](std::string_view bytes, bool quoted = false) {
    std::string out;
    text::appendField(out, bytes, quoted);
    return out;
  };
  EXPECT_EQ(written("路線 1"), "路線 1");
  EXPECT_EQ(written(""), "");
  EXPECT_EQ(written("", true), "\"\"");
  EXPECT_EQ(written("a,b"), "\"a,b\"");
  EXPECT_EQ(written("\"x\""), "\"\"\"x\"\"\"");
  EXPECT_EQ(written("1\r\n2"), "\"1\r\n2\"");
  EXPECT_EQ(written("1\r2"), "\"1\r2\"");
}

}  // namespace
