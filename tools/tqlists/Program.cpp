#include "tools/tqlists/Program.h"

#include <exception>
#include <new>

#include "tools/tqlists/files/Outcome.h"
#include "tools/tqlists/verbs/CommandLine.h"
#include "tools/tqlists/verbs/Verbs.h"

namespace tqlists {
namespace {

int Do(Session& session) {
  switch (session.request.verb) {
  case Verb::Show:
    return Show(session);
  case Verb::Check:
    return Check(session);
  case Verb::Repair:
    return Repair(session);
  case Verb::Convert:
    return Convert(session);
  case Verb::Diff:
    return Diff(session);
  case Verb::Merge:
    return Merge(session);
  case Verb::Export:
    return Export(session);
  case Verb::Import:
    return Import(session);
  }
  return kUsage;
}

int RunWords(const std::vector<std::string>& words, Streams& streams) {
  const CommandLine line = ReadCommandLine(words);
  if (line.isDone) {
    streams.Write(line.out);
    streams.Flush();
    streams.Say(line.err);
    return line.code;
  }
  Session session(line.request, streams);
  return Do(session);
}

} // namespace

int Run(const std::vector<std::string>& words, Streams& streams) noexcept {
  try {
    return RunWords(words, streams);
  } catch (const Ending& ending) {
    if (*ending.what() != '\0')
      streams.Say(std::string("tqlists: ") + ending.what() + "\n");
    return ending.Code();
  } catch (const std::bad_alloc&) {
    streams.Say("tqlists: not enough memory\n");
  } catch (const std::exception& error) {
    streams.Say(std::string("tqlists: ") + error.what() + "\n");
  }
  return kTrouble;
}

} // namespace tqlists
