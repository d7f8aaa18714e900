#include "dialogs/told_design.h"

#include <memory>
#include <sstream>
#include <type_traits>
#include <vector>

#include "configdialog/frmConfigurationDialog.h"
#include "forms/controls.h"
#include "forms/grid.h"
#include "scancodes/frmNonStandardScancodes.h"
#include "specialdialogs/frmASCIICharacterTable.h"
#include "specialdialogs/frmSpecialIPCKey.h"
#include "specialdialogs/frmSpecialWindowsKey.h"
#include "wizard/frmButtonWizardPage1.h"
#include "wizard/frmButtonWizardPage2.h"
#include "wizard/frmButtonWizardPage3.h"
#include "wizard/frmPropertiesButton.h"

namespace plexel::dialogs {

namespace {

/// Writes `name=value` for each fact.
class Line {
 public:
  explicit Line(const std::string& head) { text_ << head; }
  template <typename Value>
  void Fact(const std::string& name, const Value& value) {
    text_ << ' ' << name << '=';
    Put(value);
  }
  std::string End() const { return text_.str() + '\n'; }

 private:
  template <typename Value>
  void Put(const Value& value) {
    if constexpr (std::is_same_v<Value, bool>) {
      text_ << (value ? "yes" : "no");
    } else {
      text_ << value;
    }
  }
  void Put(const std::string& value) { text_ << '"' << value << '"'; }
  void Put(const GridCell& cell) {
    text_ << '"' << cell.text << "\"/" << cell.foreColor << '/' << cell.backColor << (cell.centred ? "/centred" : "");
  }
  template <typename Value>
  void Put(const std::vector<Value>& values) {
    text_ << '[';
    for (std::size_t place = 0; place < values.size(); ++place) {
      text_ << (place == 0 ? "" : " ");
      Put(static_cast<const Value&>(values[place]));
    }
    text_ << ']';
  }

  std::ostringstream text_;
};

void Describe(Line& line, const Description& description) {
  for (const auto& [name, value] : description) {
    std::visit([&line, &name = name](const auto& one) { line.Fact(name, one); }, value);
  }
}

std::string NameOf(const Control* control) { return control == nullptr ? std::string() : control->FullName(); }

/// What the description of a kind leaves out.
void TellMore(Line& line, const Control& control) {
  if (const auto* button = dynamic_cast<const CommandButton*>(&control)) {
    line.Fact("ParksFocus", button->ParksFocus());
  } else if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
    line.Fact("MultiLine", box->MultiLine());
    line.Fact("Alignment", static_cast<int>(box->Alignment()));
    line.Fact("FontSize", box->FontSize());
  } else if (const auto* label = dynamic_cast<const Label*>(&control)) {
    line.Fact("Alignment", static_cast<int>(label->Alignment()));
    line.Fact("Look", static_cast<int>(label->Look()));
    line.Fact("Names", NameOf(label->Names()));
  } else if (const auto* frame = dynamic_cast<const Frame*>(&control)) {
    line.Fact("Border", frame->Border());
  } else if (const auto* grid = dynamic_cast<const Grid*>(&control)) {
    line.Fact("FixedRows", grid->FixedRows());
    line.Fact("FixedCols", grid->FixedCols());
    line.Fact("RowHeight", grid->RowHeight());
    line.Fact("UserResizing", grid->UserResizing());
  } else if (const auto* menu = dynamic_cast<const MenuItem*>(&control)) {
    std::vector<std::string> entries;
    for (const MenuItem* entry : menu->Entries()) entries.push_back(entry->FullName());
    line.Fact("Entries", entries);
  }
}

std::string DesignOf(const Form& form) {
  Line head("[" + form.Name() + "]");
  for (const auto& [name, value] : form.Describe()) {
    if (name == "Controls") continue;
    std::visit([&head, &name = name](const auto& one) { head.Fact(name, one); }, value);
  }
  head.Fact("HelpContextID", form.HelpContextID());
  head.Fact("Placed", form.Placed());
  std::string text = head.End();
  for (const Control* control : form.Controls()) {
    Line line(control->FullName());
    line.Fact("In", NameOf(control->Container()));
    line.Fact("Page", control->Page());
    Describe(line, control->Describe());
    TellMore(line, *control);
    text += line.End();
  }
  return text;
}

template <typename... Forms>
std::string DesignsOf() {
  return (DesignOf(*std::make_unique<Forms>()) + ...);
}

}  // namespace

std::string DesignOfAll() {
  return DesignsOf<frmConfigurationDialog, frmButtonWizardPage1, frmButtonWizardPage2, frmButtonWizardPage3,
                   frmPropertiesButton, frmSpecialIPCKey, frmSpecialWindowsKey, frmASCIICharacterTable,
                   frmNonStandardScancodes>();
}

}  // namespace plexel::dialogs
