#include "tests/platform/TestSystem.h"

#include <fstream>

namespace tqtest {

std::string TestDirectory::Read(const std::string& name) const {
  std::ifstream file(OsFile(name), std::ios::binary | std::ios::ate);
  if (!file)
    return "(none)";
  std::string bytes(static_cast<size_t>(file.tellg()), '\0');
  file.seekg(0);
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

void TestDirectory::Write(const std::string& name, const std::string& bytes) const {
  std::ofstream(OsFile(name), std::ios::binary) << bytes;
}

} // namespace tqtest
