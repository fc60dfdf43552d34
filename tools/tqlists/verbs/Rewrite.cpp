// Repair and convert: a list file written anew from what recovery finds in it.
#include "tools/tqlists/verbs/Verbs.h"

#include <algorithm>
#include <array>

#include "tools/tqlists/files/Outcome.h"
#include "tools/tqlists/formats/Charset.h"
#include "tools/tqlists/lists/ListFileWriter.h"

namespace tqlists {
namespace {

// What the file is, found out before it is written.
struct Survey {
  tq::TextEncoding encoding = tq::TextEncoding::Utf8;
  int shownFirst = -1;
  std::size_t lists = 0;
};

// Hands every list of the file to `take`, and the findings of the file as a whole to `notes`.
template <typename Take>
Survey Recover(Session& session, const Input& input, tq::TextEncoding encoding, Notes& notes,
               Take take) {
  tq::ListRecovery recovery(input.bytes, {encoding, session.request.assumed});
  Progress progress(input.Name(), input.bytes.size(), session.streams);
  tq::RecoveredList list;
  Survey survey;
  while (recovery.Next(list)) {
    progress.At(list.offset);
    survey.lists += list.fate == tq::ListFate::Lost ? 0 : 1;
    take(list);
  }
  for (const tq::Finding& finding : recovery.Findings())
    AddFinding(notes, finding);
  survey.encoding = recovery.Encoding();
  survey.shownFirst = recovery.DefaultList();
  return survey;
}

Survey Look(Session& session, const Input& input) {
  NoNotes notes;
  return Recover(session, input, tq::TextEncoding::Utf8, notes, [](const tq::RecoveredList&) {});
}

std::string InUtf8(const std::string& text, tq::TextEncoding encoding) {
  return DecodeFile(text, encoding, [](std::size_t) {});
}

constexpr std::array<const char*, 3> kFates = {"whole", "repaired", "lost"};

// Says what became of each list.
class Report {
public:
  Report(Session& session, const Input& input, tq::TextEncoding encoding)
      : session_(session), file_(input.Name()), encoding_(encoding),
        notes_(file_, [this](const std::string& line) { session_.Find(line); }) {}

  Notes& FileFindings() { return notes_; }

  void Tell(const tq::RecoveredList& list) {
    ++lists_;
    if (list.fate == tq::ListFate::Whole && list.findings.empty() && !tellWhole_)
      return;
    session_.Say(file_ + ": list " + std::to_string(lists_) + " \"" +
                 Shown(InUtf8(list.name, encoding_)) + "\" " + Shown(InUtf8(list.id, encoding_)) +
                 ": " + kFates[static_cast<std::size_t>(list.fate)]);
    for (const tq::Finding& finding : list.findings)
      AddFinding(notes_, finding);
    session_.CountFindings(list.fate == tq::ListFate::Whole ? 0 : 1);
    TellReferences(list);
  }
  void TellWholeListsToo() { tellWhole_ = true; }

private:
  // The library's next save writes such a value as it is, and no load takes that.
  void TellReferences(const tq::RecoveredList& list) {
    if (list.fate == tq::ListFate::Repaired &&
        (NeedsReferences(list.id) || NeedsReferences(list.name) || NeedsReferences(list.symbols)))
      session_.Say("  its ', & and < are written as references");
  }

  Session& session_;
  const std::string file_;
  const tq::TextEncoding encoding_;
  FileNotes notes_;
  std::size_t lists_ = 0;
  bool tellWhole_ = false;
};

// Writes the file; `tell` gets each list, lost ones too.
template <typename Tell>
void WriteLists(Session& session, const Input& input, const Survey& survey,
                tq::TextEncoding encoding, Output& output, Notes& notes, Tell tell) {
  ListFileWriter writer(output, encoding);
  writer.Begin(survey.lists > 0 ? std::max(survey.shownFirst, 0) : -1);
  Recover(session, input, encoding, notes, [&](const tq::RecoveredList& list) {
    tell(list);
    if (list.fate != tq::ListFate::Lost)
      writer.Add(list.id, list.name, list.symbols);
  });
  writer.End();
  if (!writer.IsLoadable())
    session.Find(session.request.output + ": is larger than the library loads");
}

// Names the characters that an encoding lacks. Goes through the file beside the lists that are
// written.
class Lacking {
public:
  Lacking(Session& session, const Input& input, tq::TextEncoding encoding)
      : session_(session), file_(input.Name()), encoder_(encoding),
        recovery_(input.bytes, {tq::TextEncoding::Utf8, session.request.assumed}) {}

  // To be called for each list in turn.
  void TellNext() {
    tq::RecoveredList list;
    if (!recovery_.Next(list))
      return;
    std::string lost;
    for (const std::string* text : {&list.id, &list.name, &list.symbols})
      encoder_.Encode(*text, [&](char32_t character) { lost += " " + Named(character); });
    if (!lost.empty())
      session_.Find(file_ + ": \"" + Shown(list.name) + "\" " + Shown(list.id) + ": " +
                    NameOf(encoder_.Encoding()) + " lacks" + lost);
  }

private:
  Session& session_;
  const std::string file_;
  Encoder encoder_;
  tq::ListRecovery recovery_;
};

void RefuseNothing(const Input& input, const Survey& survey) {
  if (survey.lists == 0)
    throw Ending(kFindings, input.Name() + ": nothing in it is a list; nothing is written");
}

} // namespace

int Repair(Session& session) {
  const Request& request = session.request;
  const std::unique_ptr<Output> output = session.OpenOutput(request.output);
  const Input input = ReadInput(request.files.front(), session.streams);
  const Survey survey = Look(session, input);
  RefuseNothing(input, survey);
  const tq::TextEncoding encoding = request.encoding.value_or(survey.encoding);
  Report report(session, input, encoding);
  report.TellWholeListsToo();
  WriteLists(session, input, survey, encoding, *output, report.FileFindings(),
             [&](const tq::RecoveredList& list) { report.Tell(list); });
  output->Commit();
  return session.Result();
}

int Convert(Session& session) {
  const Request& request = session.request;
  const std::unique_ptr<Output> output = session.OpenOutput(request.output);
  const Input input = ReadInput(request.files.front(), session.streams);
  const Survey survey = Look(session, input);
  RefuseNothing(input, survey);
  const tq::TextEncoding encoding = *request.listEncoding;
  Report report(session, input, encoding);
  Lacking lacking(session, input, encoding);
  const auto tell = [&](const tq::RecoveredList& list) {
    report.Tell(list);
    if (survey.encoding != encoding)
      lacking.TellNext();
  };
  if (request.strict) {
    Recover(session, input, encoding, report.FileFindings(), tell);
    if (session.Result() != kGood)
      throw Ending(kFindings, input.Name() + ": is not converted");
    NoNotes notes;
    WriteLists(session, input, survey, encoding, *output, notes, [](const tq::RecoveredList&) {});
  } else {
    WriteLists(session, input, survey, encoding, *output, report.FileFindings(), tell);
  }
  output->Commit();
  return session.Result();
}

} // namespace tqlists
