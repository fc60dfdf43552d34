#include "recovery/DocumentFaults.h"

#include "platform/xml/XmlText.h"
#include "recovery/xml/DocumentWalk.h"
#include "recovery/xml/FileText.h"

namespace tq {
namespace {

bool IsNothing(std::string_view file) {
  return file.find_first_not_of('\0') == std::string_view::npos;
}

void NoteFaults(std::string_view file, const FileText& text, FaultList& faults) {
  if (IsNothing(file))
    return faults.Note(Fault::Empty, 0, 0);
  if (file.size() > kXmlSizeLimit)
    faults.Note(Fault::Limit, 0, 0);
  if (text.Declaration() != DeclarationState::Fine)
    faults.Note(Fault::Declaration, 0, 60);
  DocumentWalk walk(text.Text(), text.DeclarationLength(), text.Declared(), faults);
  while (walk.Next() != DocumentPiece::End)
    continue;
}

} // namespace

std::vector<Finding> DocumentFaults(std::string_view file, std::size_t most) {
  const FileText text(file);
  FaultList faults(most);
  NoteFaults(file, text, faults);
  PlaceFinder places(text);
  std::vector<Finding> found;
  for (const RawFault& fault : faults.All())
    found.push_back(places.Find(fault));
  return found;
}

} // namespace tq
