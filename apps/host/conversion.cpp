#include "host/conversion.h"

#include <iostream>

#include "files/data_directory.h"
#include "files/path_text.h"
#include "host/element_project.h"

namespace plexel::host {

void Convert(const std::filesystem::path& project, const std::filesystem::path& target) {
  const Microsoft::WRL::ComPtr<Container> container(new Container);
  const auto loaded = ElementProject::Open(project, DataDirectory() / "panels", *container.Get());
  for (const std::string& value : loaded->Unread()) {
    std::cerr << TextOf(project)
              << ": cannot be read by the control, which has the values of a new one from here on: " << value << '\n';
  }
  loaded->Save(target);
}

}  // namespace plexel::host
