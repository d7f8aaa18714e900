#include "walker.h"

#include <array>

#include "services/dialogs.h"

namespace plexel {

/// A key as the keyboard's driver tells it.
struct Walker::WalkKey {
  std::int32_t virtualKey, scanCode;
  bool extended;
};

namespace {

/// Acts after which a form is closed by its close box, so that a walk does not stay in one dialog.
constexpr int ActsInOneForm = 200;

/// Whether OK of this form tells the host that the project has changed.
bool Confirms(std::string_view form) {
  return form == dialogs::frmConfigurationDialog || form == dialogs::frmButtonWizardPage3;
}

}  // namespace

Walker::Walker(Choices& choices) : choices_(choices) {
  world_.Speak();
  for (int query = 0; query < CapabilityCount; ++query)
    surroundings_.Capabilities().Set("*", static_cast<Capability>(query), Below(4U) != 0);
  surroundings_.Settings().Option(1, True);
  platform_.Modal().onRun = [this](Form& form) { Act(form); };
  platform_.Messages().onShow = [this](std::string_view, std::int32_t, std::string_view) {
    constexpr std::array answers = {MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Cancel};
    return answers.at(Below(answers.size()));
  };
  for (int kind = 0; kind <= Key; ++kind) {
    elements_.push_back(world_.component.Create("E" + std::to_string(kind), world_.host));
    elements_.back()->ElementType(static_cast<enumTactisBaseElementType>(kind));
  }
}

void Walker::Visit() {
  ctlPlexelBaseElement& element = *elements_[Below(elements_.size())];
  surroundings_.Settings().Option(9, Below(2U) == 0);
  element.WizardOn(Below(2U) == 0);
  element.VantaEnabled(Below(2U) == 0);
  opened_ = element.TactisBaseElementScanCodeBuffer();
  undone_ = false;
  okClicks_ = 0;
  world_.host.Forget();
  actsInForm_ = 0;
  Below(10U) == 0 ? element.OpenPropertiesDialog() : element.OpenConfigurationDialog();

  Promise(platform_.Modal().Shown().empty(), "a dialog was left open");
  Promise(!platform_.Hooks().Installed(HookKind::Keyboard), "capture outlived the dialogs");
  Promise(!platform_.Hooks().Installed(HookKind::LowLevelKeyboard), "the task keys stayed locked");
  Promise(Module().bDirectInputActive == False, "direct input outlived the dialogs");
  Promise(world_.host.Count("ProjectModified") == okClicks_, "the host was told of as many changes as were confirmed");
  confirmed_ += okClicks_;
  if (undone_) {
    Promise(okClicks_ == 0, "what was confirmed was undone");
    Promise(element.TactisBaseElementScanCodeBuffer() == opened_, "Cancel did not give the element back");
    ++restored_;
  }
  ++acts_;
}

void Walker::Act(Form& form) {
  ++acts_;
  try {
    if (++actsInForm_ > ActsInOneForm || choices_.Ended()) {
      Leave(form, [&] { Hand(form).Close(); });
      return;
    }
    ActAtRandom(form);
  } catch (const Failure&) {  // a control that cannot be acted on; a user meets those too
  }
}

void Walker::ActAtRandom(Form& form) {
  switch (Below(12U)) {
    case 0:
    case 1:
      return PressKeys(form);
    case 2:
      if (form.OpenPopup() != nullptr) {
        const auto& entries = form.OpenPopup()->Entries();
        return Hand(form).Menu(*entries[Below(entries.size())]);
      }
      return Button(form, "cmdForward");
    case 3:
      return Below(3U) == 0 ? Button(form, "cmdBack") : Button(form, "cmdForward");
    case 4:
      return Below(4U) == 0 ? Button(form, "cmdCancel") : Button(form, "cmdForward");
    case 5:
      if (Below(4U) == 0) return Button(form, "cmdOK");
      if (Below(12U) == 0) return Leave(form, [&] { Hand(form).Close(); });
      return;
    default:
      return ActOnSomeControl(form);
  }
}

void Walker::Button(Form& form, std::string_view name) {
  Control* const button = form.Find(name);
  if (button == nullptr) return;
  if (name == "cmdCancel") return Leave(form, [&] { Hand(form).Click(*button); });
  const int modified = world_.host.Count("ProjectModified");
  Hand(form).Click(*button);
  if (name != "cmdOK" || !Confirms(form.Name())) return;
  ++okClicks_;
  Promise(world_.host.Count("ProjectModified") == modified + 1, "OK told the host of one change");
}

/// Leaves a form by Cancel or its close box. From the first form of a configuration that undoes everything.
template <typename Way>
void Walker::Leave(Form& form, Way way) {
  const bool first = platform_.Modal().Shown().size() == 1 && form.Name() != dialogs::frmPropertiesButton;
  way();
  if (first && !form.IsShown()) undone_ = true;
}

void Walker::ActOnSomeControl(Form& form) {
  const auto& controls = form.Controls();
  Control& control = *controls[Below(controls.size())];
  if (control.Name() == "cmdOK" || control.Name() == "cmdCancel") return;
  Hand hand(form);
  switch (control.Kind()) {
    case ControlKind::ComboBox: {
      auto& box = static_cast<ComboBox&>(control);
      if (box.ListCount() > 0) hand.Select(box, static_cast<int>(Below(static_cast<std::uint32_t>(box.ListCount()))));
      return;
    }
    case ControlKind::TextBox:
      if (Below(2U) == 0) return hand.DblClick(control);
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

void Walker::ActOnGrid(Hand& hand, Grid& grid) {
  const auto row = static_cast<int>(Below(static_cast<std::uint32_t>(grid.Rows())));
  const auto col = static_cast<int>(Below(static_cast<std::uint32_t>(grid.Cols())));
  switch (Below(4U)) {
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
void Walker::PressKeys(Form& form) {
  constexpr std::array<WalkKey, 20> some = {
      {{0x11, 0x1D, false}, {0x10, 0x2A, false}, {0x12, 0x38, true},  {0x41, 0x1E, false}, {0x0D, 0x1C, false},
       {0x1B, 0x01, false}, {0x09, 0x0F, false}, {0x20, 0x39, false}, {0x26, 0x48, true},  {0x28, 0x50, true},
       {0x25, 0x4B, true},  {0x27, 0x4D, true},  {0x2E, 0x53, true},  {0x08, 0x0E, false}, {0x79, 0x44, false},
       {0x43, 0x2E, false}, {0x56, 0x2F, false}, {0x2C, 0x37, true},  {0x21, 0x49, true},  {0x22, 0x51, true}}};
  std::array<WalkKey, 3> keys{};
  const std::uint32_t count = 1 + Below(3U);
  for (std::uint32_t i = 0; i < count; ++i) keys.at(i) = some.at(Below(some.size()));
  for (std::uint32_t i = 0; i < 2 * count && platform_.Modal().Topmost() == &form; ++i)
    Send(keys.at(i < count ? i : 2 * count - 1 - i), i < count);
  for (const WalkKey& key : keys) platform_.Keys().Free(key.virtualKey);
}

void Walker::Send(const WalkKey& key, bool down) {
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
    Promise(own == 1, "a key told the host of more than one change");
    Promise(closed && Confirms(name), "a key confirmed what it did not close");
    ++okClicks_;
  } else if (closed && first && name != dialogs::frmPropertiesButton &&
             (key.virtualKey == 0x1B || focus == "cmdCancel")) {
    undone_ = true;
  }
}

}  // namespace plexel
