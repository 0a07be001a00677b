// Any bytes as a file of fields (settings, logs, language files).
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/field_reader.h"
#include "tests/fuzz/require.h"

namespace base {
namespace {

using fuzz::Require;
using Fields = std::vector<std::string>;

Fields Read(std::string_view content) {
  Fields fields;
  FieldReader reader(content);
  while (!reader.AtEnd()) {
    const auto field = reader.Next();
    Require(field.has_value(), "before the end there is a field");
    fields.push_back(*field);
    Require(fields.size() <= content.size(), "every field takes a character");
  }
  Require(!reader.Next(), "at the end there is none");
  return fields;
}

// The rules, character by character.
class PlainReader {
 public:
  Fields Read(std::string_view content) {
    for (const char c : content) {
      Take(c);
      after_return_ = c == '\r' && state_ == State::kBefore;
    }
    if (state_ != State::kBefore || begun_) End();
    return fields_;
  }

 private:
  enum class State { kBefore, kPlain, kQuoted, kBehind };

  void Take(char c) {
    const bool blank = c == ' ' || c == '\t';
    const bool delimiter = c == ',' || c == '\r' || c == '\n';
    if (c == '\n' && after_return_) return;
    if (state_ == State::kQuoted) {
      if (c == '"') {
        state_ = State::kBehind;
      } else {
        field_ += c;
      }
    } else if (delimiter) {
      End();
    } else if (state_ == State::kPlain) {
      field_ += c;
    } else if (blank) {
      begun_ = true;
    } else {
      // What follows a closing quote is the next field.
      if (state_ == State::kBehind) End();
      state_ = c == '"' ? State::kQuoted : State::kPlain;
      if (c != '"') field_ += c;
    }
  }

  void End() {
    if (state_ == State::kPlain) {
      while (field_.back() == ' ' || field_.back() == '\t') field_.pop_back();
    }
    fields_.push_back(field_);
    field_.clear();
    state_ = State::kBefore;
    begun_ = false;
  }

  Fields fields_;
  std::string field_;
  State state_ = State::kBefore;
  bool begun_ = false;         // there are blanks
  bool after_return_ = false;  // which ended a field
};

// A field with a quote in it stood without quotes, and can again.
std::string Written(const Fields& fields, std::string_view delimiter) {
  std::string content;
  for (const std::string& field : fields) {
    const bool plain = field.find('"') != std::string::npos;
    content += plain ? " \t" + field + " " : " \"" + field + "\"\t";
    content += delimiter;
  }
  return content;
}

void CheckContent(std::string_view content) {
  const Fields fields = Read(content);
  Require(fields == PlainReader().Read(content), "the fields are those of the plain rules");
  for (const std::string_view delimiter : {",", "\r\n", "\r", "\n"}) {
    Require(Read(Written(fields, delimiter)) == fields, "written again, they are the same");
  }
}

}  // namespace
}  // namespace base

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  base::CheckContent(bytes);
  return 0;
}
