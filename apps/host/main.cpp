#include <ole2.h>
#include <windows.h>

#include <iostream>

#include "files/data_directory.h"
#include "files/path_text.h"
#include "files/program_start.h"
#include "host/call.h"
#include "host/check.h"
#include "host/conversion.h"
#include "host/host_window.h"
#include "host/standard_streams.h"

namespace plexel::host {

namespace {

enum Status { Done = 0, NotHeld = 1, Unusable = 2 };

/// The system's objects, as long as the program uses them.
class Ole {
 public:
  Ole() { OleInitialize(nullptr); }
  ~Ole() { OleUninitialize(); }
  Ole(const Ole&) = delete;
  Ole& operator=(const Ole&) = delete;
};

int RunWindow(const Call& call) {
  FileSurroundings surroundings(DataDirectory(), ConfigurationDirectory());
  HostWindow window(surroundings);
  return window.Run(PathOf(call.project));
}

int Carry(const Call& call) {
  const Ole ole;
  switch (call.work) {
    case Call::Work::Window:
      return RunWindow(call);
    case Call::Work::SaveAs:
      Convert(PathOf(call.project), PathOf(call.target));
      return Done;
    case Call::Work::Check:
      return CheckControl(std::cout) ? Done : NotHeld;
    case Call::Work::Help:
      std::cout << Usage;
      return Done;
    case Call::Work::Version:
      std::cout << "plexel-host " PLEXEL_VERSION "\n";
      return Done;
  }
  return Unusable;
}

}  // namespace

}  // namespace plexel::host

int main(int count, char** values) {
  using plexel::host::Call;
  const auto words = plexel::StartProgram(count, values);
  if (!words.empty()) plexel::host::UseConsole();
  const auto call = plexel::host::Understand(words);
  if (!call) {
    std::cerr << plexel::host::Usage;
    return plexel::host::Unusable;
  }
  try {
    return plexel::host::Carry(*call);
  } catch (const std::exception& failure) {
    if (call->work == Call::Work::Window) plexel::host::TellFailure(nullptr, failure.what());
    std::cerr << "plexel-host: " << failure.what() << '\n';
    return plexel::host::Unusable;
  }
}
