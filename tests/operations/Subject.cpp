#include "tests/operations/Subject.h"

#include <array>
#include <set>

#include "platform/services/tqCommon.h"
#include "platform/services/tqStockFields.h"
#include "symboltable/SymbolTableMgr.h"

namespace operations {
namespace {

constexpr char kDirectory[] = "memory";
constexpr char kFile[] = "memory\\SymbolList.xml";
constexpr char kBackup[] = "memory\\SymbolList_Backup.xml";
constexpr char kImport[] = "memory\\OldOTVList.xml";
constexpr char kSavedZ[] = "ID='z' Name='Z' Value='1101.TW,unknown'";

std::string ListFile() {
  return std::string("<?xml version='1.0' encoding='") +
         (IsTraditionChinese() ? "big5" : "gb2312") +
         "' ?><Result><SymbolList DefaultIdx='1'>"
         "<List ID='a' Name='A' Value='2330.TW,gone.TW,6488.TW,Head:,2317.TW'/>"
         "<List ID='b' Name='B' Value='5483.TE'/><List " +
         kSavedZ + "/></SymbolList></Result>";
}

constexpr char kImportFile[] =
    "<?xml version='1.0' encoding='utf-8' ?><HaldeUserList><List><IDs>2330.TW,6488.TW</IDs></List>"
    "<List><IDs>1101.TW</IDs></List></HaldeUserList>";

bool HasList(CTQSymbolListMgr& manager, int kind, const char* id, const char* symbols) {
  CString held;
  return manager.GetSymbolListIDs(kind, id, held, nullptr) != 0 && held == symbols;
}

bool HasRows(CTQSymbolListMgr& manager, int kind, const char* id, const char* rows) {
  CString held;
  return manager.GetSymoblIDList(id, held, kind) != 0 && held == rows;
}

bool HasGroup(CTQSymbolListMgr& manager, int type, const char* id) {
  void* handle = nullptr;
  CString ids;
  return manager.GetGroupHandle(type, id, &handle, 0) != 0 &&
         manager.GetGroupListIDs(handle, ids) != 0 && ids == "1101.TW";
}

bool KnowsSymbol(CTQSymbolListMgr& manager, const char* id) {
  CString full;
  CSymbolTableMgr* const tables = manager.GetSymbolTableMgr();
  return tables != nullptr && tables->LookUpSymbolGetString(FieldSymbolId, id, "", full) != 0 &&
         full == id;
}

bool HasAllSymbols(CTQSymbolListMgr& manager) {
  SymbolInfo* all = nullptr;
  int count = 0;
  const bool there = manager.GetAllSymbolInfos(&all, &count) != 0;
  CTQSymbolListMgr::FreeSymbolInfos(all);
  return there && count == static_cast<int>(SmallestMarket().instruments.size());
}

bool IdsDiffer(CTQSymbolListMgr& manager, int kind) {
  std::set<std::string> ids;
  for (int i = 0; i < manager.GetSymbolListCount(kind); ++i) {
    TQSymbolListInfo info;
    manager.GetTQSymbolListInfo(i, &info, kind);
    if (!ids.insert(info.ID).second)
      return false;
  }
  return true;
}

struct NamedProbe {
  const char* name;
  bool (*holds)(CTQSymbolListMgr& manager, MemoryDisk& disk);
};

using M = CTQSymbolListMgr;

const std::array kProbes = {
    NamedProbe{"the user's list z",
               [](M& m, MemoryDisk&) { return HasList(m, 1, "z", "1101.TW,unknown"); }},
    NamedProbe{"rows of the user's list z",
               [](M& m, MemoryDisk&) { return HasRows(m, 1, "z", "1101.TW"); }},
    NamedProbe{"the user's list b",
               [](M& m, MemoryDisk&) { return HasList(m, 1, "b", "5483.TE"); }},
    NamedProbe{"cloud list z", [](M& m, MemoryDisk&) { return HasList(m, 8, "z", "1101.TW"); }},
    NamedProbe{"trading list z", [](M& m, MemoryDisk&) { return HasList(m, 6, "z", "1101.TW"); }},
    NamedProbe{"the list of an account",
               [](M& m, MemoryDisk&) { return HasList(m, 6, "2F01", "TXFL6.TF"); }},
    NamedProbe{"list z in the map of cloud lists",
               [](M& m, MemoryDisk&) { return m.GetCloudeList().Find("ZMAP") >= 0; }},
    NamedProbe{"group ETF", [](M& m, MemoryDisk&) { return HasGroup(m, 1, "ETF"); }},
    NamedProbe{"cloud group ZCLOUD", [](M& m, MemoryDisk&) { return HasGroup(m, 201, "ZCLOUD"); }},
    NamedProbe{"symbol 1101.TW", [](M& m, MemoryDisk&) { return KnowsSymbol(m, "1101.TW"); }},
    NamedProbe{"symbol 5483.TE", [](M& m, MemoryDisk&) { return KnowsSymbol(m, "5483.TE"); }},
    NamedProbe{"the default exchanges",
               [](M& m, MemoryDisk&) { return m.GetDefaultExchangeCount() == 2; }},
    NamedProbe{"all symbols", [](M& m, MemoryDisk&) { return HasAllSymbols(m); }},
    NamedProbe{"one user's list for each identifier",
               [](M& m, MemoryDisk&) { return IdsDiffer(m, 1); }},
    NamedProbe{"one cloud list for each identifier",
               [](M& m, MemoryDisk&) { return IdsDiffer(m, 8); }},
    NamedProbe{"one trading list for each identifier",
               [](M& m, MemoryDisk&) { return IdsDiffer(m, 6); }},
    NamedProbe{
        "list z in the file",
        [](M&, MemoryDisk& disk) { return disk.Read(kFile).find(kSavedZ) != std::string::npos; }},
    NamedProbe{
        "list z in the backup",
        [](M&, MemoryDisk& disk) { return disk.Read(kBackup).find(kSavedZ) != std::string::npos; }},
};
static_assert(std::tuple_size_v<decltype(kProbes)> <= Probes().size());

} // namespace

const char* NameOfProbe(std::size_t bit) {
  return kProbes[bit].name;
}

Subject::Subject() : manager_(std::make_unique<CTQSymbolListMgr>()) {
  disk_.Write(kFile, ListFile());
  disk_.Write(kBackup, ListFile());
  CStringArray names;
  names.Add("System");
  M& m = *manager_;
  m.UpdateCloudSymbolList("ZMAP", "zmap", "1101.TW");
  m.UpdateCloudSymbolList("PICK", "picked", "2330.TW");
  m.Init(kDirectory, 0, 1, 1, &names, 0, 1);
  m.AddCloudSymbolList("c", "C", "2330.TW,2317.TW", 0);
  m.AddCloudSymbolList("z", "Z", "1101.TW", 0);
  m.UpdateTSLogin("T1");
  m.AddTSSymbolList("z", 6, "Z", "1101.TW", 0);
  CUIntArray order;
  order.Add(2);
  order.Add(1);
  m.LoadDefExchOrder(order);
  disk_.Write(kImport, kImportFile);
}

Subject::~Subject() = default;

Probes Subject::Probe() {
  Probes probes;
  for (std::size_t bit = 0; bit < kProbes.size(); ++bit)
    probes[bit] = kProbes[bit].holds(*manager_, disk_);
  return probes;
}

std::string Subject::Broken() {
  std::string broken = BrokenLists(*manager_);
  if (broken.empty())
    broken = BrokenAnswers(*manager_);
  if (broken.empty())
    broken = BrokenSave(*manager_, disk_);
  return broken;
}

} // namespace operations
