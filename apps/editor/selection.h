#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <vector>

namespace plexel {

/// What the user means of a panel's elements, told by their places: one of them is the current one, and any number are
/// chosen. Picture, lists and panels of the editor share one selection.
class Selection {
 public:
  /// Begins anew for a panel of so many elements: no current one, none chosen.
  void Reset(int count);
  /// How many elements there are to choose from.
  int Count() const { return static_cast<int>(chosen_.size()); }

  /// -1 for none.
  int Current() const { return current_; }
  bool Has(int place) const { return chosen_[static_cast<std::size_t>(place)]; }
  int ChosenCount() const { return chosenCount_; }
  /// The chosen places, ascending.
  std::vector<int> Chosen() const;
  /// What an act of the user is for: the chosen places, or where none is chosen the current one.
  std::vector<int> Meant() const;
  /// Whether other places than the current one are chosen.
  bool IsMany() const;
  /// Where the choice of a range begins: the place that was last chosen by itself; -1 for none.
  int Anchor() const { return anchor_; }

  /// Makes a place the current one and the only one chosen.
  void Only(int place);
  /// Makes a place the current one, and chooses it or takes it out of the choice.
  void Toggle(int place);
  /// Makes a place the current one and leaves the choice as it is.
  void Current(int place);
  /// Chooses these places in place of the others. The current one stays.
  void Choose(const std::vector<int>& places);
  /// The same with another current one.
  void Choose(const std::vector<int>& places, int current);
  /// Chooses these places; where the current one is not among them, the first of them becomes it.
  void ChooseAndGo(const std::vector<int>& places);
  void ChooseAll();
  void ChooseNone();

  /// Calls behind each change, until the owner has ended.
  void Listen(QObject& owner, std::function<void()> listener);

 private:
  void Put(std::vector<bool> chosen, int current, int anchor);
  std::vector<bool> Flags(const std::vector<int>& places) const;

  int current_ = -1, anchor_ = -1, chosenCount_ = 0;
  std::vector<bool> chosen_;
  std::vector<std::pair<QPointer<QObject>, std::function<void()>>> listeners_;
};

}  // namespace plexel
