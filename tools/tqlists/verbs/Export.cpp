// Lists as text, CSV or JSON, in one file or in a file for each.
#include "tools/tqlists/verbs/Verbs.h"

#include <cstdio>

#include "tools/tqlists/files/Outcome.h"

namespace tqlists {
namespace {

std::unique_ptr<Writer> MakeWriter(const Request& request, Sink sink) {
  if (request.to == Format::Csv)
    return MakeCsvWriter(std::move(sink));
  if (request.to == Format::Json)
    return MakeJsonWriter(std::move(sink));
  return MakeTextWriter(std::move(sink), request.plain ? TextStyle::Plain : TextStyle::Full);
}

const char* EndingOf(Format format) {
  if (format == Format::Csv)
    return ".csv";
  return format == Format::Json ? ".json" : ".txt";
}

// A list's name without what some system does not take in the name of a file.
std::string FileName(const std::string& name) {
  std::string file = OneLine(name);
  for (char& c : file) {
    if (std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos)
      c = '_';
  }
  return file;
}

// The number keeps the order of the lists, and no two names alike.
std::string PathFor(const Request& request, std::size_t place, const List& list) {
  char number[32];
  std::snprintf(number, sizeof number, "%03zu ", place + 1);
  return request.directory + "/" + number + FileName(list.name) + EndingOf(request.to);
}

void WriteOneFile(Session& session, Opened& opened) {
  const std::unique_ptr<Output> output = session.OpenOutput(session.request.output);
  const std::unique_ptr<Writer> writer = MakeWriter(session.request, session.SinkTo(*output));
  writer->Begin(opened.reader->DefaultList());
  session.ReadAgain(opened, [&](List&& list) { writer->Add(list); });
  writer->End();
  output->Commit();
}

void WriteFileForList(Session& session, const std::string& path, const List& list, bool isDefault) {
  const std::unique_ptr<Output> output = session.OpenOutput(path);
  const std::unique_ptr<Writer> writer = MakeWriter(session.request, session.SinkTo(*output));
  writer->Begin(isDefault ? 0 : -1);
  writer->Add(list);
  writer->End();
  output->Commit();
}

void WriteFileForEach(Session& session, Opened& opened) {
  const Request& request = session.request;
  if (!MakeDirectory(request.directory))
    throw Ending(kTrouble, request.directory + ": is no directory and cannot be made one");
  const auto shownFirst = static_cast<std::size_t>(opened.reader->DefaultList());
  std::size_t place = 0;
  session.ReadAgain(opened, [&](List&& list) {
    WriteFileForList(session, PathFor(request, place, list), list, place == shownFirst);
    ++place;
  });
}

} // namespace

int Export(Session& session) {
  const Request& request = session.request;
  const std::unique_ptr<Opened> opened = session.Open(request.files.front(), Format::Lists);
  std::size_t lists = 0;
  session.Read(*opened, [&](List&&) { ++lists; });
  if (request.plain && lists > 1 && request.directory.empty())
    throw Ending(kUsage, "with --plain nothing tells where a list begins: several lists need "
                         "--directory");
  if (request.directory.empty())
    WriteOneFile(session, *opened);
  else
    WriteFileForEach(session, *opened);
  return session.Result();
}

} // namespace tqlists
