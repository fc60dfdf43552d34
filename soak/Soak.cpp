#include "soak/Soak.h"

#include <cstdio>
#include <utility>

#include "soak/Figures.h"

namespace soak {
namespace {

constexpr std::uint64_t kMostLosses = 20;
#if defined(_WIN32)
// Starting a process takes long there, and so do real windows.
constexpr int kShortLife = 300'000;
constexpr int kLongLife = 900'000;
constexpr std::uint64_t kSteps = 300;
#else
constexpr int kShortLife = 10'000;
constexpr int kLongLife = 120'000;
constexpr std::uint64_t kSteps = 3000;
#endif

constexpr char kImportFile[] =
    "<?xml version='1.0' encoding='utf-8' ?><HaldeUserList><List><IDs>2330.TW,6488.TW</IDs></List>"
    "<List><IDs>1101.TW</IDs></List></HaldeUserList>";

Lists FirstLists() {
  return {{{"a", "A", "2330.TW,gone.TW,Head:,2317.TW"},
           {"b", "B", "5483.TE"},
           {"c", "C", ""},
           {"z", "Z", "1101.TW,unknown"}},
          1};
}

std::string NewDirectory(const Options& options) {
  const std::string base = options.directory.empty() ? TemporaryDirectory() : options.directory;
  const auto now = std::chrono::system_clock::now().time_since_epoch().count();
  return base + "/tqSoak-" + std::to_string(now);
}

} // namespace

Soak::Soak(const Options& options)
    : options_(options), random_(options.seed), shared_(MakeSharedLedger()),
      directory_(NewDirectory(options)) {}

Soak::~Soak() {
  RemoveDirectory(directory_);
}

double Soak::Seconds() const {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
}

bool Soak::IsDone() const {
  const bool enough = options_.kills > 0 && tally_.kills >= options_.kills &&
                      shared_->Get().Operations() >= options_.operations;
  return enough || tally_.losses >= (options_.careless ? 1 : kMostLosses) ||
         Seconds() >= static_cast<double>(options_.seconds);
}

int Soak::Run() {
  if (!shared_) {
    std::fprintf(stderr, "tqSoak: there is no memory to share with a child\n");
    return 2;
  }
  while (!IsDone()) {
    LiveOnce();
    ShowProgress();
  }
  PrintFigures(shared_->Get(), tally_, Seconds());
  return tally_.losses == 0 ? 0 : 1;
}

void Soak::ShowProgress() {
  const auto now = std::chrono::steady_clock::now();
  if (now - shown_ < std::chrono::seconds(2) || !IsWatched())
    return;
  shown_ = now;
  PrintProgress(shared_->Get(), tally_, Seconds());
}

void Soak::StartAnew() {
  for (const char* name : kDirectories) {
    const std::string directory = directory_ + "/" + name;
    Fill(directory,
         {{"\\SymbolList.xml", FileOf(FirstLists())}, {"\\OldOTVList.xml", kImportFile}});
  }
}

void Soak::Intrude() {
  const std::string path = directory_ + "/" + random_.One(kDirectories) +
                           (random_.OnceIn(4) ? "\\SymbolList_Backup.xml" : "\\SymbolList.xml");
  std::string bytes = FileOf(FirstLists());
  if (random_.OnceIn(2))
    ReadRaw(path, bytes);
  bytes.resize(static_cast<std::size_t>(random_.Draw(static_cast<int>(bytes.size()) + 1)));
  if (random_.OnceIn(2))
    bytes = FileOf(FirstLists());
  WriteRaw(path, bytes);
  shared_->Get().Add(Count::Intrusions);
}

void Soak::NoteFiles() {
  Ledger& ledger = shared_->Get();
  ledger.Clear();
  before_.clear();
  for (const char* name : kDirectories)
    before_.merge(ContentsOf(directory_ + "/" + name));
  for (const auto& [path, bytes] : before_)
    if (FileNote* const note = ledger.NoteOf(path))
      note->settled = PrintOf(bytes);
}

void Soak::LiveOnce() {
  constexpr int kAnew = 60;
  constexpr int kIntrusion = 8;
  constexpr int kEndsItself = 20;
  if (tally_.lives == 0 || random_.OnceIn(kAnew))
    StartAnew();
  if (random_.OnceIn(kIntrusion))
    Intrude();
  NoteFiles();
  LifeOrder order;
  order.seed = random_.Seed();
  order.directory = directory_;
  order.careless = options_.careless;
  order.isKilled = !random_.OnceIn(kEndsItself);
  order.steps = order.isKilled ? 0 : kSteps;
  const int life = 1000 + random_.Draw(random_.OnceIn(3) ? kLongLife : kShortLife);
  Examine(order, RunLife(*shared_, order, order.isKilled ? life : kNotKilled));
}

void Soak::Examine(const LifeOrder& order, const LifeEnd& end) {
  ++tally_.lives;
  if (end.killed && !end.hung) {
    ++tally_.kills;
    tally_.killsInSaves += shared_->Get().IsSaving() ? 1U : 0U;
  }
  if (const std::string loss = FirstLoss(end); !loss.empty())
    TellLoss(order, loss);
}

// What each file may hold was noted before it was written.
std::string Soak::FirstLoss(const LifeEnd& end) {
  Ledger& ledger = shared_->Get();
  if (ledger.loss[0] != '\0')
    return ledger.loss.data();
  if (end.hung)
    return "it does not end";
  if (!end.killed && end.code != 0)
    return "it ended with code " + std::to_string(end.code);
  const auto known = static_cast<std::size_t>(ledger.fileCount.load());
  for (std::size_t i = 0; i < known; ++i) {
    const FileNote& note = ledger.files[i];
    std::string bytes;
    const Print print = ReadRaw(note.path.data(), bytes) ? PrintOf(bytes) : kNoFile;
    if (print != note.settled && !(note.isBeingWritten && print == note.wanted))
      return std::string(note.path.data()) +
             " holds neither what was saved nor what was being "
             "saved, but: " +
             bytes;
  }
  for (const char* name : kDirectories)
    for (const auto& [path, bytes] : ContentsOf(directory_ + "/" + name))
      if (ledger.NoteOf(path)->settled == kNoFile && !ledger.NoteOf(path)->isBeingWritten)
        return path + " was written, and nobody noted it";
  return "";
}

void Soak::TellLoss(const LifeOrder& order, const std::string& what) {
  ++tally_.losses;
  const Ledger& ledger = shared_->Get();
  const std::string kept = directory_ + "-loss-" + std::to_string(tally_.losses);
  if (!options_.careless)
    KeepFiles(kept);
  std::printf("loss %llu, at step %llu, %s:\n%s\n  tqSoak --replay %llu --steps %llu%s --directory "
              "%s/before\n",
              static_cast<unsigned long long>(tally_.losses),
              static_cast<unsigned long long>(ledger.step.load()), ledger.operation.data(),
              what.c_str(), static_cast<unsigned long long>(order.seed),
              static_cast<unsigned long long>(ledger.step.load()),
              order.isKilled ? " --killed" : "", kept.c_str());
  std::fflush(stdout);
  StartAnew();
}

// The files of before and after the life, for a replay and to look at.
void Soak::KeepFiles(const std::string& kept) const {
  for (const char* name : kDirectories) {
    Contents before;
    for (const auto& [path, bytes] : before_)
      if (path.starts_with(directory_ + "/" + name + "\\"))
        before[path] = bytes;
    Fill(kept + "/before/" + name, before);
    Fill(kept + "/after/" + name, ContentsOf(directory_ + "/" + name));
  }
}

int Replay(const Options& options) {
  const std::string directory = NewDirectory({});
  for (const char* name : kDirectories)
    Fill(directory + "/" + name, ContentsOf(options.directory + "/" + name));
  const std::unique_ptr<SharedLedger> shared = MakeSharedLedger();
  if (!shared)
    return 2;
  for (const char* name : kDirectories)
    for (const auto& [path, bytes] : ContentsOf(directory + "/" + name))
      shared->Get().NoteOf(path)->settled = PrintOf(bytes);
  const int code = Live(shared->Get(), {options.seed, options.steps, options.killed, directory,
                                        options.careless, true});
  std::printf("%s\n", code == 0 ? "nothing is lost" : shared->Get().loss.data());
  RemoveDirectory(directory);
  return code;
}

} // namespace soak
