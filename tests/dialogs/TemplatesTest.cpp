// The library's dialog templates as each system creates windows from them.
#include "dialogs/resources/DialogTable.h"
#include "platform/services/tqCommon.h"
#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"
#include "tests/support/User.h"

namespace {

struct Expected {
  unsigned id;
  const char* traditional;
  const char* simplified;
};

class TemplatesTest : public StandInTest, public testing::WithParamInterface<Expected> {};

TEST_P(TemplatesTest, ShowsItsTextsInTheTerminalsLanguage) {
  const tq::ResourceContext context(tq::LibraryResources());
  CDialog dialog(GetParam().id);
  std::string screen;
  const int code = RunDialog(dialog, [&](User& user) {
    screen = user.Screen();
    user.CloseByTitleBar();
  });
  EXPECT_EQ(code, CDialog::Cancelled);
  EXPECT_EQ(screen, IsTraditionChinese() != 0 ? GetParam().traditional : GetParam().simplified);
}

constexpr Expected kTemplates[] = {
    {1007,
     "=== 經濟指標查詢\nlabel: 地區:\ncombo 761: (focus)\nlabel: 類別:\ncombo 762:\ntable 781:\n",
     "=== 经济指标查询\nlabel: 地区:\ncombo 761: (focus)\nlabel: 类别:\ncombo 762:\ntable 781:\n"},
    {1008, "=== 國際商品查詢\nlabel: 類別:\ncombo 762: (focus)\ntable 781:\n",
     "=== 国际商品查询\nlabel: 类别:\ncombo 762: (focus)\ntable 781:\n"},
    {1009,
     "=== 國際期貨查詢\nlabel: 地區:\ncombo 761: (focus)\nlabel: 類別:\ncombo 762:\ntable 781:\n",
     "=== 国际期货查询\nlabel: 地区:\ncombo 761: (focus)\nlabel: 类别:\ncombo 762:\ntable 781:\n"},
};

INSTANTIATE_TEST_SUITE_P(All, TemplatesTest, testing::ValuesIn(kTemplates),
                         [](const auto& each) { return std::to_string(each.param.id); });

TEST(LibraryResourcesTest, StringsAreTheLibrarys) {
  const tq::ResourceContext context(tq::LibraryResources());
  EXPECT_EQ(tq::ResourceContext::Text(48006),
            standin::ToAnsi(IsTraditionChinese() != 0 ? "代碼" : "代码").c_str());
  EXPECT_TRUE(tq::ResourceContext::Text(48000).IsEmpty());
}

} // namespace
