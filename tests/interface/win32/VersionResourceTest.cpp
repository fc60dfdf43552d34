// The version information of both DLLs.
#include <gtest/gtest.h>

#include <vector>

#include "tests/interface/win32/Resource.h"

namespace {

struct Described {
  const char* library;
  const char* traditional;
  const char* simplified;
};

class VersionResource : public testing::TestWithParam<Described> {
protected:
  VersionResource() {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(GetModuleHandleA(GetParam().library), path, MAX_PATH);
    bytes_.resize(GetFileVersionInfoSizeW(path, nullptr));
    found_ = !bytes_.empty() &&
             GetFileVersionInfoW(path, 0, static_cast<DWORD>(bytes_.size()), bytes_.data()) != 0;
  }

  // Null when there is no such value.
  template <class T> const T* Value(const std::wstring& name) const {
    void* value = nullptr;
    UINT size = 0;
    if (!found_ || !VerQueryValueW(bytes_.data(), name.c_str(), &value, &size))
      return nullptr;
    return static_cast<const T*>(value);
  }

  std::wstring Text(const std::wstring& block, const wchar_t* name) const {
    const auto* text = Value<wchar_t>(L"\\StringFileInfo\\" + block + L"\\" + name);
    return text == nullptr ? L"<no value>" : text;
  }

private:
  std::vector<unsigned char> bytes_;
  bool found_ = false;
};

// Numbers in words of 16 bits: 1.0.0 is 0x0001, 0x0000 and 0x0000, 0x0000.
std::string Dotted(DWORD high, DWORD low) {
  return std::to_string(HIWORD(high)) + "." + std::to_string(LOWORD(high)) + "." +
         std::to_string(HIWORD(low));
}

TEST_P(VersionResource, NumbersAreTheProjects) {
  const auto* fixed = Value<VS_FIXEDFILEINFO>(L"\\");
  ASSERT_NE(fixed, nullptr);
  EXPECT_EQ(Dotted(fixed->dwFileVersionMS, fixed->dwFileVersionLS), TQ_PROJECT_VERSION);
  EXPECT_EQ(Dotted(fixed->dwProductVersionMS, fixed->dwProductVersionLS), TQ_PROJECT_VERSION);
  EXPECT_EQ(fixed->dwFileType, static_cast<DWORD>(VFT_DLL));
}

TEST_P(VersionResource, TextsAreInBothLanguages) {
  for (const wchar_t* block : {L"040404B0", L"080404B0"}) {
    EXPECT_EQ(Text(block, L"FileVersion"), Wide(TQ_PROJECT_VERSION));
    EXPECT_EQ(Text(block, L"ProductVersion"), Wide(TQ_PROJECT_VERSION));
    EXPECT_EQ(Text(block, L"ProductName"), L"tqSymbol");
    EXPECT_EQ(Text(block, L"InternalName"), Wide(GetParam().library));
    EXPECT_EQ(Text(block, L"OriginalFilename"), Wide(GetParam().library) + L".dll");
  }
  EXPECT_EQ(Text(L"040404B0", L"FileDescription"), Wide(GetParam().traditional));
  EXPECT_EQ(Text(L"080404B0", L"FileDescription"), Wide(GetParam().simplified));
}

TEST_P(VersionResource, ListsItsLanguages) {
  const auto* languages = Value<WORD>(L"\\VarFileInfo\\Translation");
  ASSERT_NE(languages, nullptr);
  EXPECT_EQ(languages[0], kTraditional);
  EXPECT_EQ(languages[1], 1200);
  EXPECT_EQ(languages[2], kSimplified);
  EXPECT_EQ(languages[3], 1200);
}

INSTANTIATE_TEST_SUITE_P(
    BothLibraries, VersionResource,
    testing::Values(Described{"tqSymbol", "自選商品組合與商品代碼", "自选商品组合与商品代码"},
                    Described{"tqFramework", "字串、容器與視窗類別", "字符串、容器与窗口类"}));

} // namespace
