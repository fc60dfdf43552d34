// The formats in which lists are read and written, and what reads each of them.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "recovery/ListRecovery.h"
#include "tools/tqlists/files/Progress.h"
#include "tools/tqlists/formats/Entries.h"
#include "tools/tqlists/formats/Notes.h"

namespace tqlists {

enum class Format {
  Unknown,
  Lists, // a list file or a backup
  Text,
  Csv,
  Json,
};

// What the bytes or the ending of the name show; `otherwise` when they show nothing.
Format FormatOf(std::string_view bytes, const std::string& path, Format otherwise);

using TakeList = std::function<void(List&& list)>;

// Reads the lists of one file. Reading twice gives the same.
class Reader {
public:
  virtual ~Reader() = default;
  // Calls `take` for each list, in order.
  virtual void Read(const TakeList& take, Notes& notes, Progress& progress) = 0;
  // After Read: which list is shown first, from 0; -1 for none.
  int DefaultList() const { return default_; }
  // After Read: the file is not what it was taken for, and what came of it is not to be used.
  bool IsBroken() const { return broken_; }
  // After Read: what a list file's text is in; of the other formats UTF-8.
  tq::TextEncoding Encoding() const { return encoding_; }

protected:
  int default_ = -1;
  bool broken_ = false;
  tq::TextEncoding encoding_ = tq::TextEncoding::Utf8;
};

// Text, CSV and JSON are UTF-8 here; a list file is as it is. `assumed` is what a list file's text
// is taken for that does not say. `bytes` must outlive the reader. A list without a name is called
// `stem`.
std::unique_ptr<Reader> MakeReader(Format format, std::string_view bytes, const std::string& stem,
                                   tq::TextEncoding assumed);

std::unique_ptr<Reader> MakeListFileReader(std::string_view bytes, tq::TextEncoding assumed);
std::unique_ptr<Reader> MakeTextReader(std::string_view bytes, const std::string& stem);
std::unique_ptr<Reader> MakeCsvReader(std::string_view bytes, const std::string& stem);
std::unique_ptr<Reader> MakeJsonReader(std::string_view bytes, const std::string& stem);

} // namespace tqlists
