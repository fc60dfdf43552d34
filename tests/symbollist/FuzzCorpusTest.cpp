// The inputs of the fuzzers, the ones made by hand and the ones that once broke something, on every
// platform and in every interface language.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz/IdStringInput.h"
#include "fuzz/IdentifiersInput.h"
#include "fuzz/ListFileInput.h"
#include "fuzz/RecoveryInput.h"
#include "fuzz/SequenceInput.h"

namespace {

using Check = std::string (*)(const unsigned char* data, std::size_t size);

class FuzzCorpus : public testing::Test {
protected:
  void SetUp() override { fuzz::PrepareServices(); }
  void TearDown() override { standin::Reset(); }

  // Relative to the root of the tree, where tests are run.
  static std::vector<std::filesystem::path> Inputs(const char* corpus) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::filesystem::path("fuzz") / "corpus" / corpus))
      paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    return paths;
  }

  static void Replay(const char* corpus, Check check) {
    const std::vector<std::filesystem::path> inputs = Inputs(corpus);
    ASSERT_FALSE(inputs.empty());
    for (const std::filesystem::path& path : inputs) {
      SCOPED_TRACE(path.filename().string());
      std::ifstream file(path, std::ios::binary);
      ASSERT_TRUE(file.is_open());
      std::string bytes{std::istreambuf_iterator<char>(file), {}};
      EXPECT_EQ(check(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()), "");
      if (bytes.empty())
        continue;
      bytes[0] = static_cast<char>(bytes[0] ^ 1); // the same in the other language
      EXPECT_EQ(check(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()), "");
    }
  }
};

TEST_F(FuzzCorpus, ListFilesLoadAndComeBackAsTheyWereSaved) {
  Replay("ListFile", fuzz::CheckListFile);
}

TEST_F(FuzzCorpus, DamagedListFilesComeBackAsTextThatCanBeSaved) {
  Replay("Recovery", fuzz::CheckRecovery);
  Replay("ListFile", fuzz::CheckRecovery);
}

TEST_F(FuzzCorpus, IdStringsAreSplitAndResolvedAsTheirTextSays) {
  Replay("IdString", fuzz::CheckIdString);
}

TEST_F(FuzzCorpus, IdentifiersHaveAnAnswerAndAreReadBack) {
  Replay("Identifiers", fuzz::CheckIdentifiers);
}

TEST_F(FuzzCorpus, SequencesOfOperationsLeaveListsThatAreWholeAndComeBack) {
  Replay("Sequence", fuzz::CheckSequence);
}

} // namespace
