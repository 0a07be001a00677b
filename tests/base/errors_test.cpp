#include "base/errors.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace base {
namespace {

TEST(Errors, EachSaysWhatItIsInTheReportAndInTheMessage) {
  const std::pair<int, std::string> errors[] = {
      {5, "Invalid procedure call or argument"},
      {6, "Overflow"},
      {7, "Out of memory"},
      {9, "Subscript out of range"},
      {13, "Type mismatch"},
      {52, "Bad file name or number"},
      {53, "File not found"},
      {57, "Device I/O error"},
      {61, "Disk full"},
      {70, "Permission denied"},
      {75, "Path/File access error"},
      {76, "Path not found"},
      {1, "Unknown error"},
  };
  for (const auto& [number, description] : errors) {
    const RuntimeError error(static_cast<ErrorCode>(number));
    EXPECT_EQ(error.number(), number);
    EXPECT_EQ(error.description(), description);
  }
}

}  // namespace
}  // namespace base
