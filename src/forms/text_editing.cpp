#include "forms/text_editing.h"

#include <algorithm>

#include "forms/characters.h"

namespace plexel {

namespace {

constexpr std::string_view LineBreak = "\r\n";
constexpr int LineBreakLength = 2;
constexpr char32_t FirstPrintable = 32;

/// A text box's text taken apart at the caret.
class Caret {
 public:
  explicit Caret(TextBox& box) : box_(box), parts_(characters::Split(box.Text())), place_(box.SelStart()) {}

  /// Characters that one step back, or ahead, passes over.
  int StepBack() const {
    if (place_ == 0) return 0;
    return place_ >= LineBreakLength && BreaksLine(place_ - LineBreakLength) ? LineBreakLength : 1;
  }
  int StepAhead() const {
    if (place_ == End()) return 0;
    return BreaksLine(place_) ? LineBreakLength : 1;
  }
  int StartOfLine() const {
    int place = place_;
    while (place > 0 && At(place - 1) != "\n") --place;
    return place;
  }
  int EndOfLine() const {
    int place = place_;
    while (place < End() && !BreaksLine(place) && At(place) != "\n") ++place;
    return place;
  }
  void MoveTo(int place) { box_.SelStart(place); }
  /// Puts `text` at the caret, and the caret behind it. Nothing happens when the box has no room for all of it or is
  /// locked.
  void Insert(std::string_view text) {
    if (box_.Locked()) return;
    const int inserted = characters::Count(text);
    if (box_.MaxLength() > 0 && End() + inserted > box_.MaxLength()) return;
    std::string result = Join(0, place_);
    result += text;
    result += Join(place_, End());
    box_.Edit(std::move(result), place_ + inserted);
  }
  /// Leaves out characters on both sides of the caret. Nothing happens in a locked box.
  void Delete(int back, int ahead) {
    if (box_.Locked()) return;
    box_.Edit(Join(0, place_ - back) + Join(place_ + ahead, End()), place_ - back);
  }

 private:
  int End() const { return static_cast<int>(parts_.size()); }
  std::string_view At(int place) const { return parts_[static_cast<std::size_t>(place)]; }
  bool BreaksLine(int place) const { return place + 1 < End() && At(place) == "\r" && At(place + 1) == "\n"; }
  std::string Join(int first, int end) const {
    std::string joined;
    for (int place = first; place < end; ++place) joined += At(place);
    return joined;
  }

  TextBox& box_;
  std::vector<std::string_view> parts_;
  int place_;
};

}  // namespace

void EditByKey(Control& control, std::int16_t keyCode) {
  auto& box = static_cast<TextBox&>(control);
  Caret caret(box);
  switch (keyCode) {
    case key::Left:
      return caret.MoveTo(box.SelStart() - caret.StepBack());
    case key::Right:
      return caret.MoveTo(box.SelStart() + caret.StepAhead());
    case key::Home:
      return caret.MoveTo(caret.StartOfLine());
    case key::End:
      return caret.MoveTo(caret.EndOfLine());
    case key::Delete:
      return caret.Delete(0, caret.StepAhead());
    default:
      break;
  }
}

void EnterCharacter(TextBox& box, char32_t character) {
  Caret caret(box);
  if (character == key::Back) return caret.Delete(caret.StepBack(), 0);
  if (character == key::Return && box.MultiLine()) return caret.Insert(LineBreak);
  if (character >= FirstPrintable) caret.Insert(characters::Encode(character));
}

}  // namespace plexel
