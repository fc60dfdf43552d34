// The inputs of the fuzzers of tqlists, on every platform.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "fuzz/ListsInput.h"

namespace {

using ListsInput = std::string (*)(const unsigned char* data, std::size_t size);

void Replay(const char* corpus, ListsInput check) {
  int inputs = 0;
  // Relative to the root of the tree, where tests are run.
  for (const auto& entry :
       std::filesystem::directory_iterator(std::filesystem::path("fuzz") / "corpus" / corpus)) {
    SCOPED_TRACE(entry.path().filename().string());
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(check(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()), "");
    ++inputs;
  }
  EXPECT_GT(inputs, 0);
}

TEST(ListsCorpus, TextComesBack) {
  Replay("ListsText", fuzz::CheckListsText);
}

TEST(ListsCorpus, CsvComesBack) {
  Replay("ListsCsv", fuzz::CheckListsCsv);
}

TEST(ListsCorpus, JsonComesBack) {
  Replay("ListsJson", fuzz::CheckListsJson);
}

} // namespace
