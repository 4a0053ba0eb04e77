#include "route/selection_set.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/small_job.h"
#include "ui/grid_helpers.h"

namespace {

using Items = std::vector<std::string>;

class SelectionSets : public testing::Test {
 protected:
  SelectionSets() {
    ui::FcEditSetLstDataKubun(list);
    add("3", "1002", "R002", "'0'");
    add("3", "1001", "R003", "'0'");
    add("3", "1001", "R001", "'0'");
    add("3", "1001", "R001", "'0'");
    add("3", "1001", "R002    ", "'0'");
    add("3", "1001", "R009", "'1'");
    add("3", "1003", "R010", "NULL");
    add("4", "1004", "R011", "'0'");  // another job
  }

  void add(const char* jobId, const char* project, const char* route, const char* category) {
    job.sql(std::string("INSERT INTO KansokuSeikaData (JobId, 事業番号, 路線番号, DataKubun) VALUES ('") +
            jobId + "','" + project + "','" + route + "'," + category + ")");
  }

  route::SelectionSet set(route::CategoryRule rule = route::CategoryRule::Plain, bool withList = true) {
    return {job.context(), "KansokuSeikaData", withList ? &list : nullptr, projects, routes, rule};
  }

  test::SmallJob job;
  ui::ListBox list{"LstDataKubun", nullptr};
  ui::ComboBox projects{"cmbJIgyoBango1", nullptr};
  ui::ComboBox routes{"cmbRosenBango1", nullptr};
};

TEST_F(SelectionSets, ListTheProjectsOfTheJobAndCategoryOnceInOrder) {
  auto chosen = set();
  list.setListIndex(0);
  chosen.fillProjects();
  EXPECT_EQ(projects.items(), (Items{"1001", "1002"}));
  EXPECT_EQ(projects.listIndex(), -1);
  list.setListIndex(1);
  chosen.fillProjects();
  EXPECT_EQ(projects.items(), Items{"1001"});
  list.setListIndex(2);
  chosen.fillProjects();
  EXPECT_EQ(projects.items(), Items{});
}

TEST_F(SelectionSets, NeverFindRecordsWithoutACategory) {
  auto chosen = set(route::CategoryRule::WithNull);
  list.setListIndex(0);
  chosen.fillProjects();
  EXPECT_EQ(projects.items(), (Items{"1001", "1002"}));
}

TEST_F(SelectionSets, ListTheRoutesOfTheProjectAsTheyAreStored) {
  auto chosen = set();
  list.setListIndex(0);
  chosen.fillProjects();
  projects.setListIndex(0);
  chosen.fillRoutes();
  EXPECT_EQ(routes.items(), (Items{"R001", "R002    ", "R003"}));
  chosen.fillRoutes();
  EXPECT_EQ(routes.count(), 3);
}

TEST_F(SelectionSets, EmptyTheRoutesWhenAnotherCategoryIsChosen) {
  auto chosen = set();
  list.setListIndex(0);
  chosen.fillProjects();
  projects.setListIndex(1);
  chosen.fillRoutes();
  EXPECT_EQ(routes.items(), Items{"R002"});
  chosen.fillProjects();
  EXPECT_EQ(routes.items(), Items{});
}

TEST_F(SelectionSets, SayWhatIsChosenWithTheRouteListedBefore) {
  auto chosen = set();
  list.setListIndex(0);
  EXPECT_EQ(chosen.selection(), (route::Selection{"", "", "0", ""}));
  chosen.fillProjects();
  projects.setListIndex(0);
  chosen.fillRoutes();
  EXPECT_EQ(chosen.selection(), (route::Selection{"1001", "", "0", ""}));
  routes.setListIndex(0);
  EXPECT_EQ(chosen.selection(), (route::Selection{"1001", "R001", "0", ""}));
  routes.setListIndex(2);
  EXPECT_EQ(chosen.selection(), (route::Selection{"1001", "R003", "0", "R002    "}));
  EXPECT_EQ(chosen.categoryText(), "0:1往復 本作業、検測、取付");
}

TEST_F(SelectionSets, WorkInCategoryZeroWithoutAList) {
  auto chosen = set(route::CategoryRule::Plain, false);
  chosen.fillProjects();
  EXPECT_EQ(projects.items(), (Items{"1001", "1002"}));
  EXPECT_EQ(chosen.selection().dataKubun, "0");
  EXPECT_EQ(chosen.categoryText(), "");
}

TEST_F(SelectionSets, FindNothingWithoutAChoice) {
  auto chosen = set();
  chosen.fillProjects();
  EXPECT_EQ(projects.items(), Items{});
  list.setListIndex(0);
  chosen.fillRoutes();  // no project chosen
  EXPECT_EQ(routes.items(), Items{});
}

TEST_F(SelectionSets, RaiseAnErrorOfTheDatabase) {
  route::SelectionSet missing(job.context(), "NoSuchTable", &list, projects, routes);
  list.setListIndex(0);
  EXPECT_THROW(missing.fillProjects(), db::Error);
}

class OpenedRoutes : public testing::Test {
 protected:
  ui::Label jigyo{"lblJigyobango", nullptr};
  ui::Label rosen{"lblRosenbango", nullptr};
  ui::Label kubun{"lblDatakubun", nullptr};
};

TEST_F(OpenedRoutes, KeepTheKeysInTheLabels) {
  route::OpenedRoute opened(jigyo, rosen, &kubun);
  EXPECT_FALSE(opened.isOpen());
  opened.show({"1001", "R002", "1", "R001"}, "1:2往復 基準水準点取付");
  EXPECT_EQ(jigyo.text(), "1001");
  EXPECT_EQ(rosen.text(), "R002");
  EXPECT_EQ(kubun.text(), "1:2往復 基準水準点取付");
  EXPECT_TRUE(opened.isOpen());
  EXPECT_EQ(opened.selection(), (route::Selection{"1001", "R002", "1", ""}));
  opened.clear();
  EXPECT_FALSE(opened.isOpen());
  EXPECT_EQ(jigyo.text() + rosen.text() + kubun.text(), "");
}

TEST_F(OpenedRoutes, AreOpenOnlyWhenEveryLabelShowsSomething) {
  route::OpenedRoute opened(jigyo, rosen, &kubun);
  opened.show({"1001", "R002", "1", ""}, "");
  EXPECT_FALSE(opened.isOpen());
  opened.show({"1001", "", "1", ""}, "1");
  EXPECT_FALSE(opened.isOpen());
  opened.show({"", "R002", "1", ""}, "1");
  EXPECT_FALSE(opened.isOpen());
}

TEST_F(OpenedRoutes, AreOfCategoryZeroWithoutALabelForIt) {
  route::OpenedRoute opened(jigyo, rosen, nullptr);
  opened.show({"1001", "R002", "3", ""}, "3: 片道 検測");
  EXPECT_TRUE(opened.isOpen());
  EXPECT_EQ(opened.selection(), (route::Selection{"1001", "R002", "0", ""}));
}

}  // namespace
