#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "forms/control.h"

namespace plexel {

/// Where a text stands.
enum class TextAlignment { Left, Centre, Right };

/// A control with one caption, in which "&" may mark a letter (forms/caption.h).
class CaptionControl : public Control {
 public:
  using Control::Control;
  /// The text on it.
  const std::string& Caption() const { return caption_; }
  void Caption(std::string value) { caption_ = std::move(value); }
  std::vector<TextSlot> Texts() override;

 protected:
  void DescribeMore(Description& description) const override;

 private:
  std::string caption_;
};

/// A push button, with a caption or a picture (the name of a picture of the product, empty for none).
class CommandButton : public CaptionControl {
 public:
  /// A button of a form.
  CommandButton(Form& form, std::string_view name, int index = -1)
      : CaptionControl(form, ControlKind::CommandButton, name, index) {}
  bool Focusable() const override { return true; }
  /// Pressed by Return from anywhere on the form. Setting it takes the role from the form's other buttons.
  bool Default() const;
  void Default(bool value);
  /// Pressed by Escape from anywhere on the form.
  bool Cancel() const;
  void Cancel(bool value);
  /// The name of the picture, empty for none.
  const std::string& Picture() const { return picture_; }
  void Picture(std::string name) { picture_ = std::move(name); }
  /// Whether it only holds the focus while keys go elsewhere: no key that it gets moves the focus to a neighbour, turns
  /// a page or follows the letter of a caption. Tab alone leaves it.
  bool ParksFocus() const { return parksFocus_; }
  void ParksFocus(bool value) { parksFocus_ = value; }

 protected:
  void DescribeMore(Description& description) const override;

 private:
  std::string picture_;
  bool parksFocus_ = false;
};

/// One of the choices of its container.
class OptionButton : public CaptionControl {
 public:
  /// An option button of a form.
  OptionButton(Form& form, std::string_view name, int index = -1)
      : CaptionControl(form, ControlKind::OptionButton, name, index) {}
  bool Focusable() const override { return true; }
  /// Whether it is the one that is set. Setting it true clears the other option buttons of the container and, when it
  /// was false, raises Click.
  bool Value() const { return value_; }
  void Value(bool value);
  /// The option buttons of its container, itself among them, in tab order.
  std::vector<OptionButton*> Group() const;

 protected:
  void DescribeMore(Description& description) const override;

 private:
  bool value_ = false;
};

/// A text field with a list. Its text need not be an entry of the list.
class ComboBox : public Control {
 public:
  /// A combo box of a form, without entries.
  ComboBox(Form& form, std::string_view name, int index = -1) : Control(form, ControlKind::ComboBox, name, index) {}
  bool Focusable() const override { return true; }
  /// The text of the field. Its place in the list becomes that of the first equal entry, -1 for a text that is none.
  /// Raises nothing.
  const std::string& Text() const { return text_; }
  void Text(std::string value);
  /// With a sorted list entries stand in the order of their texts, letters without regard to case and accent first.
  bool Sorted() const { return sorted_; }
  void Sorted(bool value) { sorted_ = value; }
  /// Adds an entry, at the end or in its order.
  void AddItem(std::string text);
  /// Takes all entries away, and the text with them.
  void Clear();
  /// The number of entries.
  int ListCount() const { return static_cast<int>(items_.size()); }
  /// Failure (Index) outside the list.
  const std::string& List(int index) const;
  /// All entries.
  const std::vector<std::string>& Items() const { return items_; }
  /// A number that is another one after every change of the entries.
  std::uint64_t ItemsVersion() const { return itemsVersion_; }
  /// The place of the entry that was picked, -1 for none.
  int ListIndex() const { return listIndex_; }
  /// Picks an entry: its text goes into the field, and Click is raised. -1 picks none and empties the field. Failure
  /// (Index) outside the list.
  void ListIndex(int index);
  std::vector<TextSlot> Texts() override;

 protected:
  void DescribeMore(Description& description) const override;

 private:
  std::string text_;
  bool sorted_ = false;
  std::vector<std::string> items_;
  std::uint64_t itemsVersion_ = 0;
  int listIndex_ = -1;
};

/// A box of text. Lengths and places are counted in characters.
class TextBox : public Control {
 public:
  /// A text box of a form.
  TextBox(Form& form, std::string_view name, int index = -1) : Control(form, ControlKind::TextBox, name, index) {}
  bool Focusable() const override { return true; }
  /// The text. Setting it cuts what is longer than MaxLength, puts the caret ahead of the text, and raises Change when
  /// the text changed.
  const std::string& Text() const { return text_; }
  void Text(std::string value) { Edit(std::move(value), 0); }
  /// The same with a place for the caret, which stands there when Change is raised.
  void Edit(std::string value, int selStart);
  /// The length of the text.
  int TextLength() const;
  /// The longest text, 0 for no limit.
  int MaxLength() const { return maxLength_; }
  void MaxLength(int value) { maxLength_ = value; }
  /// The caret: the number of characters ahead of it. A place outside the text becomes the nearest one in it.
  int SelStart() const { return selStart_; }
  void SelStart(int value);
  /// Whether the user cannot change the text.
  bool Locked() const { return locked_; }
  void Locked(bool value) { locked_ = value; }
  /// Whether it has several lines.
  bool MultiLine() const { return multiLine_; }
  void MultiLine(bool value) { multiLine_ = value; }
  /// Where the text stands.
  TextAlignment Alignment() const { return alignment_; }
  void Alignment(TextAlignment value) { alignment_ = value; }
  /// The colour of the ground, 0x00BBGGRR.
  std::int32_t BackColor() const { return backColor_; }
  void BackColor(std::int32_t value) { backColor_ = value; }
  /// The colour of the text, 0x00BBGGRR.
  std::int32_t ForeColor() const { return foreColor_; }
  void ForeColor(std::int32_t value) { foreColor_ = value; }
  /// Size of the letters in points, 0 for that of the form.
  float FontSize() const { return fontSize_; }
  void FontSize(float value) { fontSize_ = value; }
  std::vector<TextSlot> Texts() override;
  /// The text has changed.
  Event OnChange;

 protected:
  void DescribeMore(Description& description) const override;

 private:
  std::string text_;
  int maxLength_ = 0, selStart_ = 0;
  bool locked_ = false, multiLine_ = false;
  TextAlignment alignment_ = TextAlignment::Left;
  std::int32_t backColor_ = 0xFFFFFF, foreColor_ = 0;
  float fontSize_ = 0;
};

/// How a label looks: a link is one that can be clicked.
enum class LabelLook { Plain, Title, Link };

/// A text beside other controls.
class Label : public CaptionControl {
 public:
  /// A label of a form.
  Label(Form& form, std::string_view name, int index = -1) : CaptionControl(form, ControlKind::Label, name, index) {}
  /// Where the text stands.
  TextAlignment Alignment() const { return alignment_; }
  void Alignment(TextAlignment value) { alignment_ = value; }
  /// How it looks.
  LabelLook Look() const { return look_; }
  void Look(LabelLook value) { look_ = value; }
  /// The control that it names and to which the letter of its caption leads; null for none.
  Control* Names() const { return names_; }
  void Names(Control& control) { names_ = &control; }

 private:
  TextAlignment alignment_ = TextAlignment::Left;
  LabelLook look_ = LabelLook::Plain;
  Control* names_ = nullptr;
};

/// A picture, named among the pictures of the product.
class PictureBox : public Control {
 public:
  /// A picture of a form.
  PictureBox(Form& form, std::string_view name, int index = -1) : Control(form, ControlKind::Picture, name, index) {}
  /// The name of the picture, empty for none.
  const std::string& Picture() const { return picture_; }
  void Picture(std::string name) { picture_ = std::move(name); }
  /// Whether the picture fills the box.
  bool Stretch() const { return stretch_; }
  void Stretch(bool value) { stretch_ = value; }

 protected:
  void DescribeMore(Description& description) const override;

 private:
  std::string picture_;
  bool stretch_ = false;
};

/// A box around other controls.
class Frame : public CaptionControl {
 public:
  /// A frame of a form.
  Frame(Form& form, std::string_view name, int index = -1) : CaptionControl(form, ControlKind::Frame, name, index) {}
  /// Whether its edge is drawn.
  bool Border() const { return border_; }
  void Border(bool value) { border_ = value; }

 private:
  bool border_ = true;
};

/// A strip of tabs with one page each.
class TabStrip : public Control {
 public:
  /// A strip of a form, with pages that are on.
  TabStrip(Form& form, std::string_view name, int pages);
  bool Focusable() const override { return true; }
  /// The number of pages.
  int Pages() const { return static_cast<int>(pages_.size()); }
  /// The page in front. Setting it is a Failure (Index) for a page that it lacks, and raises nothing.
  int Tab() const { return tab_; }
  void Tab(int page);
  /// The text on a tab. Failure (Index) for a page that it lacks.
  const std::string& TabCaption(int page) const;
  void TabCaption(int page, std::string caption);
  /// A page that is off cannot be brought to the front by the user.
  bool TabEnabled(int page) const;
  void TabEnabled(int page, bool value);
  std::vector<TextSlot> Texts() override;

 protected:
  void DescribeMore(Description& description) const override;

 private:
  struct PageState {
    std::string caption;
    bool enabled = true;
  };
  const PageState& At(int page) const;
  PageState& At(int page);

  std::vector<PageState> pages_;
  int tab_ = 0;
};

/// A bar with one text.
class StatusBar : public Control {
 public:
  /// A bar of a form.
  StatusBar(Form& form, std::string_view name) : Control(form, ControlKind::StatusBar, name) {}
  /// Its text.
  const std::string& SimpleText() const { return text_; }
  void SimpleText(std::string value) { text_ = std::move(value); }
  std::vector<TextSlot> Texts() override;

 protected:
  void DescribeMore(Description& description) const override;

 private:
  std::string text_;
};

/// A menu or an entry of one. A caption of "-" is a separator.
class MenuItem : public CaptionControl {
 public:
  /// A menu of a form, or an entry.
  MenuItem(Form& form, std::string_view name) : CaptionControl(form, ControlKind::Menu, name) {}
  /// Adds an entry at the end.
  void Add(MenuItem& entry) { entries_.push_back(&entry); }
  /// The entries in their order.
  const std::vector<MenuItem*>& Entries() const { return entries_; }
  /// Whether it is a line between entries.
  bool Separator() const { return Caption() == "-"; }

 private:
  std::vector<MenuItem*> entries_;
};

/// Names of pictures under keys.
class ImageList : public Control {
 public:
  /// A list of a form.
  ImageList(Form& form, std::string_view name) : Control(form, ControlKind::ImageList, name) {}
  /// Gives a key a picture.
  void Add(std::string key, std::string picture) { pictures_[std::move(key)] = std::move(picture); }
  /// Failure (Index) for an unknown key.
  const std::string& Picture(const std::string& key) const;

 protected:
  void DescribeMore(Description& description) const override;

 private:
  std::map<std::string, std::string> pictures_;
};

/// A filled rectangle behind the other controls.
class Shape : public Control {
 public:
  /// A rectangle of a form.
  Shape(Form& form, std::string_view name) : Control(form, ControlKind::Shape, name) {}
  std::int32_t BackColor() const { return backColor_; }
  void BackColor(std::int32_t value) { backColor_ = value; }

 protected:
  void DescribeMore(Description& description) const override;

 private:
  std::int32_t backColor_ = 0xFFFFFF;
};

}  // namespace plexel
