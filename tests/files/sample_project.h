#pragma once

#include <cstdint>
#include <limits>

#include "files/project_file.h"

namespace plexel {

/// A project that holds every type at its bounds and texts of every kind.
inline Project SampleProject() {
  Project project;
  project.panel = "Gro\u00DF [1]";
  ProjectElement first;
  first.place = "F1";
  first.bag.Store("HardwareNumberKey", std::numeric_limits<std::int32_t>::min());
  first.bag.Store("HardwareNumberKey1", std::numeric_limits<std::int32_t>::max());
  first.bag.Store("SizeX", std::numeric_limits<std::int16_t>::min());
  first.bag.Store("ZoomFactor", std::numeric_limits<std::int16_t>::max());
  first.bag.Store("FocusWidth", std::uint8_t{255});
  first.bag.Store("WizardOn", True);
  first.bag.Store("FocusVisible", Boolean::Raw(1));
  first.bag.Store("PressKeyDefLayer1", std::string("[Ctrl Left+a\u2039\u203A][\u00E4\u2039]"));
  first.bag.Store("ReleaseKeyDefLayer1", std::string());
  first.bag.Store("ButtonNotes", std::string("line 1\r\nline 2\n = ; # \\ \u03A9 \x01\t"));
  first.bag.Store("Foreign = [key]", 0.1);
  SavedCodes codes{0, {}};
  codes.codes.Value = {0xFF, 0x14, 0x1C, 0xF0, 0x1C, 0xF0, 0x14, 0xFF};
  codes.codes.NextValue = 7;
  first.codes.push_back(codes);
  codes.buffer = 7;
  codes.codes.Value.fill(0xFE);
  codes.codes.NextValue = 88;
  first.codes.push_back(codes);
  project.elements.push_back(first);
  ProjectElement second;
  second.place = " ] ";
  second.codes.push_back({3, {}});
  project.elements.push_back(second);
  return project;
}

}  // namespace plexel
