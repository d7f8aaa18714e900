#pragma once

#include <initializer_list>
#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace plexel {

/// A call of the program that is wrong; `what()` tells why.
class CallError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The words behind a word of the program: options such as "--json", options with a value such as "--layer 2", and the
/// others in their order. "-" is none of the options, and behind "--" nothing is.
class ProgramCall {
 public:
  /// CallError for an option that is not among these, that stands twice or that lacks its value.
  ProgramCall(std::span<const std::string> words, std::initializer_list<std::string_view> options,
              std::initializer_list<std::string_view> optionsWithValue = {});

  bool Has(std::string_view option) const { return options_.find(option) != options_.end(); }
  std::optional<std::string> Value(std::string_view option) const;
  const std::vector<std::string>& Others() const { return others_; }
  /// CallError unless there are as many other words.
  void RequireOthers(std::size_t least, std::size_t most) const;

 private:
  std::map<std::string, std::string, std::less<>> options_;
  std::vector<std::string> others_;
};

}  // namespace plexel
