// What is wrong with files of the library, with the place of each finding.
#include "tools/tqlists/verbs/Verbs.h"

#include <array>

#include "recovery/DocumentFaults.h"
#include "tools/tqlists/formats/Charset.h"
#include "tools/tqlists/lists/DocumentChecks.h"
#include "tools/tqlists/lists/XmlTags.h"

namespace tqlists {
namespace {

constexpr std::size_t kMostFaults = 1000;

Kind KindOf(std::string_view bytes) {
  std::string utf8;
  if (tq::IsUtf16(bytes) && tq::DecodeUtf16(bytes, utf8))
    return KindOf(utf8);
  const std::string_view root = RootOf(bytes);
  if (root == "TSList")
    return Kind::Trading;
  return root == "HaldeUserList" ? Kind::Import : Kind::Lists;
}

struct Counts {
  std::array<std::size_t, 3> fates{}; // by ListFate
  bool sound = false;
};

// In the text's own encoding, in which every character is there.
Counts CheckLists(Session& session, const Input& input, tq::TextEncoding encoding, Notes& notes) {
  tq::ListRecovery recovery(input.bytes, {encoding, session.request.assumed});
  Progress progress(input.Name(), input.bytes.size(), session.streams);
  Counts counts;
  tq::RecoveredList list;
  while (recovery.Next(list)) {
    progress.At(list.offset);
    ++counts.fates[static_cast<std::size_t>(list.fate)];
    for (const tq::Finding& finding : list.findings)
      AddFinding(notes, finding);
  }
  for (const tq::Finding& finding : recovery.Findings())
    AddFinding(notes, finding);
  counts.sound = recovery.IsSound();
  return counts;
}

tq::TextEncoding EncodingOf(Session& session, const Input& input) {
  tq::ListRecovery recovery(input.bytes, {tq::TextEncoding::Utf8, session.request.assumed});
  for (tq::RecoveredList list; recovery.Next(list);) {
  }
  return recovery.Encoding();
}

std::string Verdict(const Counts& counts, tq::TextEncoding encoding) {
  const auto& [whole, repaired, lost] = counts.fates;
  if (counts.sound)
    return std::to_string(whole) + " lists in " + NameOf(encoding) + ", which the library loads";
  return "the library does not load it as it stands; repair gives back " + std::to_string(whole) +
         " lists whole and " + std::to_string(repaired) + " repaired; " + std::to_string(lost) +
         " are lost";
}

std::string CheckListFile(Session& session, const Input& input, Notes& notes) {
  const tq::TextEncoding encoding = EncodingOf(session, input);
  return Verdict(CheckLists(session, input, encoding, notes), encoding);
}

std::string CheckDocument(const Input& input, Kind kind, FileNotes& notes) {
  for (const tq::Finding& fault : tq::DocumentFaults(input.bytes, kMostFaults))
    AddFinding(notes, fault);
  if (notes.Count() > 0)
    return kind == Kind::Import ? "the library imports nothing of it" : "no well-formed document";
  std::string utf8;
  const bool wide = tq::IsUtf16(input.bytes) && tq::DecodeUtf16(input.bytes, utf8);
  const std::string_view document = wide ? std::string_view(utf8) : input.bytes;
  if (kind == Kind::Import)
    return std::to_string(CheckImport(document, notes)) + " lists, which the library imports";
  return std::to_string(CheckTrading(document, notes)) + " trading systems";
}

void CheckFile(Session& session, const std::string& path, Output& output) {
  const Input input = ReadInput(path, session.streams);
  FileNotes notes(input.Name(), [&](const std::string& line) { output.Write(line + "\n"); });
  const Kind kind =
      session.request.kind == Kind::Unknown ? KindOf(input.bytes) : session.request.kind;
  const std::string verdict = kind == Kind::Lists ? CheckListFile(session, input, notes)
                                                  : CheckDocument(input, kind, notes);
  output.Write(input.Name() + ": " + verdict + "\n");
  session.CountFindings(notes.Count());
}

} // namespace

int Check(Session& session) {
  RefuseStandardInputTwice(session.request.files);
  const std::unique_ptr<Output> output = session.OpenOutput(kStandardStream);
  for (const std::string& path : session.request.files)
    CheckFile(session, path, *output);
  output->Commit();
  return session.Result();
}

} // namespace tqlists
