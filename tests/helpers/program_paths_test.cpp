#include "helpers/program_paths.h"

#include <gtest/gtest.h>

#include <string>

namespace helpers {
namespace {

std::wstring BesidePlay16(const std::wstring& folder) {
  return std::wstring(Beside(folder + L"play16.exe", L"tone16.dll").view());
}

TEST(Beside, IsInTheSameFolderWhateverItIsCalled) {
  EXPECT_EQ(BesidePlay16(L"C:\\Program Files (x86)\\Tonmira\\"),
            L"C:\\Program Files (x86)\\Tonmira\\tone16.dll");
  EXPECT_EQ(BesidePlay16(L"C:\\R&D\\tonmira\\"), L"C:\\R&D\\tonmira\\tone16.dll");
  EXPECT_EQ(BesidePlay16(L"C:\\\x97f3\x3068\x03a9\\"), L"C:\\\x97f3\x3068\x03a9\\tone16.dll");
  EXPECT_EQ(BesidePlay16(L"C:\\"), L"C:\\tone16.dll");
  EXPECT_EQ(BesidePlay16(L"\\\\server\\share\\"), L"\\\\server\\share\\tone16.dll");
}

TEST(Beside, IsABareNameBesideABareName) {
  EXPECT_EQ(BesidePlay16(L""), L"tone16.dll");
}

TEST(CommandLine, IsThePathInQuotes) {
  EXPECT_EQ(CommandLine(L"C:\\R&D (new)\\tone16.dll").view(), L"\"C:\\R&D (new)\\tone16.dll\"");
}

TEST(WideText, EndsWithNul) {
  WideText text = WideText::FilledBy([](wchar_t* space, std::size_t) {
    std::wstring(L"C:\\Temp, and more").copy(space, 17);
    return std::size_t{7};
  });
  EXPECT_EQ(std::wstring(text.c_str()), L"C:\\Temp");
  text.Append(L"\\sound.ini");
  EXPECT_EQ(std::wstring(text.c_str()), L"C:\\Temp\\sound.ini");
}

TEST(WideText, TakesAsciiAsWell) {
  WideText text;
  text.Append(L"C:\\Temp").AppendAscii("\\error.log").AppendAscii("");
  EXPECT_EQ(std::wstring(text.c_str()), L"C:\\Temp\\error.log");
}

TEST(WideText, IsEmptyWhereFillingItFails) {
  EXPECT_EQ(WideText::FilledBy([](wchar_t*, std::size_t) { return std::size_t{0}; }).view(), L"");
  EXPECT_EQ(WideText::FilledBy([](wchar_t*, std::size_t size) { return size + 5; }).view(), L"");
}

TEST(WideText, CutsOffWhatDoesNotFit) {
  WideText text;
  text.Append(std::wstring(32760, L'a')).Append(L"0123456789").Append(L"b");
  EXPECT_EQ(std::wstring(text.c_str()), std::wstring(32760, L'a') + L"0123456");
}

}  // namespace
}  // namespace helpers
