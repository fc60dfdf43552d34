// Merge and import: the lists of several files in one list file.
#include "tools/tqlists/verbs/Verbs.h"

#include <algorithm>
#include <vector>

#include "tools/tqlists/lists/Catalogue.h"
#include "tools/tqlists/lists/ListFileWriter.h"

namespace tqlists {
namespace {

using Files = std::vector<std::unique_ptr<Opened>>;

// What a reading of all files finds out.
struct Gathered {
  int shownFirst = -1;
  std::size_t lists = 0;
};

// Hands each list that is kept to `take`, in the form in which it is stored. `read` reads a file.
template <typename ReadFile, typename Tell, typename Take>
Gathered ReadAll(const Files& files, tq::TextEncoding encoding, ReadFile read, Tell tell,
                 Take take) {
  Gathered gathered;
  Catalogue catalogue(encoding);
  for (const auto& file : files) {
    std::vector<std::size_t> places; // of the file's lists among all
    catalogue.BeginFile();
    read(*file, [&](List&& list) {
      const std::string title = "\"" + list.name + "\" " + list.id + ": ";
      const Catalogue::Stored stored = catalogue.Add(list, [&](const std::string& change) {
        tell(file->input.Name() + ": " + title + change);
      });
      places.push_back(stored.place);
      if (!stored.isNew)
        return;
      ++gathered.lists;
      take(list);
    });
    const int own = file->reader->DefaultList();
    if (gathered.shownFirst < 0 && own >= 0 && static_cast<std::size_t>(own) < places.size())
      gathered.shownFirst = static_cast<int>(places[static_cast<std::size_t>(own)]);
  }
  return gathered;
}

// That of the first file, unless the user named one.
tq::TextEncoding EncodingFor(Session& session, Opened& first) {
  if (session.request.listEncoding)
    return *session.request.listEncoding;
  session.ReadAgain(first, [](List&&) {});
  return first.reader->Encoding();
}

int Gather(Session& session, Format otherwise) {
  const Request& request = session.request;
  RefuseStandardInputTwice(request.files);
  const std::unique_ptr<Output> output = session.OpenOutput(request.output);
  Files files;
  for (const std::string& path : request.files)
    files.push_back(session.Open(path, otherwise));
  const tq::TextEncoding encoding = EncodingFor(session, *files.front());
  const Gathered gathered = ReadAll(
      files, encoding, [&](Opened& file, const TakeList& take) { session.Read(file, take); },
      [&](const std::string& line) { session.Find(line); }, [](const List&) {});
  ListFileWriter writer(*output, encoding);
  writer.Begin(gathered.lists > 0 ? std::max(gathered.shownFirst, 0) : -1);
  ReadAll(
      files, encoding, [&](Opened& file, const TakeList& take) { session.ReadAgain(file, take); },
      [](const std::string&) {},
      [&](const List& list) { writer.Add(list.id, list.name, list.symbols); });
  writer.End();
  if (!writer.IsLoadable())
    session.Find(request.output + ": is larger than the library loads");
  output->Commit();
  return session.Result();
}

} // namespace

int Merge(Session& session) {
  return Gather(session, Format::Lists);
}

int Import(Session& session) {
  return Gather(session, Format::Text);
}

} // namespace tqlists
