#include "forms/hand.h"

#include <algorithm>

#include "forms/acting.h"
#include "forms/caption.h"
#include "forms/characters.h"
#include "forms/own_keys.h"
#include "forms/text_editing.h"

namespace plexel {

namespace {

/// What handlers see of a character that the code page lacks.
constexpr std::int16_t UnknownCharacter = '?';

}  // namespace

bool Hand::MenuTakes(std::int16_t keyCode, std::int16_t shift) {
  if (form_.OpenPopup() == nullptr) return false;
  const std::vector<MenuItem*>& entries = form_.OpenPopup()->Entries();
  const auto entry = std::find_if(entries.begin(), entries.end(), [&](const MenuItem* one) {
    return one->Usable() && !one->Separator() && LeadsTo(one->Caption(), keyCode);
  });
  if (entry != entries.end() && (shift & key::ControlBit) == 0) {
    Menu(**entry);
    return true;
  }
  DismissMenu();
  return keyCode == key::Escape;
}

std::int16_t Hand::RaiseKeyDown(Control* target, std::int16_t keyCode, std::int16_t shift) {
  const OpenForm open(form_);
  std::int16_t code = keyCode;
  if (form_.KeyPreview()) form_.OnKeyDown(code, shift);
  if (open && GetsKeys(target)) Raise(target->OnKeyDown, code, shift);
  return code;
}

Hand::DownResult Hand::Down(Control* target, std::int16_t keyCode, std::int16_t shift, Editor editor) {
  if (MenuTakes(keyCode, shift) || FormTakes(target, keyCode, shift)) return {0, false};
  const OpenForm open(form_);
  const std::int16_t code = RaiseKeyDown(target, keyCode, shift);
  const bool editorActs =
      editor == Editor::Renderer && code == keyCode && target != nullptr && target->Kind() == ControlKind::TextBox;
  if (open && GetsKeys(target) && !editorActs) ActOnKey(*target, code, shift);
  return {code, bool(open)};
}

Hand::PressResult Hand::Character(Control* target, char32_t character, Editor editor) {
  const int known = characters::CodeOf(character);
  const std::int16_t sent = known < 0 ? UnknownCharacter : static_cast<std::int16_t>(known);
  std::int16_t code = sent;
  const OpenForm open(form_);
  if (form_.KeyPreview()) form_.OnKeyPress(code);
  if (open && GetsKeys(target)) Raise(target->OnKeyPress, code);
  if (!open || code <= 0 || code > 0xFF || !GetsKeys(target) || target->Kind() != ControlKind::TextBox) {
    return {code, false};
  }
  if (code == sent && editor == Editor::Renderer) return {code, true};
  EnterCharacter(static_cast<TextBox&>(*target),
                 code == sent ? character : characters::OfCode(static_cast<std::uint8_t>(code)));
  return {code, false};
}

std::int16_t Hand::KeyDown(std::int16_t keyCode, std::int16_t shift) {
  if (MenuTakes(keyCode, shift)) return keyCode;
  Control* const target = form_.Focus();
  const OpenForm open(form_);
  const std::int16_t code = RaiseKeyDown(target, keyCode, shift);
  if (open && !FormTakes(target, keyCode, shift) && GetsKeys(target)) ActOnKey(*target, code, shift);
  return code;
}

std::int16_t Hand::KeyPress(std::int16_t character) {
  if (character < 0 || character > 0xFF) {
    throw Failure(FailureKind::InvalidCall, "no character has the code " + std::to_string(character));
  }
  return Character(form_.Focus(), characters::OfCode(static_cast<std::uint8_t>(character)), Editor::Form).character;
}

std::int16_t Hand::Key(std::int16_t keyCode, std::int16_t shift, char32_t character) {
  Control* const target = form_.Focus();
  const DownResult down = Down(target, keyCode, shift, Editor::Form);
  if (down.characterFollows && character != 0) Character(target, character, Editor::Form);
  return down.keyCode;
}

bool Hand::PreviewKey(std::int16_t keyCode, std::int16_t shift, char32_t character) {
  Control* const target = form_.Focus();
  const DownResult down = Down(target, keyCode, shift, Editor::Renderer);
  if (!down.characterFollows) return false;
  if (character != 0) return Character(target, character, Editor::Renderer).left;
  return down.keyCode == keyCode && GetsKeys(target) && target->Kind() == ControlKind::TextBox;
}

void Hand::KeyUp(std::int16_t keyCode, std::int16_t) {
  if (keyCode != key::Space) return;
  Control* const armed = form_.Armed();
  form_.Armed(nullptr);
  if (armed != nullptr && armed == form_.Focus() && armed->Usable()) Press(*armed);
}

}  // namespace plexel
