#include <PlexelBaseElement.h>

#include <cstdio>

extern "C" BOOL WINAPI AtlAxWinInit();
extern "C" HRESULT WINAPI AtlAxGetControl(HWND, IUnknown**);

int main() {
  OleInitialize(nullptr);
  AtlAxWinInit();
  // The system's own container of one control: a window that has the name of the control as its text.
  HWND window = CreateWindowW(L"AtlAxWin", L"PlexelBaseElement.ctlPlexelBaseElement", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                              100, 100, 300, 200, nullptr, nullptr, nullptr, nullptr);
  IUnknown* object = nullptr;
  _ctlPlexelBaseElement* element = nullptr;
  if (FAILED(AtlAxGetControl(window, &object)) || FAILED(object->QueryInterface(&element))) return 1;
  element->put_ElementType(RectLed);
  element->put_ZoomFactor(100);
  element->put_SizeX(60);  // pixels
  BSTR definition = SysAllocString(L"[Ctrl Left+a]");
  element->put_PressKeyDefLayer1(definition);
  SysFreeString(definition);
  // element->OpenConfigurationDialog() shows the dialog, and returns when it has closed.
  BSTR shown = nullptr;
  element->get_PressKeyDefLayer1(&shown);
  std::printf("%ls\n", shown);
  SysFreeString(shown);
  element->Release();
  object->Release();
  DestroyWindow(window);  // and the control with it, when its program has handled its messages
  OleUninitialize();
}
