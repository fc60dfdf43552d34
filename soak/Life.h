// One life of a terminal: a manager on a data directory, and operations at random until the end or
// a kill.
#pragma once

#include <memory>
#include <string>

#include "soak/Catalog.h"
#include "soak/Disk.h"
#include "soak/Files.h"
#include "soak/Ledger.h"
#include "soak/Promise.h"
#include "soak/Random.h"
#include "soak/Services.h"

namespace soak {

struct LifeOrder {
  std::uint64_t seed = 0;
  std::uint64_t steps = 0; // 0: until a kill
  bool isKilled = false;   // then no file is written in place, where a kill may hit the bytes
  std::string directory;
  bool careless = false;
  bool tells = false; // prints each operation
};

class Life {
public:
  Life(Ledger& ledger, const LifeOrder& order);
  ~Life();
  Life(const Life&) = delete;
  Life& operator=(const Life&) = delete;

  // Until the end, or the first loss, which is noted in the ledger.
  void Run();

private:
  struct Step {
    const Entry* entry;
    operations::Arguments arguments;
  };

  void Begin();
  void Restart();
  void TakeStep();
  Step ChooseStep();
  const Entry& ChooseEntry();
  void RunStep(const Step& step);
  void Perform(const Step& step);
  // The terminal, from within a call or beside a dialog.
  void ActMeanwhile();
  void ActWithin(std::string_view service);
  void ChangeWeather();
  void Intrude();
  void LookWhetherSound();
  void End();

  bool IsLost() const { return ledger_.loss[0] != '\0'; }
  Lists Look();
  void Tell(const std::string& what);
  // In the manager's data directory; empty without one.
  std::string FileNamed(const char* name);
  // Lists and files after a step, by what it and those within it may do.
  void Check(const Step& step, const Lists& before);
  void CheckFiles(const Step& step, const Lists& before);
  void NoteLoad(const Step& step, const Lists& before);
  std::string LoadedFile(std::string_view operation, const operations::Arguments& arguments);

  Ledger& ledger_;
  const LifeOrder order_;
  Random random_;
  Taste taste_;
  Files files_;
  Disk disk_;
  Services services_;
  std::unique_ptr<CTQSymbolListMgr> manager_;
  Lists lists_;     // after the last step
  Promise promise_; // of the step that runs, and of all within it
  int depth_ = 0;
  int intrusions_ = 0;
  int nested_ = 0; // operations within the step that runs
  bool looks_ = false;
  bool agrees_ = false;
  bool debugs_ = false;              // the debug mode
  std::uint64_t troublesBefore_ = 0; // of the disk
};

} // namespace soak
