#pragma once

#include <string>
#include <string_view>

namespace plexel {

/// The name of a form. It is written out once, as a constant, and handed on as that constant, so that the compiler
/// finds a misspelt one. The text must outlive the name.
class FormName {
 public:
  explicit consteval FormName(std::string_view text) : text_(text) {}
  constexpr operator std::string_view() const { return text_; }
  operator std::string() const { return std::string(text_); }
  friend constexpr bool operator==(FormName one, FormName other) { return one.text_ == other.text_; }
  friend constexpr bool operator==(FormName one, std::string_view text) { return one.text_ == text; }

 private:
  std::string_view text_;
};

}  // namespace plexel
