#include "base/field_reader.h"

#include <algorithm>

#include "base/characters.h"

namespace base {
namespace {

constexpr std::string_view kDelimiters = ",\r\n";

}  // namespace

std::optional<std::string> FieldReader::Next() {
  if (AtEnd()) return std::nullopt;
  SkipBlanks();
  const bool quoted = !AtEnd() && content_[at_] == '"';
  const std::string_view field = quoted ? Quoted() : Unquoted();
  SkipDelimiter();
  return std::string(field);
}

std::string_view FieldReader::Quoted() {
  const std::size_t start = at_ + 1;
  const std::size_t end = std::min(content_.find('"', start), content_.size());
  at_ = std::min(end + 1, content_.size());
  SkipBlanks();
  return content_.substr(start, end - start);
}

std::string_view FieldReader::Unquoted() {
  const std::size_t start = at_;
  at_ = std::min(content_.find_first_of(kDelimiters, start), content_.size());
  const std::string_view field = content_.substr(start, at_ - start);
  const std::size_t last = field.find_last_not_of(kBlanks);
  return last == std::string_view::npos ? std::string_view() : field.substr(0, last + 1);
}

void FieldReader::SkipBlanks() {
  at_ = std::min(content_.find_first_not_of(kBlanks, at_), content_.size());
}

void FieldReader::SkipDelimiter() {
  if (AtEnd() || kDelimiters.find(content_[at_]) == std::string_view::npos) return;
  const bool carriage_return = content_[at_] == '\r';
  ++at_;
  if (carriage_return && !AtEnd() && content_[at_] == '\n') ++at_;
}

}  // namespace base
