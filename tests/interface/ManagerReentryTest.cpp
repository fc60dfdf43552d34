// The terminal calls the manager again while the manager asks the services for exchanges and
// symbols.
#include <functional>
#include <string>
#include <tuple>

#include "symboltable/SymbolTableMgr.h"
#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

struct Inner {
  const char* name;
  std::function<void(CTQSymbolListMgr&, const char* directory)> run;
};

const Inner kInner[] = {
    {"Init", [](CTQSymbolListMgr& manager,
                const char* directory) { manager.Init(directory, 0, 1, 0, nullptr, 0, 0); }},
    {"InitDefaultExchange",
     [](CTQSymbolListMgr& manager, const char*) { manager.InitDefaultExchange(); }},
    {"ReLoadDefaultExch",
     [](CTQSymbolListMgr& manager, const char*) { manager.ReLoadDefaultExch(1); }},
    {"SortAllSymbolByExch",
     [](CTQSymbolListMgr& manager, const char*) { manager.SortAllSymbolByExch(); }},
    {"RebuildSymbolTable",
     [](CTQSymbolListMgr& manager, const char*) {
       if (manager.GetSymbolTableMgr() != nullptr)
         manager.GetSymbolTableMgr()->RebuildSymbolTable();
     }},
    {"RebuildOne",
     [](CTQSymbolListMgr& manager, const char*) {
       if (manager.GetSymbolTableMgr() != nullptr)
         manager.GetSymbolTableMgr()->RebuildSymbolTable("TW", 1);
     }},
};

class ManagerReentryTest : public EditTest,
                           public testing::WithParamInterface<std::tuple<const char*, Inner>> {};

// Symptom: arrays of the service leaked, and tables that were deleted meanwhile were written to.
TEST_P(ManagerReentryTest, NothingFreedIsUsedAndNothingLeaks) {
  StartWith({"a/A/2330.TW"});
  const std::string path = directory.Path();
  const std::function<void()> outer[] = {
      [&] { manager.InitDefaultExchange(); },
      [&] { manager.ReLoadDefaultExch(1); },
      [&] { manager.SortAllSymbolByExch(); },
      [&] { manager.GetSymbolTableMgr()->RebuildSymbolTable("TW", 1); },
      [&] { manager.GetSymbolTableMgr()->InitAuthorizedExch(); },
      [&] { manager.Init(path.c_str(), 0, 1, 0, nullptr, 0, 0); },
  };
  for (const auto& operation : outer) {
    standin::OnCall(std::get<0>(GetParam()),
                    [&] { std::get<1>(GetParam()).run(manager, path.c_str()); });
    operation();
    standin::OnCall(std::get<0>(GetParam()), nullptr);
    EXPECT_EQ(Shape(), "a/A/2330.TW");
    EXPECT_EQ(manager.GetDefaultExchangeCount(), 2);
    SymbolInfo info = {};
    EXPECT_EQ(manager.GetSymbolInfo("6488", nullptr, 0, &info), 1);
    EXPECT_EQ(manager.CheckAllSymbolByExch(), 0);
  }
}

std::string NameOf(const testing::TestParamInfo<std::tuple<const char*, Inner>>& info) {
  return std::string(std::get<0>(info.param)) + "_" + std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(EachService, ManagerReentryTest,
                         testing::Combine(testing::Values("VLGetExch", "VLGetBaseAttrs2",
                                                          "VLGetSymbolInfos2", "TQSGetUserInfo"),
                                          testing::ValuesIn(kInner)),
                         NameOf);

} // namespace
