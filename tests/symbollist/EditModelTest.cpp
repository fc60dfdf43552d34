// Random editing, step by step against the model: lists, default index, the file's bytes and what
// the terminal is told.
#include <memory>
#include <random>
#include <string>

#include "manager/TQSymbolListMgr.h"
#include "platform/FileAccess.h"
#include "platform/System.h"
#include "platform/services/tqCommon.h"
#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"
#include "tests/symbollist/EditModel.h"

namespace {

// The list file, in memory; there is no other.
class OneFile : public tq::FileAccess {
public:
  tq::ReadResult ReadWholeFile(const char*, size_t, std::string& out) override {
    out = bytes;
    return tq::ReadResult::Ok;
  }
  tq::SaveResult SaveWholeFile(const char*, const void* data, size_t size) override {
    bytes.assign(static_cast<const char*>(data), size);
    return tq::SaveResult::Saved;
  }
  bool DirectoryExists(const char*) override { return true; }
  bool FileExists(const char* path) override {
    return !bytes.empty() && std::string(path).ends_with("\\SymbolList.xml");
  }
  tq::FileState StateOf(const char* path, tq::FileStamp& stamp) override {
    stamp = {};
    if (!FileExists(path))
      return tq::FileState::Missing;
    stamp.size = bytes.size();
    return tq::FileState::File;
  }
  bool RenameFile(const char*, const char*) override { return false; }
  bool RemoveFile(const char*) override { return false; }
  bool ListFiles(const char*, const char*, std::vector<std::string>& names) override {
    names.clear();
    return true;
  }
  std::string bytes;
};

unsigned guidCount = 0;

bool CountingGuid(tq::Guid& guid) {
  guid = {++guidCount, 0xABCD, 0xABCD, {1, 2, 3, 4, 5, 6, 7, 8}};
  return true;
}

std::string GuidText(unsigned number) {
  char text[37] = {};
  std::snprintf(text, sizeof(text), "%08X-ABCD-abcd-0102-030405060708", number);
  return text;
}

class EditModelTest : public StandInTest {
protected:
  EditModelTest() : before_(tq::SetFiles(&file_)), guids_(tq::SetGuidSource(CountingGuid)) {
    guidCount = 0;
    standin::RecordCalls(false);
    manager_ = std::make_unique<CTQSymbolListMgr>();
    EXPECT_EQ(manager_->Init("data", 0, 1, 0, nullptr, 0, 0), 1);
    model_.encoding = IsTraditionChinese() ? "big5" : "gb2312";
    model_.Save();
    for (const char* id : {"2330.TW", "2317.TW", "6488.TE", "7777.TW", "7777.TE"})
      model_.known.insert(id);
  }
  ~EditModelTest() override {
    manager_.reset();
    tq::SetFiles(before_);
    tq::SetGuidSource(guids_);
  }

  template <size_t N> const char* Pick(const char* const (&texts)[N]) { return texts[Random(N)]; }
  size_t Random(size_t below) { return random_() % below; }
  int Row() { return static_cast<int>(Random(9)) - 1; }

  const char* Id() { return Pick({"", "a", "A", "b", "ccc", "ZUSYSLIST1", "ZUSYSLIST2", "none"}); }
  const char* Name() { return Pick({"One", "ONE", "two", "two(1)", "x(2)", "\xB3\x5C", ""}); }
  const char* Entry() {
    return Pick(
        {"2330.TW", "2317.tw", "6488.TW", "6488.TE", "7777.TW", "GONE.TW", "Head:", "", ","});
  }
  std::string Ids() {
    std::string ids;
    for (size_t n = Random(7); n > 0; --n)
      ids += std::string(ids.empty() ? "" : Pick({",", ",", ",,"})) + Entry();
    return ids == "," ? "" : ids;
  }

  // The manager's result is the model's, or a refusal while services fail.
  void Agree(int result, int expected) {
    if (!failing_ || result != 0) {
      EXPECT_EQ(result, expected) << done_;
    }
  }

  void Step();
  void EditLists();
  void EditEntries();
  void Compare(const EditModel& expected);
  EditModel Actual();

  OneFile file_;
  tq::FileAccess* before_;
  tq::GuidSource guids_;
  // Each language takes half of the hundred thousand steps, others than the other one.
  static constexpr int kSteps = 50000;
  std::mt19937 random_{IsTraditionChinese() != 0 ? 20261121U : 20261122U};
  std::unique_ptr<CTQSymbolListMgr> manager_;
  EditModel model_;
  std::string done_; // the latest operation
  bool failing_ = false;
  size_t seen_ = 0; // notifications that are counted in the two below
  int notified_ = 0;
  int updated_ = 0;
};

EditModel EditModelTest::Actual() {
  EditModel actual = model_;
  actual.lists.clear();
  for (int i = 0; i < manager_->GetSymbolListCount(1); ++i) {
    CString id;
    CString name;
    CString ids;
    manager_->GetSymbolListInfo(i, id, name, ids, 1);
    actual.lists.push_back({id.GetString(), name.GetString(), ids.GetString()});
  }
  manager_->GetDefaultListIdx(actual.index);
  actual.file = file_.bytes;
  const auto& notifications = standin::Notifications();
  for (; seen_ < notifications.size(); ++seen_)
    ++(notifications[seen_].code == 40 ? notified_ : updated_);
  actual.notified = notified_;
  actual.updated = updated_;
  return actual;
}

void EditModelTest::Compare(const EditModel& expected) {
  const EditModel actual = Actual();
  ASSERT_EQ(actual.lists.size(), expected.lists.size()) << done_;
  for (size_t i = 0; i < actual.lists.size(); ++i) {
    ASSERT_EQ(actual.lists[i].id, expected.lists[i].id) << done_;
    ASSERT_EQ(actual.lists[i].name, expected.lists[i].name) << done_;
    ASSERT_EQ(actual.lists[i].ids, expected.lists[i].ids) << done_;
  }
  ASSERT_EQ(actual.index, expected.index) << done_;
  ASSERT_EQ(actual.file, expected.file) << done_;
  ASSERT_EQ(actual.notified, expected.notified) << done_;
  ASSERT_EQ(actual.updated, expected.updated) << done_;
}

void EditModelTest::EditEntries() {
  const std::string id = Id();
  const int row = Row();
  const std::string text = Entry();
  const bool flag = Random(2) == 0;
  switch (Random(5)) {
  case 0:
    done_ = "remove " + id + " " + std::to_string(row);
    Agree(manager_->DeleteSymbolList(id.c_str(), row), model_.Remove(id, row));
    break;
  case 1: {
    const int other = Row();
    done_ = "swap " + id + " " + std::to_string(row) + " " + std::to_string(other);
    Agree(manager_->SwapSymbolList(id.c_str(), row, other), model_.Swap(id, row, other));
    break;
  }
  case 2:
    done_ = "replace " + id + " " + std::to_string(row) + " " + text;
    Agree(manager_->ReplaceSymbolList(id.c_str(), row, text.c_str()),
          model_.Replace(id, row, text));
    break;
  default: {
    const bool heading = Random(4) == 0;
    done_ = "insert " + id + " " + std::to_string(row) + " " + text;
    Agree(manager_->InsertSymbolList(id.c_str(), row, text.c_str(), flag, heading),
          model_.Insert(id, row, text, flag, heading));
  }
  }
}

void EditModelTest::EditLists() {
  const std::string id = Id();
  const std::string name = Name();
  const std::string ids = Ids();
  switch (Random(8)) {
  case 0:
  case 1: {
    const bool append = Random(2) == 0;
    const bool overwrite = Random(2) == 0;
    done_ = "add " + id + "/" + name + "/" + ids;
    const std::string newId = GuidText(guidCount + 1);
    Agree(manager_->AddSymbolList(id.c_str(), 0, name.c_str(), ids.c_str(), append, overwrite),
          model_.Add(id, newId, name, ids, append, overwrite));
    break;
  }
  case 2:
    done_ = "delete " + id;
    Agree(manager_->DeleteSymbolList(id.c_str()), model_.Delete(id));
    break;
  case 3: {
    const TextPairs pairs = {{Pick({"2330", "23", "TW", ""}), Pick({"2317", "2330", "TW"})}};
    CStringArray from;
    CStringArray to;
    from.Add(pairs[0].first.c_str());
    to.Add(pairs[0].second.c_str());
    done_ = "rename " + pairs[0].first + " " + pairs[0].second;
    Agree(manager_->ReplaceID(&from, &to), model_.ReplaceIds(pairs));
    break;
  }
  case 4:
    done_ = "default index";
    manager_->SetDefaultIndex(model_.index = Row());
    break;
  case 5:
    done_ = "save and load";
    manager_->SaveSymbolList();
    manager_->LoadSymbolList();
    model_.Save();
    model_.Load();
    break;
  case 6: {
    done_ = "set";
    CPtrArray copies;
    manager_->GetSymbolList(copies, 1);
    std::vector<ModelList> model = model_.lists;
    while (copies.GetSize() > 6) {
      delete static_cast<CSymbolList*>(copies[0]);
      copies.RemoveAt(0);
      model.erase(model.begin());
    }
    EXPECT_EQ(manager_->SetSymbolList(&copies), 1);
    model_.Set(model);
    for (void* copy : copies)
      delete static_cast<CSymbolList*>(copy);
    break;
  }
  default: {
    CMapStringToString symbols;
    CMapStringToString names;
    symbols.SetAt(id.c_str(), ids.c_str());
    names.SetAt(id.c_str(), name.c_str());
    done_ = "update " + id + "/" + name + "/" + ids;
    EXPECT_EQ(manager_->UpdateSystemList(&symbols, &names), 1);
    model_.UpdateSystem({{id, ids}}, {{id, name}});
  }
  }
}

void EditModelTest::Step() {
  if (Random(3) == 0)
    EditLists();
  else
    EditEntries();
}

TEST_F(EditModelTest, RandomStepsAgreeWithTheModel) {
  for (int i = 0; i < kSteps; ++i) {
    Step();
    ASSERT_NO_FATAL_FAILURE(Compare(model_)) << "step " << i;
    ASSERT_FALSE(HasNonfatalFailure()) << "step " << i;
  }
  EXPECT_GT(model_.notified, 1000);
}

// A service that fails may cost a row, a look-up or a notification, never an id: each step is done
// as a whole or not at all.
TEST_F(EditModelTest, StepsWhoseServiceCallsFailAreDoneOrNot) {
  failing_ = true;
  int undone = 0;
  for (int i = 0; i < kSteps; ++i) {
    const EditModel before = model_;
    standin::FailCall("*", 1 + static_cast<int>(Random(4)));
    Step();
    standin::FailCall("*", 0);
    EditModel actual = Actual();
    const bool done =
        actual.lists == model_.lists && actual.index == model_.index && actual.file == model_.file;
    ASSERT_TRUE(done || (actual.lists == before.lists && actual.index == before.index &&
                         actual.file == before.file))
        << "step " << i << ", " << done_;
    ASSERT_FALSE(HasNonfatalFailure()) << "step " << i;
    undone += done ? 0 : 1;
    model_ = actual;
  }
  EXPECT_GT(undone, 0);
}

} // namespace
