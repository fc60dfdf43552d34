// One run of the program: opens what the request names, says what is found, and keeps count of it.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "tools/tqlists/files/Input.h"
#include "tools/tqlists/files/Output.h"
#include "tools/tqlists/files/Streams.h"
#include "tools/tqlists/formats/Format.h"
#include "tools/tqlists/formats/Writer.h"
#include "tools/tqlists/verbs/Request.h"

namespace tqlists {

// A file of lists in any format.
struct Opened {
  Input input;
  std::unique_ptr<Reader> reader;
};

class Session {
public:
  Session(const Request& request, Streams& streams) : request(request), streams(streams) {}

  const Request& request;
  Streams& streams;

  // Opens a file of lists; `otherwise` is its format where neither the request nor the file tells.
  // Places of its text that are no characters are findings.
  std::unique_ptr<Opened> Open(const std::string& path, Format otherwise);
  // Reads it, with a finding for each note and a line of progress. Throws an Ending of kFindings
  // when the file is broken.
  void Read(Opened& opened, const TakeList& take);
  // Reads it once more, in silence.
  void ReadAgain(Opened& opened, const TakeList& take);

  std::unique_ptr<Output> OpenOutput(const std::string& path);
  // Writes text into an output, in the encoding that was asked for.
  Sink SinkTo(Output& output);

  // Says a line that is not a finding.
  void Say(const std::string& line) { streams.Say(line + "\n"); }
  // Says one that is.
  void Find(const std::string& line);
  void CountFindings(std::size_t count) { findings_ += count; }
  int Result() const;

private:
  std::size_t findings_ = 0;
};

// Notes of one file as lines, "FILE:LINE:COLUMN: reason".
class FileNotes : public Notes {
public:
  FileNotes(std::string file, std::function<void(const std::string& line)> tell);
  void Add(std::size_t line, std::size_t column, std::string_view reason) override;
  std::size_t Count() const { return count_; }

private:
  const std::string file_;
  const std::function<void(const std::string& line)> tell_;
  std::size_t count_ = 0;
};

} // namespace tqlists
