// Walks over every dialog in memory, and writes what each shows on standard output: the words that other renderers are
// held against. Its words: the folder of the data, and a language; or `design` alone, for what every dialog is given
// before it is loaded.
#include <exception>
#include <filesystem>
#include <iostream>
#include <string_view>

#include "component/component.h"
#include "dialogs/dialog_visits.h"
#include "dialogs/told_design.h"
#include "dialogs/told_form.h"
#include "files/file_surroundings.h"
#include "headless/headless_platform.h"
#include "headless/host_window.h"
#include "headless/recording_host.h"
#include "world/temporary_directory.h"

namespace plexel::dialogs {

namespace {

std::string NameOf(const Control* control) { return control == nullptr ? std::string() : control->FullName(); }

int Tell(const std::filesystem::path& data, const std::string& language) {
  const TemporaryDirectory configuration;
  FileSurroundings surroundings(data, configuration.Path());
  surroundings.ChooseLanguage(language);
  HeadlessPlatform platform;
  RecordingHost host(platform.faults);
  Component component(platform, surroundings);
  Tellings tellings;
  bool missed = false;
  for (const Visit& visit : Visits()) {
    std::size_t next = 0;
    platform.Modal().onRun = [&](Form& form) {
      if (next == visit.steps.size()) return form.Unload();
      const Step& step = visit.steps[next];
      if (form.Name() != std::string(step.form)) return form.Unload();
      ++next;
      Hand hand(form);
      if (!step.look.empty()) {
        ToldForm told = ToldOfModel(form);
        if (step.look != "configuration-capture") {
          told.tabOrder = FollowTab(told.focus, [&] {
            hand.Key(key::Tab, 0, U'\t');
            return NameOf(form.Focus());
          });
        }
        tellings.Add(step.look, told);
      }
      if (step.act) step.act(hand, form);
    };
    const auto element = component.Create("F1", host);
    visit.SetUp(*element);
    visit.Open(*element);
    missed = missed || next != visit.steps.size();
  }
  std::cout << tellings.Text();
  return missed ? 1 : 0;
}

}  // namespace

}  // namespace plexel::dialogs

int main(int count, char** words) {
  try {
    if (count == 2 && words[1] == std::string_view("design")) {
      std::cout << plexel::dialogs::DesignOfAll();
      return 0;
    }
    if (count != 3) return 2;
    return plexel::dialogs::Tell(words[1], words[2]);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 2;
  }
}
