#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/form.h"

namespace plexel::dialogs {

/// What a renderer shows of a form, in the words that all renderers have in common. Each fills it by asking what it has
/// on the screen, and not the model.

/// One control.
struct ToldControl {
  std::string name;
  bool shown = false, enabled = false;
  /// What stands on it, such as ("caption", "OK"), in the order of its kind (ToldOfModel).
  std::vector<std::pair<std::string, std::string>> facts;
};

/// A dialog.
struct ToldForm {
  std::string title;
  std::vector<ToldControl> controls;  ///< those that are told of, in the order of the form
  std::string focus;                  ///< the name of the control that has the keys; empty when none that is seen has
  std::vector<std::string> tabOrder;  ///< where Tab leads from there, until it comes back
};

/// Whether a control is told of: some kinds show nothing in some renderers.
bool IsTold(const Control& control);
/// What the model of a form says of itself, as scripts get it.
ToldForm ToldOfModel(const Form& form);
/// The forms in which lists and truths are told.
std::string Lines(const std::vector<std::string>& entries);
std::string YesOrNo(bool value);
std::string CellsOf(const GridCells& cells);
/// The text of a caption without its letter's mark.
std::string Readable(const std::string& caption);
/// Follows Tab until it comes back to where it began; a press gives the control that has the keys then.
std::vector<std::string> FollowTab(const std::string& start, const std::function<std::string()>& press);

/// Tellings of a walk by the names of their looks.
class Tellings {
 public:
  void Add(const std::string& look, const ToldForm& form);
  /// All as text: a head in brackets, then a line a fact.
  std::string Text() const { return text_; }

 private:
  std::string text_;
};

/// In which lines two texts differ, with the head that they stand under.
std::vector<std::string> Differences(const std::string& told, const std::string& kept);
/// The tellings that are kept for a language.
std::string Kept(const std::filesystem::path& folder, const std::string& language);

}  // namespace plexel::dialogs
