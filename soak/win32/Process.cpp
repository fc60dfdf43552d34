#include "soak/Process.h"

#include <windows.h>

#include <cstdlib>
#include <new>
#include <string>
#include <string_view>

namespace soak {
namespace {

constexpr char kChild[] = "--child";

std::string MappingName(unsigned long parent) {
  return "Local\\tqSoak-" + std::to_string(parent);
}

class MappedLedger : public SharedLedger {
public:
  // `isNew`: the parent's, which makes it.
  MappedLedger(HANDLE mapping, bool isNew)
      : mapping_(mapping),
        memory_(::MapViewOfFile(mapping, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Ledger))) {
    if (memory_ != nullptr && isNew)
      new (memory_) Ledger();
  }
  ~MappedLedger() override {
    ::UnmapViewOfFile(memory_);
    ::CloseHandle(mapping_);
  }
  MappedLedger(const MappedLedger&) = delete;
  MappedLedger& operator=(const MappedLedger&) = delete;

  bool IsThere() const { return memory_ != nullptr; }
  Ledger& Get() override { return *static_cast<Ledger*>(memory_); }

private:
  HANDLE mapping_;
  void* memory_;
};

std::string ProgramPath() {
  char path[MAX_PATH];
  return {path, ::GetModuleFileNameA(nullptr, path, MAX_PATH)};
}

std::string CommandLineOf(const LifeOrder& order) {
  return "\"" + ProgramPath() + "\" " + kChild + " " + std::to_string(::GetCurrentProcessId()) +
         " " + std::to_string(order.seed) + " " + std::to_string(order.steps) + " " +
         (order.isKilled ? "1" : "0") + " " + (order.careless ? "1" : "0") + " \"" +
         order.directory + "\"";
}

LifeEnd WaitFor(HANDLE process, int killAfter) {
  LifeEnd end;
  const bool ended =
      ::WaitForSingleObject(process, killAfter == kNotKilled
                                         ? static_cast<DWORD>(kPatience * 1000)
                                         : static_cast<DWORD>(killAfter / 1000)) == WAIT_OBJECT_0;
  if (!ended)
    end.killed = ::TerminateProcess(process, 1) != 0;
  ::WaitForSingleObject(process, INFINITE);
  DWORD code = 1;
  ::GetExitCodeProcess(process, &code);
  end.hung = end.killed && killAfter == kNotKilled;
  end.code = static_cast<int>(code);
  return end;
}

} // namespace

std::unique_ptr<SharedLedger> MakeSharedLedger() {
  const HANDLE mapping =
      ::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(Ledger),
                           MappingName(::GetCurrentProcessId()).c_str());
  if (mapping == nullptr)
    return nullptr;
  auto ledger = std::make_unique<MappedLedger>(mapping, true);
  return ledger->IsThere() ? std::move(ledger) : nullptr;
}

LifeEnd RunLife(SharedLedger&, const LifeOrder& order, int killAfter) {
  std::string command = CommandLineOf(order);
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  if (::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &startup, &process) == 0)
    return {false, false, 1};
  const LifeEnd end = WaitFor(process.hProcess, killAfter);
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
  return end;
}

bool IsChild(int argc, char** argv, int& code) {
  if (argc != 8 || std::string_view(argv[1]) != kChild)
    return false;
  const HANDLE mapping = ::OpenFileMappingA(
      FILE_MAP_ALL_ACCESS, FALSE, MappingName(std::strtoul(argv[2], nullptr, 10)).c_str());
  MappedLedger ledger(mapping, false);
  LifeOrder order;
  order.seed = std::strtoull(argv[3], nullptr, 10);
  order.steps = std::strtoull(argv[4], nullptr, 10);
  order.isKilled = argv[5][0] == '1';
  order.careless = argv[6][0] == '1';
  order.directory = argv[7];
  code = ledger.IsThere() ? Live(ledger.Get(), order) : 2;
  return true;
}

} // namespace soak
