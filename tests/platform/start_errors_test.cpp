// What is reported of a program that cannot be started.
#include "platform/start_errors.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

using base::ErrorCode;

// The numbers are those of winerror.h.
TEST(StartErrorCode, AProgramThatIsNotThereIsNotFound) {
  EXPECT_EQ(StartErrorCode(2), ErrorCode::kFileNotFound);
  for (const std::uint32_t error : {3u, 15u, 53u, 67u, 267u}) {
    EXPECT_EQ(StartErrorCode(error), ErrorCode::kPathNotFound) << error;
  }
}

TEST(StartErrorCode, AProgramThatTheUserMayNotStartIsDenied) {
  for (const std::uint32_t error : {5u, 32u, 33u, 740u, 1223u}) {
    EXPECT_EQ(StartErrorCode(error), ErrorCode::kPermissionDenied) << error;
  }
}

TEST(StartErrorCode, AProgramThatAPolicyOrAVirusScannerBlocksIsNeither) {
  for (const std::uint32_t error : {225u, 226u, 577u, 786u, 1260u, 1277u, 1278u, 4551u}) {
    EXPECT_EQ(StartErrorCode(error), ErrorCode::kPathFileAccess) << error;
  }
}

TEST(StartErrorCode, AnythingElseHasACauseOfItsOwn) {
  for (const std::uint32_t error : {8u, 14u, 1455u}) {
    EXPECT_EQ(StartErrorCode(error), ErrorCode::kOutOfMemory) << error;
  }
  for (const std::uint32_t error : {123u, 161u, 206u}) {
    EXPECT_EQ(StartErrorCode(error), ErrorCode::kBadFileName) << error;
  }
  // No program, one for another processor, an error that nobody has heard of.
  for (const std::uint32_t error : {193u, 216u, 123456u}) {
    EXPECT_EQ(StartErrorCode(error), ErrorCode::kInvalidCall) << error;
  }
}

}  // namespace
}  // namespace platform
