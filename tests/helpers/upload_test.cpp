#include "helpers/upload.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace helpers {
namespace {

using namespace std::string_literals;

constexpr char kTemp[] = "C:\\Users\\me\\Temp";

struct Good {
  std::string text;
  Log log;
  std::string name;
};

class HandOver : public testing::TestWithParam<Good> {};

TEST_P(HandOver, NamesALogAndItsNameOnTheServer) {
  const auto upload = ParseUpload(GetParam().text, kTemp);
  ASSERT_TRUE(upload);
  EXPECT_EQ(upload->log, GetParam().log);
  EXPECT_EQ(upload->name, GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(
    Upload, HandOver,
    testing::Values(
        Good{"C:\\Users\\me\\Temp\\userdata.txt\r\n4711.txt\r\n", Log::kActivity, "4711.txt"},
        Good{"error.log\r\n4711error.log\r\n", Log::kError, "4711error.log"},
        Good{"userdata.txt\r\n1.txt\r\n", Log::kActivity, "1.txt"},
        Good{"C:\\Users\\me\\Temp\\error.log\r\n32767error.log\r\n", Log::kError, "32767error.log"},
        Good{"c:\\USERS\\me\\temp\\UserData.TXT\r\n1.txt\r\n", Log::kActivity, "1.txt"},
        Good{"C:/Users/me/Temp/userdata.txt\r\n1.txt\r\n", Log::kActivity, "1.txt"},
        Good{"error.log\n1error.log\n", Log::kError, "1error.log"},
        Good{"error.log\r\n1error.log", Log::kError, "1error.log"},
        Good{"error.log\n1error.log\r", Log::kError, "1error.log"}));

class OtherFile : public testing::TestWithParam<std::string> {};

TEST_P(OtherFile, IsNeverSent) {
  EXPECT_FALSE(ParseUpload(GetParam() + "\r\n4711.txt\r\n", kTemp));
  EXPECT_FALSE(ParseUpload(GetParam() + "\r\n4711error.log\r\n", kTemp));
}

INSTANTIATE_TEST_SUITE_P(
    Upload, OtherFile,
    testing::Values(
        "", " ", "secret.txt", "snd.ini", "tonmira.ini", "C:\\Users\\me\\Temp",
        "C:\\Users\\me\\Temp\\", "C:\\Users\\me\\Temp\\secret.txt", "C:\\userdata.txt",
        "\\userdata.txt", "C:userdata.txt", "C:\\Users\\me\\Documents\\userdata.txt",
        "C:\\Users\\me\\Temp\\sub\\userdata.txt", "C:\\Users\\me\\Temp\\..\\userdata.txt",
        "C:\\Users\\me\\Temp\\sub\\..\\userdata.txt", "C:\\Users\\me\\Temp\\.\\userdata.txt",
        "..\\userdata.txt", ".\\userdata.txt", "..\\error.log", "/error.log",
        "C:\\Users\\me\\Temp\\\\userdata.txt", "C:\\Users\\me\\Tempuserdata.txt",
        "C:\\Users\\me\\Temp2\\userdata.txt", "D:\\Users\\me\\Temp\\userdata.txt",
        "\\\\?\\C:\\Users\\me\\Temp\\userdata.txt", "\\\\server\\share\\userdata.txt",
        "\\\\.\\PhysicalDrive0", "\\\\.\\pipe\\error.log", "CON", "NUL", "COM1",
        "COM1:", "userdata.txt:stream", "userdata.txt::$DATA", "error.log:", "error.log.",
        "error.log ", " error.log", "\"error.log\"", "userdata.txt.", "error.log\\",
        "C:\\Users\\me\\Temp\\userdata.txt.", "C:\\Users\\me\\Temp\\userdata.txt ",
        "C:\\Users\\me\\Temp\\NUL", "userdata.txt,error.log", "*.txt", "userdata.*", "user*.txt",
        "error.log\0"s, "error.log\0.txt"s, "%TEMP%\\userdata.txt", "file:error.log",
        "http://host/error.log", "error.log\r", "\nerror.log", "\r\nuserdata.txt",
        "\xEF\xBB\xBF"
        "error.log",
        "userdata.txt\r\nerror.log"));

class OtherName : public testing::TestWithParam<std::string> {};

TEST_P(OtherName, IsNeverUsedOnTheServer) {
  EXPECT_FALSE(ParseUpload("error.log\r\n" + GetParam() + "\r\n", kTemp));
  EXPECT_FALSE(ParseUpload(kTemp + "\\userdata.txt\r\n"s + GetParam() + "\r\n", kTemp));
}

INSTANTIATE_TEST_SUITE_P(
    Upload, OtherName,
    testing::Values("", " ", ".txt", "error.log", "txt", "4711", "4711.txt.exe", "4711.html",
                    "4711.TXT", "4711Error.log", "4711 .txt", " 4711.txt", "4711.txt ", "-1.txt",
                    "+1.txt", "1.5.txt", "1e3.txt", "0x12.txt", "123456.txt", "99999999999.txt",
                    "1a.txt", "../4711.txt", "..\\4711.txt", "/4711.txt", "4711/1.txt",
                    "4711/../1.txt", "sub/4711.txt", "%2e%2e%2f1.txt", "1%00.txt", "1?.txt",
                    "1#.txt", "1.txt?x", "1.txt#x", "1.txt;x", "\"1.txt\"", "1\0.txt"s, "1.txt\0"s,
                    "1\r.txt", "\xB2.txt", "\xEF\xBC\x91.txt", "1.txt\r\nHost: other",
                    "1.txt HTTP/1.1", "http://other/1.txt", "//other/1.txt", "1.txterror.log",
                    "1error.log.txt", "con.txt", "NUL"));

TEST(Upload, EachLogGoesUnderItsOwnKindOfName) {
  EXPECT_FALSE(ParseUpload("error.log\r\n4711.txt\r\n", kTemp));
  EXPECT_FALSE(ParseUpload("userdata.txt\r\n4711error.log\r\n", kTemp));
}

class OtherText : public testing::TestWithParam<std::string> {};

TEST_P(OtherText, IsNoHandOver) {
  EXPECT_FALSE(ParseUpload(GetParam(), kTemp));
}

std::string Utf16(const std::string& ascii) {
  std::string text;
  for (const char c : ascii) text += {c, '\0'};
  return text;
}

INSTANTIATE_TEST_SUITE_P(
    Upload, OtherText,
    testing::Values("", "\r\n", "\r\n\r\n", "\n\n\n", "error.log", "error.log\r\n",
                    "error.log\r\n\r\n4711error.log\r\n", "\r\nerror.log\r\n4711error.log\r\n",
                    "error.log\r\n4711error.log\r\n\r\n", "error.log\r\n4711error.log\r\nmore\r\n",
                    "error.log\r\n4711error.log\r\n\0"s, "error.log\r4711error.log\r",
                    "error.log,4711error.log", "error.log 4711error.log", std::string(1024, '\0'),
                    std::string(1024, 'a'), std::string(1024, '\n'),
                    Utf16("error.log\r\n4711error.log\r\n"),
                    "\xFF\xFE" + Utf16("error.log\r\n4711error.log\r\n"),
                    "\xEF\xBB\xBF"
                    "error.log\r\n4711error.log\r\n"));

TEST(Upload, ATextOfMoreThan1024BytesIsNoHandOver) {
  const std::string folder(1000, 'a');
  EXPECT_TRUE(ParseUpload(folder + "\\userdata.txt\n47110.txt\n", folder));  // 1024 bytes
  EXPECT_FALSE(ParseUpload(folder + "\\userdata.txt\n47110.txt\r\n", folder));
  EXPECT_FALSE(ParseUpload(std::string(100'000'000, 'a'), folder));
}

TEST(Upload, WithoutATemporaryFolderNothingIsSent) {
  EXPECT_FALSE(ParseUpload("error.log\r\n4711error.log\r\n", ""));
  EXPECT_FALSE(ParseUpload("\\userdata.txt\r\n4711.txt\r\n", ""));
}

TEST(Upload, TheFolderIsTakenAsItIsWritten) {
  // A folder with a slash at its end, of which the program makes two.
  EXPECT_TRUE(ParseUpload("D:\\\\userdata.txt\r\n4711.txt\r\n", "D:\\"));
  EXPECT_TRUE(ParseUpload("C:\\a\\..\\b\\userdata.txt\r\n4711.txt\r\n", "C:\\a\\..\\b"));
  EXPECT_TRUE(ParseUpload("C:\\Zo\xEB ??\\userdata.txt\r\n4711.txt\r\n", "C:\\Zo\xEB ??"));
  EXPECT_FALSE(ParseUpload("C:\\Zo\xEC ??\\userdata.txt\r\n4711.txt\r\n", "C:\\Zo\xEB ??"));
}

TEST(Upload, ALogIsReadUnderItsOwnName) {
  EXPECT_EQ(FileName(Log::kActivity), "userdata.txt");
  EXPECT_EQ(FileName(Log::kError), "error.log");
}

// Every beginning of a good hand-over file: what is found while the program still writes it.
TEST(Upload, OfAnUnfinishedFileNothingIsSent) {
  const std::string whole = "C:\\Users\\me\\Temp\\userdata.txt\r\n4711.txt\r\n";
  const std::size_t complete = whole.size() - std::string("\r\n").size();
  for (std::size_t size = 0; size < complete; ++size) {
    EXPECT_FALSE(ParseUpload(whole.substr(0, size), kTemp)) << size;
  }
  EXPECT_TRUE(ParseUpload(whole.substr(0, complete), kTemp));
}

}  // namespace
}  // namespace helpers
