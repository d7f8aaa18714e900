#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "files/ini_walk.h"
#include "files/panel_file.h"

namespace plexel {

/// Reads the values of a panel file. Every operation throws FileError with the line for a value that is not what it
/// should be.
class PanelValues {
 public:
  static constexpr std::int32_t LargestSize = 10000;

  explicit PanelValues(const TextFile& file) : file_(file) {}

  std::int32_t Integer(const IniLine& line, std::int32_t low, std::int32_t high) const;
  std::int32_t Integer(const IniLine& line) const { return Integer(line, INT32_MIN, INT32_MAX); }
  bool Switch(const IniLine& line) const;         ///< "yes" or "no"
  std::int32_t Color(const IniLine& line) const;  ///< "#RRGGBB"
  PanelBox Box(const IniLine& line) const;        ///< "LEFT TOP WIDTH HEIGHT"
  std::string Text(const IniLine& line) const;    ///< with escapes
  std::string Name(const IniLine& line) const;    ///< letters, digits, '-', '_' and '.'
  LegendAlignment Alignment(const IniLine& line) const;
  /// Up to eight numbers with blanks between them.
  std::array<std::int32_t, 8> KeyNumbers(const IniLine& line) const;

  [[noreturn]] void Refuse(std::size_t line, const std::string& reason) const { throw file_.Error(line, reason); }

 private:
  const TextFile& file_;
};

}  // namespace plexel
