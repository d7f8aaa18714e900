#pragma once

#include <oleacc.h>
#include <windows.h>

#include <atomic>
#include <string>

namespace plexel {

class GridView;

/// A grid as readers of the screen see it: a table, whose cells are its children by number, row by row from 1. It may
/// outlive the grid, and answers nothing then. All calls come on the thread of the grid.
class GridAccessible : public IAccessible {
 public:
  /// One reference is the maker's.
  explicit GridAccessible(GridView& view) : view_(&view) {}
  virtual ~GridAccessible() = default;
  GridAccessible(const GridAccessible&) = delete;
  GridAccessible& operator=(const GridAccessible&) = delete;
  /// The grid ends.
  void Detach() { view_ = nullptr; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** given) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
    return E_NOTIMPL;
  }

  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override;
  HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override;
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** given) override;
  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override;
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT, BSTR* text) override { return Nothing(text); }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override;
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override;
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR* text) override { return Nothing(text); }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT, LONG*) override { return Nothing(file); }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT, BSTR* text) override { return Nothing(text); }
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override;
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* child) override;
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT, BSTR* text) override { return Nothing(text); }
  HRESULT STDMETHODCALLTYPE accSelect(LONG how, VARIANT child) override;
  HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override;
  HRESULT STDMETHODCALLTYPE accNavigate(LONG way, VARIANT start, VARIANT* end) override;
  HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override;
  /// A double click.
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

 private:
  struct Cell {
    int row, col;
  };
  static HRESULT Nothing(BSTR* text);
  /// Whether a number is the grid itself or one of its cells.
  HRESULT Check(const VARIANT& child) const;
  Cell CellOf(const VARIANT& child) const;
  LONG NumberOf(int row, int col) const;
  std::wstring NameOf(const VARIANT& child) const;

  GridView* view_;
  std::atomic<ULONG> references_{1};
};

}  // namespace plexel
