// No operation destroys what stands in a file and is not in memory: for each way in which that may
// come about, each operation is run on a disk that fails at each of its steps in turn, once or from
// there on. Whatever the operation answers, the bytes are in their file afterwards, or in a copy
// beside it.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "platform/services/tqCommon.h"
#include "platform/xml/XmlText.h"
#include "terminal/StandIn.h"
#include "tests/operations/Operations.h"
#include "tests/operations/Subject.h"
#include "tests/support/LanguageTurn.h"

namespace operations {
namespace {

// The disk is in memory, and no system's: under Wine each fifth step is enough.
#ifdef _WIN32
constexpr int kStride = 5;
#else
constexpr int kStride = 1;
#endif

constexpr char kWorking[] = "memory\\SymbolList.xml";
constexpr char kBackup[] = "memory\\SymbolList_Backup.xml";
constexpr char kThird[] = "memory\\Third.xml";
constexpr char kTrading[] = "memory\\TSList.xml";
constexpr char kVictim[] = "<List ID='victim' Name='V' Value='1101.TW' Flag='0'/>";

// The subject's disk, of which one step fails, or all from one on. A failing save changes nothing.
class FailingDisk : public tq::FileAccessWrapper {
public:
  explicit FailingDisk(tq::FileAccess& disk)
      : FileAccessWrapper(disk), before_(tq::SetFiles(this)) {}
  ~FailingDisk() override { tq::SetFiles(before_); }
  FailingDisk(const FailingDisk&) = delete;
  FailingDisk& operator=(const FailingDisk&) = delete;

  // Begins to count steps; `step` is the first that fails, from 0; -1: none.
  void FailAt(int step, bool fromThereOn) {
    steps = 0;
    step_ = step;
    fromThereOn_ = fromThereOn;
  }

  tq::ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) override {
    bytes.clear();
    if (tooLarge && limit <= tq::kXmlSizeLimit)
      return tq::ReadResult::TooLarge;
    return unreadable || Fails() ? tq::ReadResult::Failed
                                 : FileAccessWrapper::ReadWholeFile(path, limit, bytes);
  }
  tq::SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) override {
    return Fails() ? tq::SaveResult::Failed : FileAccessWrapper::SaveWholeFile(path, bytes, size);
  }
  tq::FileState StateOf(const char* path, tq::FileStamp& stamp) override {
    stamp = {};
    return Fails() ? tq::FileState::Unknown : FileAccessWrapper::StateOf(path, stamp);
  }
  bool RenameFile(const char* from, const char* to) override {
    return !Fails() && FileAccessWrapper::RenameFile(from, to);
  }
  bool RemoveFile(const char* path) override {
    return !Fails() && FileAccessWrapper::RemoveFile(path);
  }
  bool ListFiles(const char* directory, const char* prefix,
                 std::vector<std::string>& names) override {
    names.clear();
    return !Fails() && FileAccessWrapper::ListFiles(directory, prefix, names);
  }

  int steps = 0; // since FailAt
  bool unreadable = false;
  bool tooLarge = false;

private:
  bool Fails() {
    const int step = steps++;
    return step_ >= 0 && (step == step_ || (fromThereOn_ && step > step_));
  }

  int step_ = -1;
  bool fromThereOn_ = false;
  tq::FileAccess* before_;
};

std::string FileOf(const std::string& lists) {
  return std::string("<?xml version='1.0' encoding='") +
         (IsTraditionChinese() ? "big5" : "gb2312") + "' ?><Result><SymbolList DefaultIdx='0'>" +
         lists + "</SymbolList></Result>";
}

// A subject whose file holds what is not in memory.
struct Scene {
  Subject subject;
  FailingDisk disk{subject.Disk()};
  const char* path = kWorking;
  std::string bytes; // what must not be lost

  CTQSymbolListMgr& Manager() { return subject.Manager(); }
  void Write(const char* to, const std::string& file) {
    path = to;
    bytes = file;
    subject.Disk().Write(to, file);
  }
  void Load(const std::string& file) {
    Write(kWorking, file);
    Manager().LoadSymbolList();
  }
  // In a file, or at least every list of it, after an operation that loaded them and saved.
  bool IsKept() {
    return subject.Disk().Holds(bytes) ||
           (bytes == FileOf(kVictim) &&
            subject.Disk().Read(kWorking).find(kVictim) != std::string::npos);
  }
};

struct Way {
  const char* name;
  void (*prepare)(Scene& scene);
};

// How there may come to be a file whose lists are not in memory.
const Way kWays[] = {
    {"StrayApostrophe", [](Scene& s) { s.Load(FileOf("<List ID='d' Name='it's' Value=''/>")); }},
    {"CutOff", [](Scene& s) { s.Load(FileOf(kVictim).substr(0, 90)); }},
    {"AnotherDocument", [](Scene& s) { s.Load("<Other><List ID='a'/></Other>"); }},
    {"BadList", [](Scene& s) { s.Load(FileOf(std::string("<List/>") + kVictim)); }},
    {"NotWrittenBack", [](Scene& s) { s.Load(FileOf("<List ID='d' Name='A&amp;B' Value=''/>")); }},
    {"Unreadable",
     [](Scene& s) {
       s.disk.unreadable = true;
       s.Load(FileOf(kVictim));
       s.disk.unreadable = false;
     }},
    {"TooLarge",
     [](Scene& s) {
       s.disk.tooLarge = true;
       s.Load(FileOf(kVictim));
     }},
    {"AnotherProgram", [](Scene& s) { s.Write(kWorking, FileOf(kVictim)); }},
    {"TablesFailed",
     [](Scene& s) {
       s.Write(kWorking, FileOf(kVictim));
       standin::FailCall("VLGetExch", 1);
       s.Manager().Init("memory", 0, 1, 0, nullptr, 0, 0);
     }},
    {"DamagedBackup",
     [](Scene& s) {
       s.Write(kBackup, FileOf("<List ID='d' Name='a<b' Value=''/>"));
       s.Manager().RestorSymbolList();
     }},
    {"BackupOfAnother", [](Scene& s) { s.Write(kBackup, FileOf(kVictim)); }},
    {"ThirdFile", [](Scene& s) { s.Write(kThird, FileOf(kVictim)); }},
    {"ForeignTradingFile", [](Scene& s) { s.Write(kTrading, "not of this library"); }},
    {"AfterRepair",
     [](Scene& s) {
       TQRepairCounts counts;
       s.Load(FileOf(std::string(kVictim) + "<List ID='d' Name='it's' Value='23").substr(0, 150));
       s.Manager().RepairSymbolList(counts);
     }},
};

// Runs an operation with a step failing; -1: with none. Returns the number of its steps.
int Try(const Way& way, std::size_t operation, int step, bool fromThereOn) {
  Scene scene;
  way.prepare(scene);
  EXPECT_TRUE(scene.IsKept()) << way.name << ": lost on the way there";
  scene.disk.FailAt(step, fromThereOn);
  All()[operation].run(scene.Manager(), Arguments());
  const int steps = scene.disk.steps;
  EXPECT_TRUE(scene.IsKept()) << way.name << ", " << NameOf(All(), operation) << ", step " << step
                              << (fromThereOn ? " and on" : "");
  scene.disk.FailAt(-1, false);
  return steps;
}

class LostBytes : public testing::TestWithParam<Way> {
protected:
  LostBytes() { PrepareServices(); }
  ~LostBytes() override { standin::Reset(); }
};

TEST_P(LostBytes, NoOperationDestroysThemWhateverStepOfTheDiskFails) {
  int runs = 0;
  for (std::size_t operation = 0; operation < All().size(); ++operation) {
    if (!IsThisLanguagesTurn(operation))
      continue;
    const int steps = Try(GetParam(), operation, -1, false);
    for (int step = static_cast<int>(operation) % kStride; step < steps; step += kStride) {
      Try(GetParam(), operation, step, false);
      Try(GetParam(), operation, step, true);
      ++runs;
    }
  }
  EXPECT_GT(runs, 40 / kStride) << "the operations do not reach the disk";
}

INSTANTIATE_TEST_SUITE_P(After, LostBytes, testing::ValuesIn(kWays),
                         [](const auto& each) { return each.param.name; });

} // namespace
} // namespace operations
