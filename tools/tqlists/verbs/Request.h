// What the user asked for.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/tqlists/formats/Format.h"

namespace tqlists {

enum class Verb { Show, Check, Repair, Convert, Diff, Merge, Export, Import };

enum class Kind {
  Unknown, // the file's root element tells
  Lists,
  Trading, // TSList.xml
  Import,  // OldOTVList.xml
};

struct Request {
  Verb verb = Verb::Show;
  std::vector<std::string> files;
  std::string output = "-";
  std::string directory; // for a file for each list; empty: one file
  Kind kind = Kind::Unknown;
  Format from = Format::Unknown;
  Format to = Format::Text;
  std::optional<tq::TextEncoding> encoding;     // of text and CSV; of the file that repair writes
  std::optional<tq::TextEncoding> listEncoding; // of the list file that is written
  tq::TextEncoding assumed = tq::TextEncoding::Big5; // of a list file that does not tell
  bool json = false;
  bool symbols = false;
  bool strict = false;
  bool force = false;
  bool plain = false;
};

} // namespace tqlists
