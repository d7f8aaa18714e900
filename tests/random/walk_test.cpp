#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <random>

#include "forms/hand.h"
#include "headless/key_road.h"
#include "services/dialogs.h"
#include "world/world.h"

namespace plexel {
namespace {

constexpr int ActsOfTheWalk = 100000;
/// Acts after which a form is closed by its close box, so that a walk does not stay in one dialog.
constexpr int ActsInOneForm = 200;

struct WalkKey {
  std::int32_t virtualKey, scanCode;
  bool extended;
};
constexpr std::array<WalkKey, 20> walkKeys = {
    {{0x11, 0x1D, false}, {0x10, 0x2A, false}, {0x12, 0x38, true},  {0x41, 0x1E, false}, {0x0D, 0x1C, false},
     {0x1B, 0x01, false}, {0x09, 0x0F, false}, {0x20, 0x39, false}, {0x26, 0x48, true},  {0x28, 0x50, true},
     {0x25, 0x4B, true},  {0x27, 0x4D, true},  {0x2E, 0x53, true},  {0x08, 0x0E, false}, {0x79, 0x44, false},
     {0x43, 0x2E, false}, {0x56, 0x2F, false}, {0x2C, 0x37, true},  {0x21, 0x49, true},  {0x22, 0x51, true}}};

/// A user who does whatever comes to hand, and the promises that must hold all the same.
class Walker {
 public:
  explicit Walker(std::uint64_t seed) : random_(seed) {
    world_.Speak();
    for (int query = 0; query < CapabilityCount; ++query)
      surroundings_.Capabilities().Set("*", static_cast<Capability>(query), Below(4) != 0);
    surroundings_.Settings().Option(1, True);
    platform_.Modal().onRun = [this](Form& form) { Act(form); };
    platform_.Messages().onShow = [this](std::string_view, std::int32_t, std::string_view) {
      constexpr std::array answers = {MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Cancel};
      return answers[Below(3)];
    };
    for (int kind = 0; kind <= Key; ++kind) {
      elements_.push_back(world_.component.Create("E" + std::to_string(kind), world_.host));
      elements_.back()->ElementType(static_cast<enumTactisBaseElementType>(kind));
    }
  }
  Walker(const Walker&) = delete;
  Walker& operator=(const Walker&) = delete;

  int Acts() const { return acts_; }
  int Confirmed() const { return confirmed_; }
  int Restored() const { return restored_; }

  /// Opens a dialog on some element and acts until it has closed.
  void Visit() {
    ctlPlexelBaseElement& element = *elements_[Below(static_cast<std::uint32_t>(elements_.size()))];
    surroundings_.Settings().Option(9, Below(2) == 0);
    element.WizardOn(Below(2) == 0);
    element.VantaEnabled(Below(2) == 0);
    opened_ = element.TactisBaseElementScanCodeBuffer();
    undone_ = false;
    okClicks_ = 0;
    world_.host.Forget();
    actsInForm_ = 0;
    Below(10) == 0 ? element.OpenPropertiesDialog() : element.OpenConfigurationDialog();

    ASSERT_TRUE(platform_.Modal().Shown().empty()) << "a dialog was left open";
    ASSERT_FALSE(platform_.Hooks().Installed(HookKind::Keyboard)) << "capture outlived the dialogs";
    ASSERT_FALSE(platform_.Hooks().Installed(HookKind::LowLevelKeyboard)) << "the task keys stayed locked";
    ASSERT_EQ(Module().bDirectInputActive, False);
    ASSERT_EQ(world_.host.Count("ProjectModified"), okClicks_);
    confirmed_ += okClicks_;
    if (undone_) {
      ASSERT_EQ(okClicks_, 0);
      ASSERT_TRUE(element.TactisBaseElementScanCodeBuffer() == opened_) << "Cancel did not give the element back";
      ++restored_;
    }
    ++acts_;
  }

 private:
  /// Whether OK of this form tells the host that the project has changed.
  static bool Confirms(std::string_view form) {
    return form == dialogs::frmConfigurationDialog || form == dialogs::frmButtonWizardPage3;
  }

  std::uint32_t Below(std::uint32_t bound) { return static_cast<std::uint32_t>(random_() % bound); }

  void Act(Form& form) {
    ++acts_;
    try {
      if (++actsInForm_ > ActsInOneForm) {
        Leave(form, [&] { Hand(form).Close(); });
        return;
      }
      ActAtRandom(form);
    } catch (const Failure&) {  // a control that cannot be acted on; a user meets those too
    }
  }

  void ActAtRandom(Form& form) {
    switch (Below(12)) {
      case 0:
        return PressKeys(form);
      case 1:
        return PressKeys(form);
      case 2:
        if (form.OpenPopup() != nullptr) {
          const auto& entries = form.OpenPopup()->Entries();
          return Hand(form).Menu(*entries[Below(static_cast<std::uint32_t>(entries.size()))]);
        }
        return Button(form, "cmdForward");
      case 3:
        return Below(3) == 0 ? Button(form, "cmdBack") : Button(form, "cmdForward");
      case 4:
        return Below(4) == 0 ? Button(form, "cmdCancel") : Button(form, "cmdForward");
      case 5:
        if (Below(4) == 0) return Button(form, "cmdOK");
        if (Below(12) == 0) return Leave(form, [&] { Hand(form).Close(); });
        return;
      default:
        return ActOnSomeControl(form);
    }
  }

  void Button(Form& form, std::string_view name) {
    Control* const button = form.Find(name);
    if (button == nullptr) return;
    if (name == "cmdCancel") return Leave(form, [&] { Hand(form).Click(*button); });
    const int modified = world_.host.Count("ProjectModified");
    Hand(form).Click(*button);
    if (name != "cmdOK" || !Confirms(form.Name())) return;
    ++okClicks_;
    ASSERT_EQ(world_.host.Count("ProjectModified"), modified + 1);
  }

  /// Leaves a form by Cancel or its close box. From the first form of a configuration that undoes everything.
  template <typename Way>
  void Leave(Form& form, Way way) {
    const bool first = platform_.Modal().Shown().size() == 1 && form.Name() != dialogs::frmPropertiesButton;
    way();
    if (first && !form.IsShown()) undone_ = true;
  }

  void ActOnSomeControl(Form& form) {
    const auto& controls = form.Controls();
    Control& control = *controls[Below(static_cast<std::uint32_t>(controls.size()))];
    if (control.Name() == "cmdOK" || control.Name() == "cmdCancel") return;
    Hand hand(form);
    switch (control.Kind()) {
      case ControlKind::ComboBox: {
        auto& box = static_cast<ComboBox&>(control);
        if (box.ListCount() > 0) hand.Select(box, static_cast<int>(Below(static_cast<std::uint32_t>(box.ListCount()))));
        return;
      }
      case ControlKind::TextBox:
        if (Below(2) == 0) return hand.DblClick(control);
        return hand.Type(static_cast<TextBox&>(control), "Note [1], \xC3\xBC");
      case ControlKind::Grid:
        return ActOnGrid(hand, static_cast<Grid&>(control));
      case ControlKind::TabStrip: {
        auto& strip = static_cast<TabStrip&>(control);
        return hand.Tab(strip, static_cast<int>(Below(static_cast<std::uint32_t>(strip.Pages()))));
      }
      default:
        return hand.Click(control);
    }
  }

  void ActOnGrid(Hand& hand, Grid& grid) {
    const auto row = static_cast<int>(Below(static_cast<std::uint32_t>(grid.Rows())));
    const auto col = static_cast<int>(Below(static_cast<std::uint32_t>(grid.Cols())));
    switch (Below(4)) {
      case 0:
        return hand.DblClick(grid, row, col);
      case 1:
        return hand.MouseDown(grid, 2, 0, 100, 100);
      case 2:
        return hand.Cell(grid, row, col);
      default:
        return hand.Click(grid, row, col);
    }
  }

  /// One to three keys down and up again, as long as the form is there.
  void PressKeys(Form& form) {
    std::array<WalkKey, 3> keys{};
    const std::uint32_t count = 1 + Below(3);
    for (std::uint32_t i = 0; i < count; ++i) keys[i] = walkKeys[Below(walkKeys.size())];
    for (std::uint32_t i = 0; i < 2 * count && platform_.Modal().Topmost() == &form; ++i)
      Send(keys[i < count ? i : 2 * count - 1 - i], i < count);
    for (const WalkKey& key : keys) platform_.Keys().Free(key.virtualKey);
  }

  void Send(const WalkKey& key, bool down) {
    Form* const form = platform_.Modal().Topmost();
    if (form == nullptr) return;
    const std::string focus = form->Focus() == nullptr ? "" : form->Focus()->Name();
    const std::string name = form->Name();
    const bool first = platform_.Modal().Shown().size() == 1;
    const int modified = world_.host.Count("ProjectModified"), confirmed = okClicks_;
    road_.Send({key.virtualKey, key.scanCode, key.extended, down, 0});
    // What pages nested in this key's event confirmed has been counted by their own acts.
    const int own = world_.host.Count("ProjectModified") - modified - (okClicks_ - confirmed);
    const bool closed = platform_.Modal().Topmost() != form;
    if (own != 0) {
      ASSERT_EQ(own, 1);
      ASSERT_TRUE(closed && Confirms(name)) << name;
      ++okClicks_;
    } else if (closed && first && name != dialogs::frmPropertiesButton &&
               (key.virtualKey == 0x1B || focus == "cmdCancel")) {
      undone_ = true;
    }
  }

  std::mt19937_64 random_;
  World world_;
  HeadlessPlatform& platform_ = world_.platform;
  HeadlessSurroundings& surroundings_ = world_.surroundings;
  KeyRoad road_{platform_};
  std::vector<std::shared_ptr<ctlPlexelBaseElement>> elements_;
  udtTactisBaseElement_ScanCodeInfo opened_;
  int acts_ = 0, actsInForm_ = 0, okClicks_ = 0, confirmed_ = 0, restored_ = 0;
  bool undone_ = false;
};

std::uint64_t Seed() {
  if (const char* given = std::getenv("PLEXEL_SEED")) return std::strtoull(given, nullptr, 10);
  return std::random_device()();
}

TEST(RandomWalk, ADialogKeepsItsPromisesWhateverTheUserDoes) {
  const std::uint64_t seed = Seed();
  std::cout << "seed " << seed << " (PLEXEL_SEED repeats a walk)\n";
  Walker walker(seed);
  const auto start = std::chrono::steady_clock::now();
  while (walker.Acts() < ActsOfTheWalk && !HasFatalFailure()) walker.Visit();
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  std::cout << walker.Acts() << " acts in " << time.count() << " s, " << walker.Confirmed() << " confirmed, "
            << walker.Restored() << " undone\n";
  EXPECT_GT(walker.Confirmed(), 100);
  EXPECT_GT(walker.Restored(), 100);
}

}  // namespace
}  // namespace plexel
