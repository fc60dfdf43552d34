#include "symbollist/file/KeptCopies.h"

#include <algorithm>
#include <tuple>
#include <vector>

#include "platform/FileAccess.h"

namespace tq {
namespace {

constexpr char kExtension[] = ".xml";
constexpr int kExtensionLength = sizeof(kExtension) - 1;

struct Place {
  int number;
  bool taken;
  FileStamp stamp;
};

// The copies' names that can be used: free ones, and those of regular files.
std::vector<Place> PlacesOf(const CString& path) {
  std::vector<Place> places;
  for (int number = 0; number < kKeptCopies; ++number) {
    Place place{number, false, {}};
    const FileState state = Files().StateOf(KeptCopyPath(path, number), place.stamp);
    place.taken = state == FileState::File;
    if (place.taken || state == FileState::Missing)
      places.push_back(place);
  }
  return places;
}

bool Holds(const CString& copy, const Place& place, const std::string& bytes) {
  std::string kept;
  return place.taken && place.stamp.size == bytes.size() &&
         Files().ReadWholeFile(copy, bytes.size(), kept) == ReadResult::Ok && kept == bytes;
}

// Free names first, in order, then the copies from the oldest to the newest. Copies with equal
// times are ordered by number, starting after `last`, the most recent one.
void SortByTurn(std::vector<Place>& places, int last) {
  const auto turn = [last](const Place& place) {
    const int behind = (place.number - last - 1 + kKeptCopies) % kKeptCopies;
    return place.taken ? std::make_tuple(true, place.stamp.modified, behind)
                       : std::make_tuple(false, std::uint64_t{0}, place.number);
  };
  std::sort(places.begin(), places.end(),
            [&](const Place& one, const Place& other) { return turn(one) < turn(other); });
}

} // namespace

CString KeptCopyPath(const CString& path, int number) {
  const bool extended =
      path.GetLength() >= kExtensionLength && path.Right(kExtensionLength) == kExtension;
  CString copy = extended ? path.Left(path.GetLength() - kExtensionLength) : path;
  copy += "_Kept";
  if (number > 0)
    copy += std::to_string(number).c_str();
  return copy + kExtension;
}

KeepResult KeepCopy(const CString& path, const std::string& bytes, int& number) {
  std::vector<Place> places = PlacesOf(path);
  for (const Place& place : places) {
    if (Holds(KeptCopyPath(path, place.number), place, bytes)) {
      number = place.number;
      return KeepResult::KeptBefore;
    }
  }
  SortByTurn(places, number);
  for (const Place& place : places) {
    const CString copy = KeptCopyPath(path, place.number);
    const SaveResult result = Files().SaveWholeFile(copy, bytes.data(), bytes.size());
    if (result == SaveResult::Saved) {
      number = place.number;
      return KeepResult::Kept;
    }
    if (result == SaveResult::Failed)
      break; // the disk is full or broken, so no other name would work either
  }
  return KeepResult::Failed;
}

} // namespace tq
