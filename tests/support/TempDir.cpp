#include "tests/support/TempDir.h"

#include <algorithm>
#include <cstdio>
#include <memory>

#include <gtest/gtest.h>

#include "terminal/StandIn.h"
#include "tests/support/TempFiles.h"

namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

} // namespace

TempDir::TempDir(const std::string& name)
    : outer_(tempfiles::MakeFresh()),
      path_(outer_ + tempfiles::kSeparator + standin::ToAnsi(name)) {
  EXPECT_FALSE(outer_.empty());
  EXPECT_TRUE(tempfiles::MakeDirectory(path_)) << path_;
}

TempDir::~TempDir() {
  Remove();
}

void TempDir::Remove() {
  if (!outer_.empty())
    tempfiles::RemoveTree(outer_);
  outer_.clear();
}

std::string TempDir::Native(const std::string& name) const {
  return path_ + tempfiles::kSeparator + name;
}

void TempDir::Write(const std::string& name, const std::string& bytes) const {
  const File file(std::fopen(Native(name).c_str(), "wb"));
  ASSERT_NE(file, nullptr) << Native(name);
  ASSERT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), file.get()), bytes.size());
}

std::string TempDir::Read(const std::string& name) const {
  std::string bytes;
  const File file(std::fopen(Native(name).c_str(), "rb"));
  char block[4096];
  std::size_t got = 0;
  while (file && (got = std::fread(block, 1, sizeof block, file.get())) > 0)
    bytes.append(block, got);
  return bytes;
}

bool TempDir::Exists(const std::string& name) const {
  return tempfiles::Exists(Native(name));
}

void TempDir::MakeDirectory(const std::string& name) const {
  ASSERT_TRUE(tempfiles::MakeDirectory(Native(name))) << Native(name);
}

std::vector<std::string> TempDir::Names() const {
  std::vector<std::string> names = tempfiles::List(path_);
  std::sort(names.begin(), names.end());
  return names;
}

bool TempDir::IsDirectory(const std::string& path) {
  return tempfiles::IsDirectory(path);
}
