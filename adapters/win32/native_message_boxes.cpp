#include "win32/native_message_boxes.h"

#include <windows.h>

#include "win32/wide_text.h"

namespace plexel {

static_assert(MessageBoxes::StyleOkOnly == MB_OK && MessageBoxes::StyleYesNoCancel == MB_YESNOCANCEL &&
              MessageBoxes::StyleCritical == MB_ICONERROR);
static_assert(static_cast<int>(MessageAnswer::OK) == IDOK && static_cast<int>(MessageAnswer::Cancel) == IDCANCEL &&
              static_cast<int>(MessageAnswer::Yes) == IDYES && static_cast<int>(MessageAnswer::No) == IDNO);

MessageAnswer NativeMessageBoxes::Show(std::string_view prompt, std::int32_t style, std::string_view title) {
  // Without an owner the other windows of the thread are disabled all the same.
  const HWND owner = GetActiveWindow();
  const UINT mode = owner == nullptr ? MB_TASKMODAL : MB_APPLMODAL;
  return static_cast<MessageAnswer>(
      MessageBoxW(owner, Wide(prompt).c_str(), Wide(title).c_str(), static_cast<UINT>(style) | mode));
}

}  // namespace plexel
