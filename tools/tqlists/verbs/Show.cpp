// Lists as a table, or as the JSON document that `import` takes.
#include "tools/tqlists/verbs/Verbs.h"

#include <algorithm>
#include <vector>

#include "tools/tqlists/lists/DisplayWidth.h"

namespace tqlists {
namespace {

constexpr char kGap[] = "  ";
constexpr std::string_view kPlace = "Place";
constexpr std::string_view kName = "Name";
constexpr std::string_view kId = "Id";
constexpr std::string_view kSymbols = "Symbols";

std::string RightAligned(const std::string& text, std::size_t columns) {
  return std::string(columns > text.size() ? columns - text.size() : 0, ' ') + text;
}

std::string CountOf(const List& list) {
  std::size_t symbols = 0;
  ForEachEntry(list.symbols, [&](std::string_view entry) { symbols += IsHeading(entry) ? 0 : 1; });
  return std::to_string(symbols);
}

// The lists of one file. The widths of its columns are known once all lists have been measured.
class Table {
public:
  explicit Table(Output& output) : output_(output) {}

  void Measure(const List& list) {
    ++count_;
    name_ = std::max(name_, DisplayWidth(list.name));
    id_ = std::max(id_, DisplayWidth(list.id));
  }
  std::size_t Count() const { return count_; }

  void WriteHead() {
    Write(std::string(kPlace) + "   " + Padded(kName, name_) + kGap + Padded(kId, id_) + kGap +
          std::string(kSymbols));
  }
  void WriteRow(const List& list, std::size_t place, bool isDefault) {
    Write(RightAligned(std::to_string(place), kPlace.size()) + (isDefault ? " * " : "   ") +
          Padded(list.name, name_) + kGap + Padded(list.id, id_) + kGap +
          RightAligned(CountOf(list), kSymbols.size()));
  }
  void WriteEntries(const List& list) {
    ForEachEntry(list.symbols, [&](std::string_view entry) {
      const std::string_view heading = HeadingText(entry);
      const std::string indent(kPlace.size() + 3, ' ');
      Write(indent + (heading.empty() ? std::string(entry) : "### " + std::string(heading)));
    });
  }

private:
  void Write(std::string line) {
    line.erase(line.find_last_not_of(' ') + 1);
    output_.Write(line + "\n");
  }

  Output& output_;
  std::size_t count_ = 0;
  std::size_t name_ = kName.size();
  std::size_t id_ = kId.size();
};

void WriteTable(Session& session, const std::string& path, Output& output) {
  const std::unique_ptr<Opened> opened = session.Open(path, Format::Lists);
  Table table(output);
  session.Read(*opened, [&](List&& list) { table.Measure(list); });
  const auto shownFirst = static_cast<std::size_t>(opened->reader->DefaultList());
  if (session.request.files.size() > 1)
    output.Write(opened->input.Name() + ":\n");
  table.WriteHead();
  std::size_t place = 0;
  session.ReadAgain(*opened, [&](List&& list) {
    table.WriteRow(list, place, place == shownFirst);
    if (session.request.symbols)
      table.WriteEntries(list);
    ++place;
  });
}

// All files in one document. The list shown first is that of the first file that has one.
void WriteDocument(Session& session, Output& output) {
  std::vector<std::unique_ptr<Opened>> files;
  int lists = 0;
  int shownFirst = -1;
  for (const std::string& path : session.request.files) {
    files.push_back(session.Open(path, Format::Lists));
    const int before = lists;
    session.Read(*files.back(), [&](List&&) { ++lists; });
    const int own = files.back()->reader->DefaultList();
    if (shownFirst < 0 && own >= 0)
      shownFirst = before + own;
  }
  const std::unique_ptr<Writer> writer =
      MakeJsonWriter([&](std::string_view text) { output.Write(text); });
  writer->Begin(shownFirst);
  for (const auto& file : files)
    session.ReadAgain(*file, [&](List&& list) { writer->Add(list); });
  writer->End();
}

} // namespace

int Show(Session& session) {
  RefuseStandardInputTwice(session.request.files);
  const std::unique_ptr<Output> output = session.OpenOutput(kStandardStream);
  if (session.request.json) {
    WriteDocument(session, *output);
  } else {
    for (const std::string& path : session.request.files)
      WriteTable(session, path, *output);
  }
  output->Commit();
  return session.Result();
}

} // namespace tqlists
