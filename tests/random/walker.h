#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/hand.h"
#include "headless/key_road.h"
#include "world/world.h"

namespace plexel {

/// What decides where several things can be done.
class Choices {
 public:
  virtual ~Choices() = default;
  /// A number from 0 to below `bound`, which is not 0.
  virtual std::uint32_t Below(std::uint32_t bound) = 0;
  /// Whether nothing is left to decide by. Dialogs are closed then.
  virtual bool Ended() const = 0;
};

/// A user who does whatever comes to hand, and the promises that must hold all the same.
class Walker {
 public:
  explicit Walker(Choices& choices);
  Walker(const Walker&) = delete;
  Walker& operator=(const Walker&) = delete;

  /// Opens a dialog on some element and acts until it has closed.
  void Visit();

  /// The first promise that did not hold; empty while all have.
  const std::string& Broken() const { return broken_; }
  int Acts() const { return acts_; }
  int Confirmed() const { return confirmed_; }
  int Restored() const { return restored_; }

 private:
  std::uint32_t Below(std::uint32_t bound) { return choices_.Below(bound); }
  std::uint32_t Below(std::size_t bound) { return Below(static_cast<std::uint32_t>(bound)); }
  void Promise(bool holds, std::string_view what) {
    if (!holds && broken_.empty()) broken_ = what;
  }
  void Act(Form& form);
  void ActAtRandom(Form& form);
  void Button(Form& form, std::string_view name);
  template <typename Way>
  void Leave(Form& form, Way way);
  void ActOnSomeControl(Form& form);
  void ActOnGrid(Hand& hand, Grid& grid);
  void PressKeys(Form& form);
  struct WalkKey;
  void Send(const WalkKey& key, bool down);

  Choices& choices_;
  World world_;
  HeadlessPlatform& platform_ = world_.platform;
  HeadlessSurroundings& surroundings_ = world_.surroundings;
  KeyRoad road_{platform_};
  std::vector<std::shared_ptr<ctlPlexelBaseElement>> elements_;
  udtTactisBaseElement_ScanCodeInfo opened_;
  std::string broken_;
  int acts_ = 0, actsInForm_ = 0, okClicks_ = 0, confirmed_ = 0, restored_ = 0;
  bool undone_ = false;
};

}  // namespace plexel
