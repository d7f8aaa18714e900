#pragma once

#include <functional>
#include <string>
#include <vector>

#include "headless/faults.h"
#include "platform/interaction.h"
#include "platform/system.h"

namespace plexel {

/// A screen of settable measures.
class HeadlessScreen : public Screen {
 public:
  /// The faults outlive it.
  explicit HeadlessScreen(Faults& faults) : faults_(faults) {}
  float TwipsPerPixelX() override;
  float TwipsPerPixelY() override;
  std::intptr_t CreateInformationContext() override;
  std::int32_t DeviceCapability(std::intptr_t context, std::int32_t index) override;
  void DeleteContext(std::intptr_t context) override;

  /// Sets the twips of a pixel; 15 at first.
  void TwipsPerPixel(float x, float y);
  /// Sets the logical pixels of an inch; 96 at first.
  void LogicalPixels(std::int32_t dpi) { dpi_ = dpi; }
  /// How many contexts have not been deleted.
  int OpenContexts() const { return openContexts_; }

 private:
  Faults& faults_;
  float twipsX_ = 15, twipsY_ = 15;
  std::int32_t dpi_ = 96;
  int openContexts_ = 0;
};

/// An operating system of a settable platform id.
class HeadlessVersion : public OsVersion {
 public:
  /// The faults outlive it.
  explicit HeadlessVersion(Faults& faults) : faults_(faults) {}
  /// Fills the record when its size is the one that the system knows.
  void Get(OsVersionRecord& record) override;
  /// Sets the kind of system; 2 at first.
  void PlatformId(std::int32_t value) { platformId_ = value; }

 private:
  Faults& faults_;
  std::int32_t platformId_ = 2;
};

/// Keeps what it was asked to show.
class HeadlessHelp : public HelpViewer {
 public:
  /// What was asked.
  struct Topic {
    /// The arguments of Show.
    std::intptr_t owner = 0;
    std::string file;
    std::int32_t command = 0, topic = 0;
  };
  /// The faults outlive it.
  explicit HeadlessHelp(Faults& faults) : faults_(faults) {}
  void Show(std::intptr_t owner, std::string_view file, std::int32_t command, std::int32_t topic) override;
  /// The topics so far.
  const std::vector<Topic>& Shown() const { return shown_; }
  /// Hears of a topic.
  std::function<void(const Topic&)> onShow;

 private:
  Faults& faults_;
  std::vector<Topic> shown_;
};

/// Counts how often waiting events were handled.
class HeadlessEvents : public EventPump {
 public:
  /// The faults outlive it.
  explicit HeadlessEvents(Faults& faults) : faults_(faults) {}
  void DoEvents() override;
  /// How often so far.
  std::int64_t Rounds() const { return rounds_; }

 private:
  Faults& faults_;
  std::int64_t rounds_ = 0;
};

}  // namespace plexel
