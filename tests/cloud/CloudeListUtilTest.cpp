// Names of cloud groups: the library's own for groups with sub-groups.
#include "cloud/CloudeListUtil.h"

#include "cloud/CloudMap.h"
#include "groups/GroupMgr.h"
#include "platform/services/tqCommon.h"
#include "tests/groups/GroupRecords.h"

namespace {

using groups::Answer;
using groups::Record;

constexpr int kCloudType = 201;

class CloudeListUtilTest : public StandInTest {
protected:
  // As if no cloud group had been loaded in this process yet.
  CloudeListUtilTest() { CCloudeListUtil::DefaultNames().RemoveAll(); }
  ~CloudeListUtilTest() override { CCloudeListUtil::DefaultNames().RemoveAll(); }

  void LoadAndRefresh() {
    cloudGroups.Load();
    CCloudeListUtil::Refresh(cloudGroups, lists);
  }
  static std::string CloudList(bool traditional) {
    return standin::ToAnsi(traditional ? "雲自選" : "云自选");
  }

  tq::CloudMap lists;
  CGroupMgr cloudGroups{kCloudType};
};

// They were those of the first load that had a group with sub-groups.
TEST_F(CloudeListUtilTest, DefaultNamesAreThoseOfTheFirstRefreshWhicheverGroupsThereAre) {
  const bool traditional = IsTraditionChinese() != 0;
  const std::string first = CloudList(traditional);
  Answer(kCloudType, "", {});
  LoadAndRefresh();
  standin::SetTraditional(!traditional);
  GroupInfo group = Record(kCloudType, "VORNG01", "the service's");
  group.bHasSubGroup = 1;
  Answer(kCloudType, "", {group});
  Answer(kCloudType, "VORNG01", {Record(kCloudType, "VORNG0101", "sub")});
  LoadAndRefresh();
  standin::SetTraditional(traditional);
  EXPECT_EQ(std::string(cloudGroups.GetAt(0)->GetInfo().szName), first);
}

} // namespace
