#include "activex/ole_control.h"

#include "activex/connection_points.h"

namespace plexel::activex {

/// Return is the control's while the focus is shown, since it opens the dialog.
HRESULT OleControl::GetControlInfo(CONTROLINFO* info) {
  if (info == nullptr) return E_POINTER;
  return TheControl().Run("GetControlInfo", [&] {
    *info = {};
    info->cb = sizeof *info;
    if (IsTrue(TheControl().TheElement().FocusVisible())) info->dwFlags = CTRLINFO_EATS_RETURN;
  });
}

HRESULT OleControl::OnMnemonic(MSG* message) { return message == nullptr ? E_POINTER : S_OK; }

HRESULT OleControl::OnAmbientPropertyChange(DISPID) { return S_OK; }

HRESULT OleControl::FreezeEvents(WINBOOL freeze) {
  TheControl().Points().Events().Freeze(freeze != FALSE);
  return S_OK;
}

}  // namespace plexel::activex
