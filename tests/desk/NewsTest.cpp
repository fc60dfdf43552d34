// What the terminal is told, and what it makes of it.
#include "terminal/desk/News.h"

#include "platform/services/TQSProxy.h"
#include "platform/services/tqCommon.h"
#include "terminal/desk/Listening.h"
#include "tests/desk/DeskTest.h"

namespace {

using desk::News;

class NewsTest : public DeskTest {
protected:
  Texts Lines() const {
    Texts lines;
    for (int row = 0; row < news.LineCount(); ++row) {
      std::string line = Utf8(news.Cell(row, News::What));
      for (const int column : {News::Number, News::Content})
        line += "|" + Utf8(news.Cell(row, column));
      lines.push_back(line);
    }
    return lines;
  }

  News news;
};

TEST_F(NewsTest, HearsNotificationsLinesAndMessages) {
  const desk::Listening listening(news);
  TQSCall("", -1, 40, "ListCntChange");
  manager.AddSymbolList("C", 0, "three", "8069.TE", 1, 0);
  tqShowMessageStr("oh\nno", 0);
  tqShowDllMessage(nullptr, 48026, 0);
  EXPECT_EQ(Lines(),
            (Texts{"通知|40|ListCntChange", Said("日誌", "日志") + "|64|Add SymbolList", "通知|40|",
                   Said("訊息", "消息") + "||oh no", Said("訊息", "消息") + "|48026|"}));
}

TEST_F(NewsTest, HearsNothingAfterwards) {
  { const desk::Listening listening(news); }
  TQSCall("", -1, 40, "");
  EXPECT_EQ(news.LineCount(), 0);
}

TEST_F(NewsTest, ANotificationAboutListsIsAChangeOnce) {
  for (const int code : {4, 40, 41}) {
    news.Add(News::Kind::Told, code, "");
    const News::Change change = news.TakeChange();
    EXPECT_TRUE(change.lists) << code;
    EXPECT_EQ(change.cloudLists, code == 41) << code;
    EXPECT_FALSE(news.TakeChange().lists) << code;
  }
}

TEST_F(NewsTest, OtherNewsAreNoChange) {
  news.Add(News::Kind::Told, 5, "");
  news.Add(News::Kind::Logged, 40, "");
  news.Add(News::Kind::Shown, 41, "");
  EXPECT_FALSE(news.TakeChange().lists);
  news.ListsChanged();
  EXPECT_TRUE(news.TakeChange().lists);
}

TEST_F(NewsTest, ALineHasItsTime) {
  news.Add(News::Kind::Noted, 0, "");
  const std::string time = Utf8(news.Cell(0, News::Time));
  ASSERT_EQ(time.size(), 8U);
  EXPECT_EQ(std::string() + time[2] + time[5], "::");
}

TEST_F(NewsTest, OfTooManyLinesTheOldestGo) {
  for (int i = 0; i <= News::kMostLines; ++i)
    news.Add(News::Kind::Noted, i, "");
  EXPECT_EQ(news.LineCount(), News::kMostLines);
  EXPECT_EQ(news.Cell(0, News::Number), "1");
  EXPECT_TRUE(news.Cell(News::kMostLines, News::Content).IsEmpty());
  EXPECT_TRUE(news.Cell(-1, News::Content).IsEmpty());
}

} // namespace
