#include "recovery/ListRecovery.h"

#include <algorithm>
#include <optional>

#include "platform/xml/XmlText.h"
#include "recovery/DocumentLists.h"
#include "recovery/ListMaker.h"
#include "recovery/SeenLists.h"
#include "recovery/damage/DamagedLists.h"
#include "recovery/xml/FileText.h"

namespace tq {
namespace {

// How sure it is that text is in the encoding that a file names, or that a mark at its beginning
// says, or that is assumed of a file that says nothing.
constexpr double kTrustInDeclaration = 15;
constexpr double kTrustInMark = 100;
constexpr double kTrustInAssumption = 5;

Charset CharsetOfFile(const FileText& file, TextEncoding assumed) {
  const bool ascii = file.Declared() == Charset::Ascii;
  if (file.IsDeclared())
    return LikeliestCharset(file.Text(), ascii ? Charset::Utf8 : file.Declared(),
                            file.IsMarked() ? kTrustInMark : kTrustInDeclaration);
  if (IsTextOf(Charset::Utf8, file.Text()))
    return Charset::Utf8;
  return LikeliestCharset(file.Text(), CharsetOf(assumed), kTrustInAssumption);
}

TextEncoding EncodingOf(Charset charset) {
  if (charset == Charset::Big5)
    return TextEncoding::Big5;
  return charset == Charset::Gbk ? TextEncoding::Gbk : TextEncoding::Utf8;
}

bool HoldsNothing(std::string_view file) {
  return file.find_first_not_of('\0') == std::string_view::npos;
}

} // namespace

class ListRecovery::Reader {
public:
  Reader(std::string_view file, const RecoveryOptions& options);

  bool Next(RecoveredList& list);
  int DefaultList() const;
  const std::vector<Finding>& Findings() const { return findings_; }
  TextEncoding Encoding() const { return EncodingOf(charset_); }
  bool IsSound() const { return findings_.empty() && !anyInLists_; }

private:
  void Note(Fault fault, std::size_t at, std::size_t length);
  void NoteDeclaration();
  void OpenSource();
  bool Take(RecoveredList& list);
  bool IsRepeated(RecoveredList& list);
  void Finish();

  const std::string_view file_;
  const FileText text_;
  const Charset charset_;
  ListMaker maker_;
  std::unique_ptr<ListSource> source_;
  PlaceFinder places_;
  SeenLists seen_;
  RawList raw_;
  std::vector<RawFault> listFaults_;
  std::vector<RawFault> fileFaults_;
  std::optional<RawFault> strictFault_; // the first one for which the library refuses the file
  std::vector<int> numbers_; // of each list in the file the one that came back; -1 for none
  int cameBack_ = 0;
  bool anyInLists_ = false;
  std::vector<Finding> findings_;
};

ListRecovery::Reader::Reader(std::string_view file, const RecoveryOptions& options)
    : file_(file), text_(file), charset_(CharsetOfFile(text_, options.assumed)),
      maker_(text_.Text(), charset_, options.encoding), places_(text_) {
  if (HoldsNothing(file)) {
    Note(Fault::Empty, 0, 0);
    return;
  }
  if (file.size() > kXmlSizeLimit)
    Note(Fault::Limit, 0, 0);
  NoteDeclaration();
  OpenSource();
}

void ListRecovery::Reader::Note(Fault fault, std::size_t at, std::size_t length) {
  if (fileFaults_.size() < kMostNotedOfFile)
    fileFaults_.push_back({fault, at, length});
}

void ListRecovery::Reader::NoteDeclaration() {
  const std::size_t length = text_.DeclarationLength();
  if (text_.Declaration() != DeclarationState::Fine)
    Note(Fault::Declaration, 0, file_.size());
  else if (charset_ != text_.Declared() && !IsPlain(text_.Text()))
    Note(text_.IsDeclared() ? Fault::WrongEncoding : Fault::Declaration, 0, length);
}

void ListRecovery::Reader::OpenSource() {
  const std::string_view text = text_.Text();
  const std::size_t begin = text_.DeclarationLength();
  FaultList faults(1);
  if (DocumentLists::IsReadable(text, begin, charset_, faults)) {
    source_ = std::make_unique<DocumentLists>(text, begin, charset_);
    return;
  }
  strictFault_ = faults.All().front();
  source_ = std::make_unique<DamagedLists>(text);
}

// Whether the list is there already; one of the same identifier alone gets a new one.
bool ListRecovery::Reader::IsRepeated(RecoveredList& list) {
  const SeenLists::Kind kind = list.id.empty() ? SeenLists::Kind::New : seen_.Look(list);
  if (kind == SeenLists::Kind::SameList) {
    numbers_.push_back(seen_.NumberOf(list));
    Note(Fault::RepeatedList, raw_.begin, raw_.end - raw_.begin);
    return true;
  }
  if (kind == SeenLists::Kind::SameId) {
    listFaults_.insert(listFaults_.begin(), {Fault::RepeatedId, raw_.begin, 0});
    list.fate = ListFate::Repaired;
  }
  if (kind == SeenLists::Kind::SameId || list.id.empty())
    list.id = seen_.NewId(text_.Text().substr(raw_.begin, raw_.end - raw_.begin), raw_.begin);
  return false;
}

// False for a list that is left out.
bool ListRecovery::Reader::Take(RecoveredList& list) {
  maker_.Make(raw_, list, listFaults_);
  const bool lost = list.fate == ListFate::Lost;
  if (!lost && IsRepeated(list))
    return false;
  if (!lost)
    seen_.Note(list, cameBack_);
  numbers_.push_back(lost ? -1 : cameBack_++);
  const Finding place = places_.Find(raw_.begin);
  list.offset = place.offset;
  list.line = place.line;
  list.findings.clear();
  for (std::size_t i = 0; i < std::min(listFaults_.size(), kMostFindings); ++i)
    list.findings.push_back(places_.Find(listFaults_[i]));
  anyInLists_ |= !listFaults_.empty();
  return true;
}

bool ListRecovery::Reader::Next(RecoveredList& list) {
  while (source_ != nullptr && source_->Next(raw_)) {
    if (Take(list))
      return true;
  }
  Finish();
  return false;
}

void ListRecovery::Reader::Finish() {
  if (!findings_.empty())
    return;
  if (strictFault_ && numbers_.empty())
    Note(Fault::NoLists, 0, 0);
  const bool told =
      anyInLists_ || !fileFaults_.empty() || (source_ != nullptr && !source_->Faults().empty());
  const bool limit = strictFault_ && strictFault_->fault == Fault::Limit;
  if (strictFault_ && (limit || !told))
    Note(strictFault_->fault, strictFault_->at, strictFault_->length);
  if (source_ != nullptr)
    fileFaults_.insert(fileFaults_.end(), source_->Faults().begin(), source_->Faults().end());
  std::stable_sort(fileFaults_.begin(), fileFaults_.end(),
                   [](const RawFault& one, const RawFault& other) { return one.at < other.at; });
  PlaceFinder places(text_);
  for (const RawFault& fault : fileFaults_)
    findings_.push_back(places.Find(fault));
}

int ListRecovery::Reader::DefaultList() const {
  const std::optional<int> index = source_ != nullptr ? source_->Index() : std::nullopt;
  if (!index)
    return cameBack_ > 0 ? 0 : -1;
  const auto place = static_cast<std::size_t>(*index);
  return *index >= 0 && place < numbers_.size() ? numbers_[place] : -1;
}

ListRecovery::ListRecovery(std::string_view file, const RecoveryOptions& options)
    : reader_(std::make_unique<Reader>(file, options)) {}

ListRecovery::~ListRecovery() = default;

bool ListRecovery::Next(RecoveredList& list) {
  return reader_->Next(list);
}

int ListRecovery::DefaultList() const {
  return reader_->DefaultList();
}

const std::vector<Finding>& ListRecovery::Findings() const {
  return reader_->Findings();
}

TextEncoding ListRecovery::Encoding() const {
  return reader_->Encoding();
}

bool ListRecovery::IsSound() const {
  return reader_->IsSound();
}

} // namespace tq
