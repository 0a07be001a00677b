// The search for updates of the whole program, with a site that announces a version.
#pragma once

#include "tests/online/fixture.h"

namespace app {

class UpdateTest : public OnlineTest {
 protected:
  UpdateTest() { PutSettings("y", "n"); }

  void Announce(const std::string& version, const std::string& link = "http://a.example/new") {
    Answer(kUpdateAddress, version + "\r\n" + link + "\r\n");
  }

  online::Form7& Dialog() { return program->form7; }
};

}  // namespace app
