#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/controls.h"
#include "forms/form.h"
#include "forms/grid.h"

namespace plexel::testing {

/// A form with one control of every kind, which notes its events.
class SampleForm : public Form {
 public:
  SampleForm() : Form("SampleForm") {
    Caption("Sample");
    Left(1500);
    Top(750);
    Width(6090);
    Height(6405);
    KeyPreview(true);
    shape.Place(0, 0, 6000, 600);
    title.Place(150, 75, 3000, 300);
    title.Caption("Title & more");
    title.Look(LabelLook::Title);
    picture.Place(4500, 75, 450, 450);
    picture.Picture("led");
    frame.Place(150, 750, 2700, 1200);
    frame.Caption("Choice");
    options.reserve(2);
    for (int index = 0; index < 2; ++index) {
      OptionButton& option = *options.emplace_back(std::make_unique<OptionButton>(*this, "opt", index));
      option.Inside(frame);
      option.Place(150, 300.0F + 375.0F * static_cast<float>(index), 2400, 300);
      option.Caption("Option " + std::to_string(index));
      option.OnClick = [this, index] { Note("option " + std::to_string(index)); };
    }
    options[0]->Value(true);
    combo.Place(3000, 750, 2400, 330);
    combo.AddItem("first");
    combo.AddItem("second");
    combo.Text("no entry");
    combo.OnClick = [this] { Note("combo " + combo.Text()); };
    line.Place(3000, 1200, 2400, 330);
    line.OnChange = [this] { Note("line " + line.Text()); };
    line.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) {
      if (keyCode == 'Q') keyCode = 0;
    };
    line.OnKeyPress = [](std::int16_t& character) {
      if (character == 'q') character = 0;
    };
    strip.Place(150, 2100, 5700, 2700);
    for (int page = 0; page < 3; ++page) strip.TabCaption(page, "Page " + std::to_string(page));
    strip.TabEnabled(2, false);
    strip.OnClick = [this] { Note("tab " + std::to_string(strip.Tab())); };
    grid.OnPage(strip, 0);
    grid.Place(75, 75, 4500, 1275);
    grid.UserResizing(true);
    for (int col = 0; col < 3; ++col) grid.ColWidth(col, 1200);
    grid.OnClick = [this] { Note("cell " + std::to_string(grid.Row()) + "," + std::to_string(grid.Col())); };
    grid.OnDblClick = [this] { Note("double cell"); };
    grid.OnMouseDown = [this](std::int16_t button, std::int16_t, float, float) {
      if (button == 2) PopupMenu(menu);
    };
    note.OnPage(strip, 1);
    note.Place(75, 75, 4500, 1200);
    note.MultiLine(true);
    note.MaxLength(20);
    status.Place(0, 4950, 6000, 300);
    status.SimpleText("ready");
    link.Place(150, 5400, 2000, 300);
    link.Caption("Link");
    link.Look(LabelLook::Link);
    link.OnClick = [this] { Note("link"); };
    ok.Place(2400, 5400, 1200, 375);
    ok.Caption("OK");
    ok.OnClick = [this] { Note("ok"); };
    cancel.Place(3750, 5400, 1200, 375);
    cancel.Caption("Cancel");
    cancel.Cancel(true);
    cancel.OnClick = [this] { Unload(); };
    menuCopy.Caption("Copy");
    menuCopy.OnClick = [this] { Note("copy"); };
    menuLine.Caption("-");
    menuPaste.Caption("Paste");
    menuPaste.Enabled(false);
    for (MenuItem* entry : {&menuCopy, &menuLine, &menuPaste}) menu.Add(*entry);
    notes.clear();
  }

  void OnQueryUnload(UnloadMode mode) override { Note(mode == UnloadMode::CloseBox ? "close box" : "close"); }
  void OnKeyDown(std::int16_t& keyCode, std::int16_t shift) override { keys.emplace_back(keyCode, shift); }

  void Note(std::string what) { notes.push_back(std::move(what)); }
  std::vector<std::string> notes;
  std::vector<std::pair<std::int16_t, std::int16_t>> keys;

  Shape shape{*this, "shape"};
  Label title{*this, "title"};
  PictureBox picture{*this, "picture"};
  Frame frame{*this, "frame"};
  std::vector<std::unique_ptr<OptionButton>> options;
  ComboBox combo{*this, "combo"};
  TextBox line{*this, "line"};
  TabStrip strip{*this, "strip", 3};
  Grid grid{*this, "grid", 4, 3, 1, 1};
  TextBox note{*this, "note"};
  StatusBar status{*this, "status"};
  Label link{*this, "link"};
  CommandButton ok{*this, "ok"};
  CommandButton cancel{*this, "cancel"};
  MenuItem menu{*this, "menu"}, menuCopy{*this, "menuCopy"}, menuLine{*this, "menuLine"}, menuPaste{*this, "menuPaste"};
};

}  // namespace plexel::testing
