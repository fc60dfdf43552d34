#include "bench/ListFiles.h"

#include <fcntl.h>
#include <libxml/parser.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <random>
#include <vector>

#include "bench/Universe.h"
#include "platform/services/VLProxy.h"
#include "tqSymbol.h"

namespace bench {
namespace {

constexpr double kGoalFile = 1.5;
constexpr double kGoalSaving = 1.2;

// A file as the library writes it, and its id strings.
struct ListFile {
  std::string bytes;
  std::vector<std::string> values;
};

ListFile MakeListFile(const std::vector<std::string>& ids, ListFileSize size) {
  std::mt19937 random(5);
  std::uniform_int_distribution<std::size_t> any(0, ids.size() - 1);
  ListFile file;
  file.bytes = "<?xml version='1.0' encoding='big5' ?>\n<Result>\n<SymbolList DefaultIdx='0'>\n";
  for (std::size_t list = 0; list < size.lists; ++list) {
    std::string value = ids[any(random)];
    for (std::size_t i = 1; i < size.symbols; ++i)
      value.append(",").append(ids[any(random)]);
    const std::string number = std::to_string(list);
    file.bytes += "\t<List ID='" + std::string(8 - number.size(), '0') + number +
                  "-4740-4a60-9409-97271AD25E13' Name='" + standin::ToAnsi("自選觀察 " + number) +
                  "' Value='" + value + "' Flag='0'/>\n";
    file.values.push_back(std::move(value));
  }
  file.bytes += "</SymbolList>\n</Result>";
  return file;
}

std::string ReadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool HoldsAllRows(CTQSymbolListMgr& manager, ListFileSize size) {
  std::size_t rows = 0;
  const int lists = manager.GetSymbolListCount(kUserLists);
  for (int i = 0; i < lists; ++i) {
    TQSymbolListInfo info;
    CSymbolList* list = nullptr;
    if (manager.GetTQSymbolListInfo(i, &info, kUserLists) &&
        manager.GetSymbolList(info.ID, &list, kUserLists))
      rows += static_cast<std::size_t>(list->GetCount());
  }
  return static_cast<std::size_t>(lists) == size.lists && rows == size.lists * size.symbols;
}

// Parses the same bytes and asks the service for the same id strings.
bool ParseAndAsk(const ListFile& file) {
  xmlDoc* const document = xmlReadMemory(file.bytes.data(), static_cast<int>(file.bytes.size()),
                                         nullptr, nullptr, XML_PARSE_NONET);
  xmlFreeDoc(document);
  bool answered = document != nullptr;
  for (const std::string& value : file.values) {
    SymbolInfo* records = nullptr;
    int count = 0;
    answered = VLGetSymbolInfos(value.c_str(), &records, &count) != 0 && answered;
    VLFree(records);
  }
  return answered;
}

void MeasureLoading(Report& report, const ListFile& file, ListFileSize size,
                    CTQSymbolListMgr& manager, std::size_t repetitions) {
  bool right = true;
  const auto library = [&] {
    manager.ClearSymbolList();
    const double seconds = Computing([&] { manager.LoadSymbolList(); });
    right = HoldsAllRows(manager, size) && right;
    return seconds;
  };
  const auto peer = [&] { return Computing([&] { right = ParseAndAsk(file) && right; }); };
  report.Ratio("loading / parsing + service", Compare(repetitions, library, peer), kGoalFile);
  if (!right)
    report.Wrong("loading");
}

bool WriteNewFile(const std::string& path, const std::string& bytes) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0666);
  const bool written =
      file >= 0 && write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) &&
      fsync(file) == 0;
  return close(file) == 0 && written;
}

void MeasureSaving(Report& report, const ListFile& file, const std::string& directory,
                   CTQSymbolListMgr& manager, std::size_t repetitions) {
  const std::string own = directory + "/SymbolList.xml";
  const std::string other = directory + "/Written.xml";
  bool right = true;
  const auto library = [&] {
    return Elapsed([&] { right = manager.SaveSymbolList() != 0 && right; });
  };
  const auto peer = [&] {
    unlink(other.c_str());
    return Elapsed([&] { right = WriteNewFile(other, file.bytes) && right; });
  };
  const Figure figure = Compare(repetitions, library, peer);
  report.Ratio("saving / write + fsync", figure, kGoalSaving);
  if (!right || ReadBytes(own) != file.bytes || ReadBytes(other) != file.bytes)
    report.Wrong("saving");
  unlink(other.c_str());
}

} // namespace

void MeasureListFiles(Report& report, const standin::Market& market, ListFileSize size,
                      const std::string& directory, std::size_t repetitions) {
  const ListFile file = MakeListFile(FullIds(market), size);
  const std::string path = directory + "/SymbolList.xml";
  std::ofstream(path, std::ios::binary) << file.bytes;
  {
    CTQSymbolListMgr manager;
    manager.ReLoadList(directory.c_str());
    MeasureLoading(report, file, size, manager, repetitions);
    MeasureSaving(report, file, directory, manager, repetitions);
  }
  unlink(path.c_str());
}

} // namespace bench
