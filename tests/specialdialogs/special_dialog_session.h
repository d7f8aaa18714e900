#pragma once

#include <functional>
#include <memory>
#include <string>

#include "forms/hand.h"
#include "scancodes/scancode_session.h"

namespace plexel {

/// A special dialog over a configuration dialog whose current cell (1, 1) holds "[old]".
template <typename Dialog>
class SpecialDialogSession : public ScanCodeSession {
 public:
  using Act = std::function<void(Dialog&)>;
  using Prepare = std::function<void(StandInConfigurationDialog&)>;

  explicit SpecialDialogSession(FormName name) : name_(name) {
    FormDirectory::Instance().Add(name_, [] { return std::make_unique<Dialog>(); });
  }

  void Open(const Act& act, const Prepare& prepare = {}) {
    InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
      dialog.msgScanCodes.Text("[old]");
      if (prepare) prepare(dialog);
      Show<Dialog>(name_, act);
      text = dialog.CellText(1, 1);
      mark = dialog.CellText(1, 0);
    });
    codes = Used(Record().strLayer1PressScanCode);
  }
  /// Picks the entry with this text and presses OK, which must close the dialog.
  void Take(const std::string& entry, const Prepare& prepare = {}) {
    Open(
        [&](Dialog& dialog) {
          dialog.cmbSpecialFunction.Text(entry);
          Hand(dialog).Click(dialog.cmdOK);
          EXPECT_FALSE(dialog.IsShown());
        },
        prepare);
  }

  std::string text;   ///< of the cell behind the last showing
  std::string mark;   ///< of its row
  std::string codes;  ///< of the press buffer of layer 1

 private:
  FormName name_;
};

}  // namespace plexel
