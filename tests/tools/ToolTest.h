// Runs tqlists within the test, on files of a directory of its own.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tools/tqlists/Program.h"
#include "tools/tqlists/formats/Entries.h"

// Streams that are strings.
class TextStreams : public tqlists::Streams {
public:
  std::size_t Read(char* bytes, std::size_t size) override {
    const std::size_t got = in.copy(bytes, size, read_);
    read_ += got;
    return got;
  }
  tqlists::Written Write(std::string_view bytes) override {
    out += bytes;
    return answer;
  }
  tqlists::Written Flush() override { return answer; }
  void Say(std::string_view bytes) override { err += bytes; }
  bool IsWatched() override { return watched; }

  std::string in, out, err;
  tqlists::Written answer = tqlists::Written::Yes;
  bool watched = false;

private:
  std::size_t read_ = 0;
};

class ToolTest : public testing::Test {
protected:
  void SetUp() override {
    const auto* const info = testing::UnitTest::GetInstance()->current_test_info();
    directory_ = std::filesystem::temp_directory_path() /
                 (std::string("tqlists-") + info->test_suite_name() + "-" + info->name());
    std::filesystem::remove_all(directory_);
    std::filesystem::create_directories(directory_);
  }
  void TearDown() override { std::filesystem::remove_all(directory_); }

  std::string Path(const std::string& name) const { return (directory_ / name).string(); }
  std::string Put(const std::string& name, std::string_view bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
    return Path(name);
  }
  std::string Get(const std::string& name) const {
    std::ifstream file(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  bool Exists(const std::string& name) const { return std::filesystem::exists(Path(name)); }
  std::size_t CountFiles() const {
    const std::filesystem::directory_iterator files(directory_);
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }

  // Runs the program; what it wrote is in `streams` then.
  int Run(const std::vector<std::string>& words, const std::string& in = "") {
    streams = {};
    streams.in = in;
    return tqlists::Run(words, streams);
  }

  TextStreams streams;

private:
  std::filesystem::path directory_;
};

// A list file as the library writes it.
inline std::string ListFile(std::string_view encoding, int shownFirst, std::string_view lists) {
  return "<?xml version='1.0' encoding='" + std::string(encoding) +
         "' ?>\n<Result>\n<SymbolList DefaultIdx='" + std::to_string(shownFirst) + "'>\n" +
         std::string(lists) + "</SymbolList>\n</Result>";
}

inline std::string ListLine(std::string_view id, std::string_view name, std::string_view symbols) {
  return "\t<List ID='" + std::string(id) + "' Name='" + std::string(name) + "' Value='" +
         std::string(symbols) + "' Flag='0'/>\n";
}
