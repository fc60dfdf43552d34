// A document is loaded whole or not at all when memory runs out at any moment of its load: a part
// of the user's lists must never pass for all of them.
#include "platform/xml/XmlDocument.h"

#include <cstdlib>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include <libxml/xmlmemory.h>

#include "platform/framework/CString.h"

#include <gtest/gtest.h>

namespace {

constexpr long kNever = -1;

long allocationsLeft = kNever; // before they fail
bool failsOnce = false;        // and then no other
long failures = 0;

bool Fails() {
  if (allocationsLeft == kNever)
    return false;
  if (allocationsLeft > 0) {
    --allocationsLeft;
    return false;
  }
  ++failures;
  if (failsOnce)
    allocationsLeft = kNever;
  return true;
}

std::set<void*> blocks; // that the parser has

void* Allocate(size_t size) {
  return Fails() ? nullptr : *blocks.insert(std::malloc(size)).first;
}
void Free(void* block) {
  blocks.erase(block);
  std::free(block);
}
void* Resize(void* block, size_t size) {
  if (Fails())
    return nullptr;
  blocks.erase(block);
  return *blocks.insert(std::realloc(block, size)).first;
}
char* Copy(const char* text) {
  const size_t size = std::strlen(text) + 1;
  void* const copy = Allocate(size);
  return copy != nullptr ? static_cast<char*>(std::memcpy(copy, text, size)) : nullptr;
}

// The parser takes its memory from here while one lives.
class ParserMemory {
public:
  ParserMemory() {
    xmlMemGet(&free_, &allocate_, &resize_, &copy_);
    xmlMemSetup(Free, Allocate, Resize, Copy);
  }
  ~ParserMemory() {
    allocationsLeft = kNever;
    xmlMemSetup(free_, allocate_, resize_, copy_);
  }

private:
  xmlFreeFunc free_;
  xmlMallocFunc allocate_;
  xmlReallocFunc resize_;
  xmlStrdupFunc copy_;
};

std::string Lists(int count) {
  std::string text =
      "<?xml version='1.0' encoding='Big5'?>\n<Result>\n<SymbolList DefaultIdx='3'>\n";
  for (int i = 0; i < count; ++i)
    text += "\t<List ID='{" + std::to_string(i) + "}' Name='n&amp;" + std::to_string(i) +
            "' Value='" + std::string(static_cast<size_t>(40 * i), 'A') + ",2330.TW'/>\n";
  return text + "</SymbolList>\n</Result>";
}

std::vector<std::string> Read(const tq::XmlDocument& document) {
  std::vector<std::string> all;
  for (const tq::XmlElement& list : document.Select("/Result/SymbolList/List")) {
    for (const char* name : {"ID", "Name", "Value"}) {
      CString value;
      all.push_back(list.Attribute(name, value) ? value.GetString() : "absent");
    }
  }
  return all;
}

// Loads the text without allocation number `n`. False when there are not that many.
bool LoadWithout(long n, const std::string& text, const std::vector<std::string>& expected) {
  tq::XmlDocument document;
  failures = 0;
  allocationsLeft = n;
  const bool loaded = document.Load(text.data(), text.size());
  allocationsLeft = kNever;
  if (loaded) {
    EXPECT_EQ(Read(document), expected);
    return failures != 0;
  }
  EXPECT_TRUE(document.SystemFailed());
  EXPECT_TRUE(document.Root().IsNull());
  EXPECT_TRUE(document.Load(text.data(), text.size())) << "a second time";
  EXPECT_FALSE(document.SystemFailed());
  return true;
}

// The parser itself forgets its input buffer and that buffer's text when it cannot fill them.
constexpr size_t kForgotten = 2;

void FreeForgotten(const std::set<void*>& before) {
  xmlResetLastError();
  size_t forgotten = 0;
  for (void* const block : std::set<void*>(blocks)) {
    if (before.count(block) == 0) {
      Free(block);
      ++forgotten;
    }
  }
  EXPECT_LE(forgotten, kForgotten);
}

void FailEachAllocation(const std::string& text) {
  tq::XmlDocument whole;
  ASSERT_TRUE(whole.Load(text.data(), text.size()));
  const std::vector<std::string> expected = Read(whole);
  const std::set<void*> before = blocks;
  long n = 0;
  while (LoadWithout(n, text, expected)) {
    SCOPED_TRACE(n);
    FreeForgotten(before);
    ASSERT_FALSE(testing::Test::HasFailure()) << "without allocation " << n;
    ++n;
  }
  EXPECT_GT(n, 100);
}

TEST(XmlMemory, ADocumentIsLoadedWholeOrNotAtAllWithoutMemory) {
  const ParserMemory memory;
  failsOnce = false;
  FailEachAllocation(Lists(40));
}

// Other allocations succeed again: in 32 bits it is the large ones that fail.
TEST(XmlMemory, NorDoesItLackAPartWhenOneAllocationFails) {
  const ParserMemory memory;
  failsOnce = true;
  FailEachAllocation(Lists(40));
}

TEST(XmlMemory, AMalformedDocumentIsNotTheSystemsFailure) {
  tq::XmlDocument document;
  EXPECT_FALSE(document.Load("<a>", 3));
  EXPECT_FALSE(document.SystemFailed());
}

} // namespace
