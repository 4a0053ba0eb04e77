#include "hksnb/reference_dates.h"

#include "hksnb/book_screen.h"

namespace {

using Texts = std::vector<std::string>;

class ReferenceDates : public test::BookScreen {
 protected:
  void variation(std::string_view route, std::string_view date) const {
    job.sql(
        "INSERT INTO KansokuSeikaDataHend (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号,"
        " 基準観測日) VALUES ('3','1001','" +
        std::string(route) + "','0',1,'A'," + std::string(date) + ")");
  }

  /// The reference date in the heading of the public form, which is the second part; "" for none.
  std::string printed() {
    newBook();
    const report::Document document = screen.document();
    const report::Part& form = document.parts.at(1);
    EXPECT_EQ(form.title, "変動計算簿");
    for (const report::Field& field : form.fields)
      if (field.name == "基準日") return field.text;
    return {};
  }
};

TEST_F(ReferenceDates, ThatOfTheSavedVariationStandsOnThePublicForm) {
  variation("01A00101", "'2022/8/19'");
  EXPECT_EQ(printed(), "2022/08/19");
}

TEST_F(ReferenceDates, RoutesWithDifferentOnesNameThemInTheirOrder) {
  variation("01A00101", "'2022/09/01'");
  variation("01A00201", "'2022/08/19'");
  EXPECT_EQ(printed(), "2022/09/01、2022/08/19");
}

TEST_F(ReferenceDates, OneThatRoutesShareIsNamedOnce) {
  variation("01A00101", "'2022/08/19'");
  variation("01A00201", "'2022/08/19'");
  EXPECT_EQ(printed(), "2022/08/19");
}

TEST_F(ReferenceDates, WithoutAnyTheLineIsLeftOut) {
  EXPECT_EQ(printed(), "");
  variation("01A00101", "NULL");
  EXPECT_EQ(hksnb::referenceDates(hksnb::bookPoints(screen.Grid1), job.context()), Texts{});
}

TEST_F(ReferenceDates, AJobWithoutVariationResultsHasNone) {
  newBook();
  job.sql("DROP TABLE KansokuSeikaDataHend");
  EXPECT_EQ(hksnb::referenceDates(hksnb::bookPoints(screen.Grid1), job.context()), Texts{});
}

}  // namespace
