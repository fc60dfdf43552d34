#include "tests/platform/TestSystem.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace tqtest {

namespace {

std::vector<std::string> Names(const std::string& directory) {
  std::vector<std::string> names;
  WIN32_FIND_DATAA found;
  const HANDLE search = ::FindFirstFileA((directory + "\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE)
    return names;
  do {
    const std::string name = found.cFileName;
    if (name != "." && name != "..")
      names.push_back(name);
  } while (::FindNextFileA(search, &found) != 0);
  ::FindClose(search);
  std::sort(names.begin(), names.end());
  return names;
}

std::string ProgramPath() {
  char path[MAX_PATH];
  return {path, ::GetModuleFileNameA(nullptr, path, MAX_PATH)};
}

} // namespace

TestDirectory::TestDirectory(const std::string& name) {
  char temporary[MAX_PATH];
  ::GetTempPathA(MAX_PATH, temporary);
  for (unsigned i = 0; root_.empty(); ++i) {
    const std::string candidate =
        std::string(temporary) + "tq" + std::to_string(::GetCurrentProcessId() * 1000 + i);
    if (::CreateDirectoryA(candidate.c_str(), nullptr) != 0)
      root_ = candidate;
  }
  path_ = root_ + "\\" + name;
  EXPECT_TRUE(::CreateDirectoryA(path_.c_str(), nullptr));
}

TestDirectory::~TestDirectory() {
  for (const std::string& name : Names(path_)) {
    ::SetFileAttributesA(File(name).c_str(), FILE_ATTRIBUTE_NORMAL);
    ::DeleteFileA(File(name).c_str());
  }
  ::RemoveDirectoryA(path_.c_str());
  ::RemoveDirectoryA(root_.c_str());
}

std::string TestDirectory::List() const {
  std::string list;
  for (const std::string& name : Names(path_))
    list += (list.empty() ? "" : " ") + name;
  return list;
}

bool RunChild(ChildBody body, const std::string& argument, int killAfter) {
  ::SetEnvironmentVariableA("TQ_CHILD_BODY", std::to_string(ChildBodyNumber(body)).c_str());
  ::SetEnvironmentVariableA("TQ_CHILD_ARGUMENT", argument.c_str());
  std::string command = "\"" + ProgramPath() +
                        "\" --gtest_filter=ChildProcess.DISABLED_Body "
                        "--gtest_also_run_disabled_tests --gtest_brief=1";
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  if (::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS, nullptr,
                       nullptr, &startup, &process) == 0)
    return false;
  if (killAfter != kNotKilled) {
    ::Sleep(static_cast<DWORD>(killAfter / 1000));
    ::TerminateProcess(process.hProcess, 1);
  }
  ::WaitForSingleObject(process.hProcess, INFINITE);
  DWORD code = 1;
  ::GetExitCodeProcess(process.hProcess, &code);
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
  return code == 0;
}

int RandomKills() {
  return 12;
}

int LongestLife() {
  return 150'000;
}

void EndAtOnce() {
  ::TerminateProcess(::GetCurrentProcess(), 1);
  std::abort();
}

// Not a test: the entry of a child that RunChild starts.
TEST(ChildProcess, DISABLED_Body) {
  const char* number = std::getenv("TQ_CHILD_BODY");
  const char* argument = std::getenv("TQ_CHILD_ARGUMENT");
  if (number != nullptr && argument != nullptr)
    ChildBodyByNumber(std::atoi(number))(argument);
}

} // namespace tqtest
