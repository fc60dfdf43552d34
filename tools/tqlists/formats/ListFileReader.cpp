// The lists of a list file, as recovery finds them.
#include "tools/tqlists/formats/Format.h"

namespace tqlists {
namespace {

class ListFileReader : public Reader {
public:
  ListFileReader(std::string_view bytes, tq::TextEncoding assumed) : bytes_(bytes) {
    options_.assumed = assumed;
  }
  void Read(const TakeList& take, Notes& notes, Progress& progress) override;

private:
  const std::string_view bytes_;
  tq::RecoveryOptions options_;
};

void ListFileReader::Read(const TakeList& take, Notes& notes, Progress& progress) {
  tq::ListRecovery recovery(bytes_, options_);
  tq::RecoveredList found;
  while (recovery.Next(found)) {
    progress.At(found.offset);
    for (const tq::Finding& finding : found.findings)
      AddFinding(notes, finding);
    if (found.fate != tq::ListFate::Lost)
      take({OneLine(found.id), OneLine(found.name), OneLine(found.symbols)});
  }
  for (const tq::Finding& finding : recovery.Findings())
    AddFinding(notes, finding);
  default_ = recovery.DefaultList();
  encoding_ = recovery.Encoding();
}

} // namespace

std::unique_ptr<Reader> MakeListFileReader(std::string_view bytes, tq::TextEncoding assumed) {
  return std::make_unique<ListFileReader>(bytes, assumed);
}

} // namespace tqlists
