#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "activex/com_pointer.h"
#include "activex/library.h"
#include "activex/text.h"

namespace plexel::activex {

namespace {

/// One type of the library: what it is, its name, and its members in their order. Of a function its number, the way in
/// which it is called, its name, and the types of its arguments, the result last.
struct Expected {
  const char* kind;
  const char* name;
  const char* members;
};

constexpr Expected table[] = {
    {"enum", "enumSpecialKeyFunctions",
     "SystemReset = 0\n"
     "BackgroundLightLigther = 1\n"
     "BackgroundLightDarker = 2\n"
     "ContrastHigher = 3\n"
     "ContrastLower = 4\n"
     "Layer2 = 5\n"
     "Layer3 = 6\n"
     "Layer4 = 7\n"
     "WarmStart = 8\n"
     "NoSpecialFunction = 9\n"},
    {"enum", "enumTactisBaseElementType",
     "Led = 1\n"
     "Oval = 2\n"
     "OvalLed = 3\n"
     "Rect = 4\n"
     "RectLed = 5\n"
     "Key = 6\n"},
    {"enum", "enumWizardOptions",
     "NormalKey = 0\n"
     "TipKey = 1\n"
     "IPCFunction = 2\n"
     "WindowsShortCut = 3\n"
     "ManuallyDefined = 4\n"},
    {"enum", "enumLedType",
     "HarddiskLed = 0\n"
     "UserLed = 1\n"
     "TemperatureLed = 2\n"
     "PowerLed = 3\n"
     "CapsLockLed = 4\n"
     "NumLockLed = 5\n"
     "Layer1Led = 6\n"
     "Layer2Led = 7\n"
     "Layer3Led = 8\n"
     "Layer4Led = 9\n"
     "PanelLockedLed = 10\n"
     "ScrollLockLed = 11\n"
     "AlarmLed = 12\n"
     "LedNotEnabled = 13\n"
     "RunLed = 14\n"},
    {"enum", "enumXSize",
     "XSizeBig = 0\n"
     "XSizeMedium = 1\n"
     "XSizeSmall = 2\n"},
    {"record", "udtTactisBaseElement_TACTIS_SCANCODE",
     "unsigned char[89] Value\n"
     "long NextValue\n"},
    {"record", "udtTactisBaseElement_ScanCodeInfo",
     "enumWizardOptions enumWizardButtonType\n"
     "enumTactisBaseElementType enumBaseElementType\n"
     "enumLedType lngLEDTypeLayer1\n"
     "enumLedType lngLEDTypeLayer2\n"
     "enumLedType lngLEDTypeLayer3\n"
     "enumLedType lngLEDTypeLayer4\n"
     "long lngLedHardwareNumber\n"
     "long lngButtonHardwareNumber\n"
     "long lngKeyHardwareNumber\n"
     "long lngKeyHardwareNumber1\n"
     "long lngKeyHardwareNumber2\n"
     "long lngKeyHardwareNumber3\n"
     "long lngKeyHardwareNumber4\n"
     "long lngKeyHardwareNumber5\n"
     "long lngKeyHardwareNumber6\n"
     "long lngKeyHardwareNumber7\n"
     "udtTactisBaseElement_TACTIS_SCANCODE strLayer1PressScanCode\n"
     "udtTactisBaseElement_TACTIS_SCANCODE strLayer1ReleaseScanCode\n"
     "udtTactisBaseElement_TACTIS_SCANCODE strLayer2PressScanCode\n"
     "udtTactisBaseElement_TACTIS_SCANCODE strLayer2ReleaseScanCode\n"
     "udtTactisBaseElement_TACTIS_SCANCODE strLayer3PressScanCode\n"
     "udtTactisBaseElement_TACTIS_SCANCODE strLayer3ReleaseScanCode\n"
     "udtTactisBaseElement_TACTIS_SCANCODE strLayer4PressScanCode\n"
     "udtTactisBaseElement_TACTIS_SCANCODE strLayer4ReleaseScanCode\n"
     "BSTR strLayer1PressString\n"
     "BSTR strLayer2PressString\n"
     "BSTR strLayer3PressString\n"
     "BSTR strLayer4PressString\n"
     "BSTR strLayer1ReleaseString\n"
     "BSTR strLayer2ReleaseString\n"
     "BSTR strLayer3ReleaseString\n"
     "BSTR strLayer4ReleaseString\n"
     "BSTR strBaseElementNotes\n"},
    {"record", "udtClipboard",
     "VARIANT_BOOL Valid\n"
     "udtTactisBaseElement_TACTIS_SCANCODE scanCode\n"
     "BSTR VisibleString\n"},
    {"dual", "_ctlPlexelBaseElement",
     "1 put DPIFontScaleFactor double\n"
     "1 get DPIFontScaleFactor double*\n"
     "2 putref ParentWindow IDispatch*\n"
     "2 get ParentWindow IDispatch**\n"
     "3 put WizardOptions enumWizardOptions\n"
     "3 get WizardOptions enumWizardOptions*\n"
     "4 put XElementSize enumXSize\n"
     "4 get XElementSize enumXSize*\n"
     "5 get FocusVisible VARIANT_BOOL*\n"
     "5 put FocusVisible VARIANT_BOOL\n"
     "6 put FocusWidth unsigned char\n"
     "6 get FocusWidth unsigned char*\n"
     "7 put FocusColor OLE_COLOR\n"
     "7 get FocusColor OLE_COLOR*\n"
     "8 put WizardOn VARIANT_BOOL\n"
     "8 get WizardOn VARIANT_BOOL*\n"
     "9 get DeviceType long*\n"
     "9 put DeviceType long\n"
     "10 put SizeY short\n"
     "10 get SizeY short*\n"
     "11 put SizeX short\n"
     "11 get SizeX short*\n"
     "12 put ElementType enumTactisBaseElementType\n"
     "12 get ElementType enumTactisBaseElementType*\n"
     "13 get ZoomFactor short*\n"
     "13 put ZoomFactor short\n"
     "14 put LEDTypeLayer1 enumLedType\n"
     "14 get LEDTypeLayer1 enumLedType*\n"
     "15 put LEDTypeLayer2 enumLedType\n"
     "15 get LEDTypeLayer2 enumLedType*\n"
     "16 put LEDTypeLayer3 enumLedType\n"
     "16 get LEDTypeLayer3 enumLedType*\n"
     "17 put LEDTypeLayer4 enumLedType\n"
     "17 get LEDTypeLayer4 enumLedType*\n"
     "18 put ReleaseKeyDefLayer1 BSTR\n"
     "18 get ReleaseKeyDefLayer1 BSTR*\n"
     "19 put ReleaseKeyDefLayer2 BSTR\n"
     "19 get ReleaseKeyDefLayer2 BSTR*\n"
     "20 put ReleaseKeyDefLayer3 BSTR\n"
     "20 get ReleaseKeyDefLayer3 BSTR*\n"
     "21 put ReleaseKeyDefLayer4 BSTR\n"
     "21 get ReleaseKeyDefLayer4 BSTR*\n"
     "22 put PressKeyDefLayer1 BSTR\n"
     "22 get PressKeyDefLayer1 BSTR*\n"
     "23 put PressKeyDefLayer2 BSTR\n"
     "23 get PressKeyDefLayer2 BSTR*\n"
     "24 put PressKeyDefLayer3 BSTR\n"
     "24 get PressKeyDefLayer3 BSTR*\n"
     "25 put PressKeyDefLayer4 BSTR\n"
     "25 get PressKeyDefLayer4 BSTR*\n"
     "26 get OriginalPosX long*\n"
     "26 put OriginalPosX long\n"
     "27 get OriginalPosY long*\n"
     "27 put OriginalPosY long\n"
     "28 get HardwareNumberKey long*\n"
     "28 put HardwareNumberKey long\n"
     "29 get HardwareNumberKey1 long*\n"
     "29 put HardwareNumberKey1 long\n"
     "30 get HardwareNumberKey2 long*\n"
     "30 put HardwareNumberKey2 long\n"
     "31 get HardwareNumberKey3 long*\n"
     "31 put HardwareNumberKey3 long\n"
     "32 get HardwareNumberKey4 long*\n"
     "32 put HardwareNumberKey4 long\n"
     "33 get HardwareNumberKey5 long*\n"
     "33 put HardwareNumberKey5 long\n"
     "34 get HardwareNumberKey6 long*\n"
     "34 put HardwareNumberKey6 long\n"
     "35 get HardwareNumberKey7 long*\n"
     "35 put HardwareNumberKey7 long\n"
     "36 get HardwareNumberLed long*\n"
     "36 put HardwareNumberLed long\n"
     "37 get HardwareNumberButton long*\n"
     "37 put HardwareNumberButton long\n"
     "38 get ShowDefined VARIANT_BOOL*\n"
     "38 put ShowDefined VARIANT_BOOL\n"
     "39 get KeyDefinedColor OLE_COLOR*\n"
     "39 put KeyDefinedColor OLE_COLOR\n"
     "40 put TactisBaseElementScanCodeBuffer udtTactisBaseElement_ScanCodeInfo*\n"
     "40 get TactisBaseElementScanCodeBuffer udtTactisBaseElement_ScanCodeInfo*\n"
     "41 get ShowX VARIANT_BOOL*\n"
     "41 put ShowX VARIANT_BOOL\n"
     "42 get VantaEnabled VARIANT_BOOL*\n"
     "42 put VantaEnabled VARIANT_BOOL\n"
     "43 get TargetSystem BSTR*\n"
     "43 put TargetSystem BSTR\n"
     "44 get ButtonNotes BSTR*\n"
     "44 put ButtonNotes BSTR\n"
     "45 get ShowXPermanent VARIANT_BOOL*\n"
     "45 put ShowXPermanent VARIANT_BOOL\n"
     "46 call OpenPropertiesDialog\n"
     "47 call OpenConfigurationDialog\n"
     "48 call UpdateFocus\n"
     "49 call Refresh\n"
     "50 call ShowDefinedObject VARIANT_BOOL\n"
     "51 call SetTactisBaseElementDefinition udtTactisBaseElement_ScanCodeInfo*\n"
     "52 call CheckIfLedIsAlreadyDefined enumLedType long VARIANT_BOOL*\n"},
    {"dispinterface", "__ctlPlexelBaseElement",
     "1 call DirectInputStatusChanged VARIANT_BOOL*\n"
     "2 call SendKeyDefinition BSTR* BSTR* BSTR* BSTR* BSTR* BSTR* BSTR* BSTR* long* long* long* long*\n"
     "3 call MouseClicked short* short* float* float*\n"
     "4 call MouseDblClicked\n"
     "5 call ProjectModified\n"},
    {"coclass", "ctlPlexelBaseElement",
     "default _ctlPlexelBaseElement\n"
     "default source __ctlPlexelBaseElement\n"},
    {"dual", "IPlexelLanguage", "1 call GetText long BSTR*\n"},
    {"dual", "IPlexelSettings",
     "1 call GetBasePath BSTR*\n"
     "2 call GetLanguageName BSTR*\n"
     "3 call GetOption long VARIANT_BOOL*\n"
     "4 call GetParameter long BSTR*\n"
     "5 call GetWindowPosition long BSTR*\n"},
    {"dual", "IPlexelCapabilities", "1 call Ask BSTR BSTR long*\n"},
};

class Dump {
 public:
  explicit Dump(ITypeLib& library) : library_(library) {}

  std::string KindOf(UINT index) {
    const ComPointer<ITypeInfo> type = TypeAt(index);
    TYPEATTR* given = nullptr;
    type->GetTypeAttr(&given);
    const TYPEATTR attributes = *given;
    type->ReleaseTypeAttr(given);
    switch (attributes.typekind) {
      case TKIND_ENUM:
        return "enum";
      case TKIND_RECORD:
        return "record";
      case TKIND_COCLASS:
        return "coclass";
      case TKIND_ALIAS:
        return "alias";
      case TKIND_DISPATCH:
        return (attributes.wTypeFlags & TYPEFLAG_FDUAL) != 0 ? "dual" : "dispinterface";
      default:
        return "something else";
    }
  }
  std::string NameOf(UINT index) { return Name(*TypeAt(index).Get(), MEMBERID_NIL); }
  std::string MembersOf(UINT index) {
    const std::string kind = KindOf(index);
    ComPointer<ITypeInfo> type = TypeAt(index);
    if (kind == "coclass") return Parts(*type.Get());
    if (kind == "enum" || kind == "record") return Variables(*type.Get(), kind == "enum");
    if (kind != "dual") return Functions(*type.Get());
    HREFTYPE own = 0;  // a dual interface's own table of functions
    type->GetRefTypeOfImplType(static_cast<UINT>(-1), &own);
    ComPointer<ITypeInfo> functions;
    type->GetRefTypeInfo(own, functions.Out());
    return Functions(*functions.Get());
  }

 private:
  ComPointer<ITypeInfo> TypeAt(UINT index) {
    ComPointer<ITypeInfo> type;
    library_.GetTypeInfo(index, type.Out());
    return type;
  }
  static std::string Narrow(const std::wstring& text) { return {text.begin(), text.end()}; }
  static std::string Name(ITypeInfo& type, MEMBERID member) {
    BSTR name = nullptr;
    type.GetDocumentation(member, &name, nullptr, nullptr, nullptr);
    return Narrow(Taken(name));
  }
  static UINT Count(ITypeInfo& type, WORD TYPEATTR::* count) {
    TYPEATTR* attributes = nullptr;
    type.GetTypeAttr(&attributes);
    const UINT counted = attributes->*count;
    type.ReleaseTypeAttr(attributes);
    return counted;
  }
  static std::string TypeName(ITypeInfo& owner, const TYPEDESC& type) {
    switch (type.vt) {
      case VT_I2:
        return "short";
      case VT_I4:
        return "long";
      case VT_UI1:
        return "unsigned char";
      case VT_R4:
        return "float";
      case VT_R8:
        return "double";
      case VT_BOOL:
        return "VARIANT_BOOL";
      case VT_BSTR:
        return "BSTR";
      case VT_DISPATCH:
        return "IDispatch*";
      case VT_PTR:
        return TypeName(owner, *type.lptdesc) + "*";
      case VT_CARRAY:
        return TypeName(owner, type.lpadesc->tdescElem) + "[" + std::to_string(type.lpadesc->rgbounds[0].cElements) +
               "]";
      case VT_USERDEFINED: {
        ComPointer<ITypeInfo> named;
        owner.GetRefTypeInfo(type.hreftype, named.Out());
        return Name(*named.Get(), MEMBERID_NIL);
      }
      default:
        return "type " + std::to_string(type.vt);
    }
  }
  static std::string Variables(ITypeInfo& type, bool constants) {
    std::string lines;
    for (UINT index = 0; index < Count(type, &TYPEATTR::cVars); ++index) {
      VARDESC* variable = nullptr;
      type.GetVarDesc(index, &variable);
      const std::string name = Name(type, variable->memid);
      lines += constants ? name + " = " + std::to_string(V_I4(variable->lpvarValue))
                         : TypeName(type, variable->elemdescVar.tdesc) + " " + name;
      lines += "\n";
      type.ReleaseVarDesc(variable);
    }
    return lines;
  }
  static std::string Functions(ITypeInfo& type) {
    std::string lines;
    SHORT offset = 0;
    for (UINT index = 0; index < Count(type, &TYPEATTR::cFuncs); ++index) {
      FUNCDESC* function = nullptr;
      type.GetFuncDesc(index, &function);
      const bool ordered = function->funckind == FUNC_DISPATCH || function->oVft > offset;
      offset = function->oVft;
      lines += (ordered ? "" : "out of order: ") + std::to_string(function->memid) + WayOf(function->invkind) +
               Name(type, function->memid);
      for (SHORT argument = 0; argument < function->cParams; ++argument) {
        lines += " " + TypeName(type, function->lprgelemdescParam[argument].tdesc);
      }
      lines += "\n";
      type.ReleaseFuncDesc(function);
    }
    return lines;
  }
  static const char* WayOf(INVOKEKIND kind) {
    switch (kind) {
      case INVOKE_PROPERTYGET:
        return " get ";
      case INVOKE_PROPERTYPUT:
        return " put ";
      case INVOKE_PROPERTYPUTREF:
        return " putref ";
      default:
        return " call ";
    }
  }
  static std::string Parts(ITypeInfo& type) {
    std::string lines;
    for (UINT index = 0; index < Count(type, &TYPEATTR::cImplTypes); ++index) {
      INT flags = 0;
      HREFTYPE reference = 0;
      ComPointer<ITypeInfo> part;
      type.GetImplTypeFlags(index, &flags);
      type.GetRefTypeOfImplType(index, &reference);
      type.GetRefTypeInfo(reference, part.Out());
      lines += (flags & IMPLTYPEFLAG_FDEFAULT) != 0 ? "default " : "";
      lines += (flags & IMPLTYPEFLAG_FSOURCE) != 0 ? "source " : "";
      lines += Name(*part.Get(), MEMBERID_NIL) + "\n";
    }
    return lines;
  }

  ITypeLib& library_;
};

ComPointer<ITypeLib> Loaded() {
  ComPointer<ITypeLib> library;
  LoadTypeLibEx(Library::Instance().File(), REGKIND_NONE, library.Out());
  return library;
}

}  // namespace

TEST(TypeLibrary, HoldsTheTypesOfTheTableInTheirOrderAndNoOthers) {
  const ComPointer<ITypeLib> library = Loaded();
  ASSERT_TRUE(library);
  BSTR name = nullptr;
  library->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  EXPECT_EQ(Taken(name), L"PlexelBaseElement");
  Dump dump(*library.Get());
  std::size_t row = 0;
  for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
    if (dump.KindOf(index) == "alias") {
      EXPECT_EQ(dump.NameOf(index), "OLE_COLOR");
      continue;
    }
    ASSERT_LT(row, std::size(table)) << dump.NameOf(index);
    EXPECT_EQ(dump.NameOf(index), table[row].name);
    EXPECT_EQ(dump.KindOf(index), table[row].kind);
    EXPECT_EQ(dump.MembersOf(index), table[row].members) << table[row].name;
    ++row;
  }
  EXPECT_EQ(row, std::size(table));
}

TEST(TypeLibrary, GivesTheNumbersByWhichScriptsCall) {
  const auto control = Library::Instance().Create();
  ComPointer<ITypeInfo> type;
  ASSERT_EQ(control->GetTypeInfo(0, 0, type.Out()), S_OK);
  TYPEATTR* attributes = nullptr;
  type->GetTypeAttr(&attributes);
  std::size_t found = 0;
  for (UINT index = 0; index < attributes->cFuncs; ++index) {
    FUNCDESC* function = nullptr;
    type->GetFuncDesc(index, &function);
    if (function->memid > 0 && function->memid < 0x60000000) {
      Bstr name;
      type->GetDocumentation(function->memid, name.Out(), nullptr, nullptr, nullptr);
      DISPID number = 0;
      EXPECT_EQ(control->GetIDsOfNames(IID_NULL, name.Out(), 1, 0, &number), S_OK) << index;
      EXPECT_EQ(number, function->memid);
      ++found;
    }
    type->ReleaseFuncDesc(function);
  }
  type->ReleaseTypeAttr(attributes);
  EXPECT_EQ(found, 97U);
}

}  // namespace plexel::activex
