// Windows without a display: every visible change goes to the journal.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>

#include "platform/simulated/journal.h"
#include "ui/window_system.h"

namespace platform::simulated {

class Windows : public ui::WindowSystem {
 public:
  explicit Windows(Journal& journal) : journal_(journal) {}

  std::unique_ptr<ui::WindowView> Open(ui::Window& window) override;

  std::set<std::string> hidden_by_others;  // names of windows that another program has hidden
  std::set<std::string> out_of_sight;      // names of windows that are covered or minimized

  // What other programs have put into fields, unnoticed: by name ("Form4.Text1") the text, "yes" or
  // "no" of a check box, the index of a drop-down list's item.
  std::map<std::string, std::string> put_by_others;

  bool AnyVisible() const { return !visible_.empty(); }

  // The system refuses, once, what the journal would tell by `text` ("Form2 loaded",
  // "Form1.exit checked: yes"): out of memory.
  void RefuseOnce(const std::string& text) { refused_.insert(text); }

  // Windows opened so far and not dropped.
  int open_views() const { return open_views_; }

 private:
  friend class JournalView;

  void Tell(Kind kind, const std::string& text);

  Journal& journal_;
  std::set<std::string> refused_;
  std::set<std::string> visible_;
  int open_views_ = 0;
};

}  // namespace platform::simulated
