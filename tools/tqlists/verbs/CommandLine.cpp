#include "tools/tqlists/verbs/CommandLine.h"

#include <algorithm>
#include <map>
#include <sstream>

#include <CLI/CLI.hpp>

#include "tools/tqlists/files/Outcome.h"

namespace tqlists {
namespace {

using Encoding = tq::TextEncoding;

const std::map<std::string, Encoding> kEncodings = {
    {"utf-8", Encoding::Utf8}, {"big5", Encoding::Big5}, {"gb2312", Encoding::Gbk}};
const std::map<std::string, Encoding> kDoubleByte = {{"big5", Encoding::Big5},
                                                     {"gb2312", Encoding::Gbk}};
const std::map<std::string, Format> kTargets = {
    {"text", Format::Text}, {"csv", Format::Csv}, {"json", Format::Json}};
const std::map<std::string, Format> kSources = {
    {"lists", Format::Lists}, {"text", Format::Text}, {"csv", Format::Csv}, {"json", Format::Json}};
const std::map<std::string, Kind> kKinds = {
    {"lists", Kind::Lists}, {"tslist", Kind::Trading}, {"import", Kind::Import}};

constexpr char kEnding[] =
    "\"-\" is standard input or output. Exit codes: 0 done and in order; 1 there were findings: "
    "something is\nwrong, was mended or lost, or differs; 2 the words are wrong; 3 a file cannot "
    "be "
    "read or written.";

// The names of the choices, for help.
template <typename Value> std::string NamesOf(const std::map<std::string, Value>& choices) {
  std::string names;
  for (const auto& [name, value] : choices)
    names += (names.empty() ? "" : "|") + name;
  return names;
}

// An option whose value is one of a few names.
template <typename Value, typename Target>
CLI::Option* AddChoice(CLI::App& verb, const std::string& name, Target& target,
                       const std::map<std::string, Value>& choices, const std::string& what) {
  const auto take = [&target, &choices](const std::string& word) { target = choices.at(word); };
  std::vector<std::string> names;
  for (const auto& [choice, value] : choices)
    names.push_back(choice);
  return verb.add_option_function<std::string>(name, take, what)
      ->check([names](const std::string& word) {
        const bool known = std::find(names.begin(), names.end(), word) != names.end();
        return known ? std::string() : "\"" + word + "\" is none of its values";
      })
      ->type_name(NamesOf(choices));
}

class Grammar {
public:
  explicit Grammar(Request& request) : request_(request) {
    app_.require_subcommand(1);
    app_.footer("tqlists VERB --help tells more of one.\n" + std::string(kEnding));
    app_.set_version_flag("--version", "tqlists " TQ_PROJECT_VERSION);
    AddReadingVerbs();
    AddWritingVerbs();
  }

  CLI::App& App() { return app_; }

private:
  void AddReadingVerbs();
  void AddWritingVerbs();

  CLI::App& Add(Verb verb, const std::string& name, const std::string& what, int files, int most) {
    CLI::App* const added = app_.add_subcommand(name, what);
    added->footer(kEnding);
    added->callback([this, verb] { request_.verb = verb; });
    added->add_option("FILE", request_.files, "what is read; \"-\" is standard input")
        ->required()
        ->expected(files, most)
        ->type_name("");
    return *added;
  }
  void Flag(CLI::App& verb, const char* name, bool& flag, const char* what) {
    verb.add_flag(name, flag, what);
  }
  void Output(CLI::App& verb, bool required) {
    verb.add_option("-o,--output", request_.output,
                    "the file that is written; \"-\" is standard output")
        ->required(required)
        ->type_name("NEW");
    Flag(verb, "--force", request_.force, "replaces NEW when it exists; never a file that is read");
  }
  void Assume(CLI::App& verb) {
    AddChoice(verb, "--assume", request_.assumed, kDoubleByte,
              "what a list file is in that does not tell (big5)");
  }
  void Source(CLI::App& verb) {
    AddChoice(verb, "--from", request_.from, kSources,
              "the format that is read, where the file does not tell");
    AddChoice(verb, "--encoding", request_.encoding, kEncodings, "of text, CSV and JSON (utf-8)");
  }
  void ListEncoding(CLI::App& verb, const char* what) {
    AddChoice(verb, "--list-encoding", request_.listEncoding, kEncodings, what);
  }

  Request& request_;
  CLI::App app_{"Shows, checks, mends and converts files of watch lists.", "tqlists"};
};

constexpr int kAnyNumber = 1 << 20;

void Grammar::AddReadingVerbs() {
  CLI::App& show = Add(Verb::Show, "show", "Shows lists as a table.", 1, kAnyNumber);
  Flag(show, "--symbols", request_.symbols, "with each symbol and heading");
  Flag(show, "--json", request_.json, "as a JSON document, which import takes");
  Source(show);
  Assume(show);

  CLI::App& check = Add(Verb::Check, "check",
                        "Says what is wrong with files of the library, and where.", 1, kAnyNumber);
  AddChoice(check, "--kind", request_.kind, kKinds,
            "list file or backup, TSList.xml, file of an older product; the file tells");
  Assume(check);

  CLI::App& diff = Add(Verb::Diff, "diff", "Compares two files of lists.", 2, 2);
  Flag(diff, "--json", request_.json, "as a JSON document");
  Source(diff);
  Assume(diff);
}

void Grammar::AddWritingVerbs() {
  CLI::App& repair =
      Add(Verb::Repair, "repair", "Writes the lists of a damaged list file into a new one.", 1, 1);
  Output(repair, true);
  AddChoice(repair, "--encoding", request_.encoding, kEncodings, "of NEW (as in FILE)");
  Assume(repair);

  CLI::App& convert =
      Add(Verb::Convert, "convert", "Writes a list file in another encoding.", 1, 1);
  Output(convert, true);
  AddChoice(convert, "--to", request_.listEncoding, kEncodings, "the encoding of NEW")->required();
  Flag(convert, "--strict", request_.strict, "writes nothing when there is a finding");
  Assume(convert);

  CLI::App& merge = Add(Verb::Merge, "merge",
                        "Writes the lists of several files into one list file.", 1, kAnyNumber);
  Output(merge, true);
  ListEncoding(merge, "of NEW (as in the first FILE)");
  Source(merge);
  Assume(merge);

  CLI::App& import =
      Add(Verb::Import, "import", "Makes a list file of text, CSV or JSON.", 1, kAnyNumber);
  Output(import, true);
  ListEncoding(import, "of NEW (utf-8, which every terminal loads)");
  Source(import);

  CLI::App& exported = Add(Verb::Export, "export", "Writes lists as text, CSV or JSON.", 1, 1);
  AddChoice(exported, "--to", request_.to, kTargets, "the format that is written (text)");
  Output(exported, false);
  exported.add_option("--directory", request_.directory, "writes a file for each list into DIR")
      ->type_name("DIR")
      ->excludes("--output");
  Flag(exported, "--plain", request_.plain, "text without the lines that begin with \"# \"");
  Source(exported);
  Assume(exported);
}

} // namespace

CommandLine ReadCommandLine(std::vector<std::string> words) {
  CommandLine line;
  Grammar grammar(line.request);
  std::reverse(words.begin(), words.end()); // as the library wants them
  try {
    grammar.App().parse(std::move(words));
  } catch (const CLI::ParseError& error) {
    std::ostringstream out;
    std::ostringstream err;
    const bool good = grammar.App().exit(error, out, err) == 0;
    line.isDone = true;
    line.code = good ? kGood : kUsage;
    line.out = out.str();
    line.err = err.str();
  }
  return line;
}

} // namespace tqlists
