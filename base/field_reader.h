// The free-format field reader of the settings, log and language files.
//
// A field ends at a comma or at the end of a line (CR LF, a lone CR or a lone LF). Blanks around
// an unquoted field are dropped. A field that begins with a double quote runs to the next double
// quote, commas and line ends included, and loses its quotes. An empty line is an empty field;
// after the last line end, or a comma that ends the text, there is no further field.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace base {

class FieldReader {
 public:
  // `content` must outlive the reader.
  explicit FieldReader(std::string_view content) : content_(content) {}

  bool AtEnd() const { return at_ == content_.size(); }

  // The next field, or nothing at the end.
  std::optional<std::string> Next();

 private:
  std::string_view Quoted();
  std::string_view Unquoted();
  void SkipBlanks();
  void SkipDelimiter();

  std::string_view content_;
  std::size_t at_ = 0;
};

}  // namespace base
