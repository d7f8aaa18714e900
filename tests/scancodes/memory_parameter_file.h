#pragma once

#include <map>
#include <string>
#include <utility>

#include "services/surroundings.h"

namespace plexel {

/// One parameter file in memory.
class MemoryParameterFile : public ParameterFileReader {
 public:
  explicit MemoryParameterFile(std::string file) : file_(std::move(file)) {}

  void SetDelimiter(std::string_view delimiter) override { delimiter_ = delimiter; }
  void ReadEntry(std::string_view file, std::string_view section, std::string_view name, std::string& value,
                 std::int32_t reserved, std::int32_t& status) override {
    const auto found = values_.find({std::string(section), std::string(name)});
    status = file == file_ && reserved == 0 && found != values_.end() ? 0 : 5;
    if (status == 0) value = found->second;
  }
  void GetItem(std::int32_t index, const std::string& value, std::string& text) override {
    ++itemsAsked;
    std::size_t begin = 0;
    for (; index > 1; --index) {
      begin = value.find(delimiter_, begin);
      if (begin == std::string::npos) {
        text.clear();
        return;
      }
      begin += delimiter_.size();
    }
    text = value.substr(begin, value.find(delimiter_, begin) - begin);
  }

  void Set(int number, const std::string& name, const std::string& value) {
    values_[{"SCANCODE" + std::to_string(number), name}] = value;
  }
  void Remove(int number, const std::string& name) { values_.erase({"SCANCODE" + std::to_string(number), name}); }
  void SetEntry(int number, const std::string& name, const std::string& make, const std::string& breaking) {
    Set(number, "REMARK001", name);
    Set(number, "MAKECODE", make);
    Set(number, "BREAKCODE", breaking);
  }

  int itemsAsked = 0;

 private:
  std::string file_, delimiter_ = "no delimiter was set";
  std::map<std::pair<std::string, std::string>, std::string> values_;
};

}  // namespace plexel
