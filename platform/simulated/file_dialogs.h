// A file dialog whose user follows a script.
#pragma once

#include <deque>
#include <string>

#include "platform/file_dialogs.h"
#include "platform/simulated/journal.h"

namespace platform::simulated {

class ScriptedFileDialogs : public FileDialogs {
 public:
  explicit ScriptedFileDialogs(Journal& journal) : journal_(journal) {}

  std::deque<std::string> chosen;  // one path per dialog; cancelled when none is left

  std::string Open(const OpenDialog& dialog) override {
    journal_.Add(Kind::kMessage, "open file [" + dialog.title + "] " + dialog.filter + " (" +
                                     dialog.default_extension + ")");
    if (chosen.empty()) return "";
    const std::string path = chosen.front();
    chosen.pop_front();
    return path;
  }

 private:
  Journal& journal_;
};

}  // namespace platform::simulated
