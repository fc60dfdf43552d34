#include "soak/Life.h"

#include <array>
#include <cstdio>
#include <utility>

#include "platform/framework/window/DialogAccess.h"
#include "soak/Expected.h"
#include "soak/RandomUser.h"
#include "soak/RawFiles.h"
#include "terminal/StandIn.h"
#include "tests/operations/Subject.h"

namespace soak {
namespace {

constexpr char kWorking[] = "\\SymbolList.xml";
constexpr char kBackup[] = "\\SymbolList_Backup.xml";
constexpr int kDeepest = 3;
constexpr int kManyLists = 20;
constexpr std::size_t kManyBytes = 40'000;

// For the modal handler, which is a plain function.
std::function<void(CDialog&)>& TheUser() {
  static std::function<void(CDialog&)> user;
  return user;
}

void UseDialog(CDialog& dialog) {
  if (TheUser())
    TheUser()(dialog);
}

// Another program's lists.
std::string ForeignFile(Random& random) {
  Lists lists;
  for (int i = 0; i <= random.Draw(3); ++i)
    lists.lists.push_back({"f" + std::to_string(random.Draw(1000)), "foreign" + std::to_string(i),
                           random.OnceIn(2) ? "2330.TW" : "1101.TW,2317.TW"});
  std::string file = FileOf(lists);
  if (random.OnceIn(4))
    file.resize(file.size() / 2);
  return file;
}

std::size_t SizeOf(const Lists& lists) {
  std::size_t size = 0;
  for (const List& list : lists.lists)
    size += list.symbols.size();
  return size;
}

std::string_view NameIn(std::string_view signature) {
  return signature.substr(0, signature.find('('));
}

} // namespace

Life::Life(Ledger& ledger, const LifeOrder& order)
    : ledger_(ledger), order_(order), random_(order.seed), taste_{order.directory, false},
      files_([this] { return Look(); }, [this](const std::string& what) { Tell(what); }),
      disk_(ledger, random_, files_, order.careless),
      services_(ledger, random_, [this](std::string_view service) { ActWithin(service); }) {
  TheUser() = [this](CDialog& dialog) {
    UseAtRandom(dialog, ledger_, random_, [this] { ActMeanwhile(); });
  };
  tq::SetModalHandler(UseDialog);
}

Life::~Life() {
  TheUser() = nullptr;
  tq::SetModalHandler(nullptr);
}

// Nothing happens meanwhile.
Lists Life::Look() {
  looks_ = true;
  Lists lists = ListsOf(*manager_);
  looks_ = false;
  return lists;
}

void Life::Tell(const std::string& what) {
  ledger_.NoteLoss(what);
}

// Without a data directory there is none.
std::string Life::FileNamed(const char* name) {
  const std::string backup = manager_->GetBackSymbolListPath().GetString();
  const std::size_t separator = backup.rfind('\\');
  return separator == 0 || separator == std::string::npos ? "" : backup.substr(0, separator) + name;
}

void Life::Run() {
  Begin();
  while (!IsLost() && (order_.steps == 0 || ledger_.step < order_.steps))
    TakeStep();
  if (!IsLost())
    End();
}

void Life::Begin() {
  taste_.hostile = random_.OnceIn(6);
  Restart();
}

// A manager of its own; the one before saves nothing.
void Life::Restart() {
  manager_ = std::make_unique<CTQSymbolListMgr>();
  files_.ForgetAll();
  lists_ = ListsOf(*manager_);
  Step start{&EntryOf("Init(char const*, int, int, int, CStringArray*, int, int)"),
             ArgumentsFor(random_, taste_, lists_)};
  RunStep(start);
}

void Life::ChangeWeather() {
  constexpr std::array kSaving = {0, 0, 2, 10, 50};
  constexpr std::array kReading = {0, 0, 0, 20, 200};
  constexpr std::array kReentries = {0, 0, 4, 20, 100};
  disk_.SetTrouble({random_.One(kSaving), random_.One(kReading), !order_.isKilled});
  services_.SetReentries(random_.One(kReentries));
  if (random_.OnceIn(2))
    services_.StopFailing();
  else
    services_.FailOne();
}

void Life::TakeStep() {
  constexpr int kWeather = 40;
  constexpr int kIntrusion = 100;
  constexpr int kRestart = 400;
  constexpr int kLook = 100;
  ledger_.step.store(ledger_.step + 1);
  if (random_.OnceIn(kWeather))
    ChangeWeather();
  if (random_.OnceIn(kIntrusion))
    Intrude();
  if (random_.OnceIn(kRestart))
    return Restart();
  RunStep(ChooseStep());
  if (!IsLost() && random_.OnceIn(kLook))
    LookWhetherSound();
}

const Entry& Life::ChooseEntry() {
  if (lists_.lists.size() > kManyLists && random_.OnceIn(2))
    return EntryOf("DeleteSymbolList(CString)");
  if (SizeOf(lists_) > kManyBytes)
    return EntryOf("ClearSymbolList()");
  return random_.One(Catalog());
}

Life::Step Life::ChooseStep() {
  return {&ChooseEntry(), ArgumentsFor(random_, taste_, lists_)};
}

void Life::Perform(const Step& step) {
  const operations::Operation& operation = step.entry->operation;
  promise_.Join(PromiseOf(operation.signature, step.arguments, agrees_));
  files_.SetLoading(promise_.loads);
  ledger_.operations[static_cast<std::size_t>(step.entry->family)].Add();
  if (order_.tells)
    std::printf("%*s%s '%s' %d\n", 2 * depth_, "", operation.signature,
                step.arguments.id.GetString(), step.arguments.kind);
  if (operation.signature == std::string_view("SetDebugMode(TQDebugMode)"))
    debugs_ = step.arguments.flag != 0;
  ++depth_;
  operation.run(*manager_, step.arguments);
  --depth_;
}

void Life::RunStep(const Step& step) {
  constexpr std::array kButtons = {1, 2, 6, 7}; // OK, Cancel, Yes, No
  const int button = random_.One(kButtons);
  standin::AnswerMessages(button);
  agrees_ = button == 1 || button == 6;
  promise_ = {};
  nested_ = 0;
  troublesBefore_ = disk_.Troubles();
  ledger_.NoteOperation(step.entry->operation.signature);
  const Lists before = std::move(lists_);
  Perform(step);
  lists_ = Look();
  Check(step, before);
}

// A mistake that the debug mode logs is one of the operation that runs: what it works on stays.
void Life::ActWithin(std::string_view service) {
  if (!debugs_ || service != "TQLog::write")
    ActMeanwhile();
}

void Life::ActMeanwhile() {
  if (depth_ == 0 || depth_ >= kDeepest || looks_ || IsLost())
    return;
  ledger_.Add(Count::Reentries);
  ++nested_;
  const Lists now = Look();
  Perform({&random_.One(Catalog()), ArgumentsFor(random_, taste_, now)});
}

void Life::Check(const Step& step, const Lists& before) {
  if (const std::string broken = Broken(promise_, before, lists_); !broken.empty())
    Tell(broken);
  CheckFiles(step, before);
  NoteLoad(step, before);
}

void Life::CheckFiles(const Step& step, const Lists& before) {
  if (files_.TakeWrites() > 0 && !promise_.saves)
    Tell("it has written a list file");
  const char* const signature = step.entry->operation.signature;
  if (nested_ > 0 || disk_.Troubles() != troublesBefore_ || !IsExact(signature))
    return;
  static const std::string kNothing;
  const bool known = !FileNamed(kWorking).empty();
  const std::string& working = known ? files_.BytesOf(FileNamed(kWorking)) : kNothing;
  const std::string& backup = known ? files_.BytesOf(FileNamed(kBackup)) : kNothing;
  const std::string unexpected =
      Unexpected({signature, step.arguments, before, lists_, working, backup, known});
  if (!unexpected.empty())
    Tell(unexpected);
}

void Life::NoteLoad(const Step& step, const Lists& before) {
  if (!promise_.loads)
    return;
  const std::string_view name = NameIn(step.entry->operation.signature);
  const bool foundNothing = name == "RepairSymbolList" && lists_ == before;
  if (nested_ > 0 || name == "RestoreHistory" || foundNothing)
    return files_.LoadedSomething();
  files_.Loaded(LoadedFile(name, step.arguments), lists_, disk_.Troubles() == troublesBefore_);
}

// Empty: none.
std::string Life::LoadedFile(std::string_view operation, const operations::Arguments& arguments) {
  if (operation == "RestorSymbolList")
    return FileNamed(kBackup);
  if (operation == "DoLoadSymbolList" && arguments.directory.IsEmpty())
    return "";
  if (operation == "DoLoadSymbolList")
    return std::string(arguments.directory.GetString()) + kBackup;
  return FileNamed(kWorking);
}

// At a time of its own: within one tick of the clock the system may give the number of a file that
// is gone to a new one, whose size and time are the same too.
void Life::Intrude() {
  const std::string path = FileNamed(kWorking);
  if (path.empty())
    return;
  const std::string bytes = ForeignFile(random_);
  disk_.Intrude(path, bytes);
  SetTimeAhead(path, ++intrusions_);
  files_.Intruded(path, bytes);
}

void Life::LookWhetherSound() {
  looks_ = true;
  services_.StopFailing();
  if (const std::string broken = operations::BrokenLists(*manager_); !broken.empty())
    Tell(broken);
  looks_ = false;
}

// By itself: everything is released.
void Life::End() {
  LookWhetherSound();
  manager_.reset();
  if (standin::BadReleases() != 0)
    Tell("something was released that was not handed out");
  if (standin::OutstandingArrays() != 0)
    Tell("an array of a service was not released");
}

} // namespace soak
