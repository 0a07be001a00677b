#include "helpers/request.h"

#include <gtest/gtest.h>

#include <string>

namespace helpers {
namespace {

using namespace std::string_literals;

struct Line {
  std::string text;
  std::optional<std::uint32_t> request;
};

class RequestTest : public testing::TestWithParam<Line> {};

TEST_P(RequestTest, IsRead) {
  EXPECT_EQ(ParseRequest(GetParam().text), GetParam().request);
}

INSTANTIATE_TEST_SUITE_P(Good, RequestTest,
                         testing::Values(Line{" 440 \r\n", 440}, Line{"1\r\n", 1},
                                         Line{" 2 \r\n", 2}, Line{" 32000 \r\n", 32000},
                                         Line{"440", 440}, Line{"440\n", 440},
                                         Line{" \t 440\t \r\n", 440}, Line{"00440\r\n", 440},
                                         Line{" 440 \r\nmore\r\n", 440},
                                         Line{std::string(61, ' ') + "440\r\n", 440}));

INSTANTIATE_TEST_SUITE_P(
    Nonsense, RequestTest,
    testing::Values(Line{"", {}}, Line{"\r\n", {}}, Line{"   ", {}}, Line{"  \r\n 440 \r\n", {}},
                    Line{" 0 \r\n", {}}, Line{" -440 \r\n", {}}, Line{" +440 \r\n", {}},
                    Line{" 32001 \r\n", {}}, Line{" 4294967736 \r\n", {}},
                    Line{" 99999999999999999999999 \r\n", {}}, Line{" 440.0 \r\n", {}},
                    Line{" 4e2 \r\n", {}}, Line{" 0x1B8 \r\n", {}}, Line{" 440 Hz\r\n", {}},
                    Line{" 4 40 \r\n", {}}, Line{"\"440\"\r\n", {}}, Line{"440,\r\n", {}},
                    Line{"tone\r\n", {}}, Line{"440\0"s, {}}, Line{"\xEF\xBB\xBF 440 \r\n", {}},
                    Line{"\xFF\xFE 4\0 4\0"s, {}}, Line{std::string(62, ' ') + "440\r\n", {}},
                    Line{std::string(65, '0'), {}}, Line{std::string(65, ' '), {}}));

}  // namespace
}  // namespace helpers
