#include "terminal/demo/Written.h"

#include <cstdio>
#include <string_view>

#include "terminal/StandIn.h"
#include "terminal/demo/Files.h"
#include "terminal/demo/Table.h"

namespace demo {
namespace {

constexpr int kFileCells = 22;
constexpr int kWrittenCells = 98;
constexpr int kMostLines = 40;

void PrintLine(std::string_view line) {
  size_t depth = 0;
  while (depth < line.size() && line[depth] == '\t')
    ++depth;
  std::printf("%s\n",
              Wrapped(line.substr(depth), kWrittenCells, std::string(4 + 2 * depth, ' ')).c_str());
}

void PrintContent(const std::string& bytes) {
  const std::string text = standin::FromAnsi(bytes);
  std::string_view rest = text;
  for (int lines = 0; !rest.empty(); ++lines) {
    if (lines == kMostLines) {
      std::printf("    .. and more\n");
      return;
    }
    const size_t end = rest.find('\n');
    PrintLine(rest.substr(0, end));
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
}

enum class Show { Size, Content };

bool ShowFile(const std::string& directory, const std::string& name, Show show,
              std::string& error) {
  std::string bytes;
  const ReadResult result = ReadFile(directory + "/" + name, bytes);
  if (result == ReadResult::Unreadable) {
    error = directory + "/" + name + ": cannot be read";
    return false;
  }
  if (result == ReadResult::Missing) {
    std::printf("  %snot written\n", Padded(name, kFileCells).c_str());
    return true;
  }
  std::printf("  %s%7zu bytes\n", Padded(name, kFileCells).c_str(), bytes.size());
  if (show == Show::Content)
    PrintContent(bytes);
  return true;
}

} // namespace

bool ShowWritten(const std::string& directory, std::string& error) {
  std::printf("\nFiles in %s\n", directory.c_str());
  return ShowFile(directory, "SymbolList.xml", Show::Size, error) &&
         ShowFile(directory, "SymbolList_Backup.xml", Show::Size, error) &&
         ShowFile(directory, "TSList.xml", Show::Content, error) &&
         ShowFile(directory, "Added_OldOTVList.xml", Show::Content, error);
}

} // namespace demo
