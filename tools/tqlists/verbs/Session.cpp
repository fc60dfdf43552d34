#include "tools/tqlists/verbs/Session.h"

#include <utility>

#include "tools/tqlists/files/Outcome.h"
#include "tools/tqlists/formats/Charset.h"
#include "tools/tqlists/formats/Place.h"

namespace tqlists {
namespace {

constexpr std::size_t kMostBadPlaces = 32;

// Puts the text of a file into UTF-8. What is so already is not copied.
void DecodeInput(Input& input, tq::TextEncoding encoding, Notes& notes) {
  if (encoding == tq::TextEncoding::Utf8 && IsPlainUtf8(input.bytes))
    return;
  PlaceFinder places(input.bytes);
  std::size_t bad = 0;
  std::string utf8 = DecodeFile(input.bytes, encoding, [&](std::size_t offset) {
    if (++bad > kMostBadPlaces)
      return;
    const Place place = places.Find(offset);
    notes.Add(place.line, place.column, std::string("no character of ") + NameOf(encoding));
  });
  if (bad > kMostBadPlaces)
    notes.Add(0, 0, std::to_string(bad) + " places are no characters of " + NameOf(encoding));
  input.bytes = std::move(utf8);
}

} // namespace

std::unique_ptr<Opened> Session::Open(const std::string& path, Format otherwise) {
  auto opened = std::make_unique<Opened>();
  Input& input = opened->input;
  input = ReadInput(path, streams);
  const Format format =
      request.from == Format::Unknown ? FormatOf(input.bytes, path, otherwise) : request.from;
  if (format != Format::Lists) {
    FileNotes notes(input.Name(), [&](const std::string& line) { Find(line); });
    DecodeInput(input, request.encoding.value_or(tq::TextEncoding::Utf8), notes);
  }
  opened->reader = MakeReader(format, input.bytes, input.Stem(), request.assumed);
  return opened;
}

void Session::Read(Opened& opened, const TakeList& take) {
  FileNotes notes(opened.input.Name(), [&](const std::string& line) { Find(line); });
  {
    Progress progress(opened.input.Name(), opened.input.bytes.size(), streams);
    opened.reader->Read(take, notes, progress);
  }
  if (opened.reader->IsBroken())
    throw Ending(kFindings, opened.input.Name() + ": is left as it is; nothing is done");
}

void Session::ReadAgain(Opened& opened, const TakeList& take) {
  NoNotes notes;
  Progress progress(opened.input.Name(), opened.input.bytes.size(), streams);
  opened.reader->Read(take, notes, progress);
}

std::unique_ptr<Output> Session::OpenOutput(const std::string& path) {
  RefuseSameFile(request.files, path);
  return Output::Open(path, request.force ? Existing::Replace : Existing::Refuse, streams);
}

Sink Session::SinkTo(Output& output) {
  const tq::TextEncoding encoding = request.encoding.value_or(tq::TextEncoding::Utf8);
  if (encoding == tq::TextEncoding::Utf8)
    return [&output](std::string_view text) { output.Write(text); };
  const auto encoder = std::make_shared<Encoder>(encoding);
  return [this, &output, encoder](std::string_view text) {
    output.Write(encoder->Encode(text, [&](char32_t character) {
      Find(std::string("a character that ") + NameOf(encoder->Encoding()) +
           " lacks; \"?\" stands for it: " + Named(character));
    }));
  };
}

void Session::Find(const std::string& line) {
  ++findings_;
  Say(line);
}

int Session::Result() const {
  return findings_ == 0 ? kGood : kFindings;
}

FileNotes::FileNotes(std::string file, std::function<void(const std::string& line)> tell)
    : file_(std::move(file)), tell_(std::move(tell)) {}

void FileNotes::Add(std::size_t line, std::size_t column, std::string_view reason) {
  ++count_;
  std::string text = file_ + ":";
  if (line != 0)
    text += std::to_string(line) + ":" + std::to_string(column) + ":";
  tell_(text + " " + std::string(reason));
}

} // namespace tqlists
