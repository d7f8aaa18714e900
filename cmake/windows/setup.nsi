; Puts the control, the programs and the data into a folder, registers the control, and takes all of that away again.
; Without the rights of an administrator everything is the user's alone. package.py gives VERSION, BITS, SOURCE and
; TARGET, and the lists of files.

Unicode true
!if ${BITS} == 64
  Target amd64-unicode
!endif
SetCompressor /SOLID lzma
Name "Plexel ${VERSION}"
OutFile "${TARGET}"
BrandingText "Plexel ${VERSION}, ${BITS} bit"

!define REMOVAL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Plexel${BITS}"
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_INSTALLMODE_INSTDIR "Plexel"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${REMOVAL}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${REMOVAL}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "InstallLocation"
!if ${BITS} == 64
  !define MULTIUSER_USE_PROGRAMFILES64
!endif
!include MultiUser.nsh
!include MUI2.nsh

!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE German

LangString NotRegistered ${LANG_ENGLISH} "The control could not be registered."
LangString NotRegistered ${LANG_GERMAN} "Das Steuerelement konnte nicht registriert werden."

Function .onInit
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section
  !include "${LISTS}\put.nsh"
  SetOutPath $INSTDIR
  ExecWait '"$SYSDIR\regsvr32.exe" /s "$INSTDIR\PlexelBaseElement.ocx"' $0
  ${If} $0 <> 0
    MessageBox MB_OK|MB_ICONEXCLAMATION $(NotRegistered) /SD IDOK
    SetErrorLevel 2
  ${EndIf}
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr SHCTX "${REMOVAL}" DisplayName "Plexel (${BITS} bit)"
  WriteRegStr SHCTX "${REMOVAL}" DisplayVersion "${VERSION}"
  WriteRegStr SHCTX "${REMOVAL}" InstallLocation $INSTDIR
  WriteRegStr SHCTX "${REMOVAL}" UninstallString '"$INSTDIR\uninstall.exe"'
  WriteRegStr SHCTX "${REMOVAL}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD SHCTX "${REMOVAL}" NoModify 1
  WriteRegDWORD SHCTX "${REMOVAL}" NoRepair 1
SectionEnd

Section Uninstall
  ExecWait '"$SYSDIR\regsvr32.exe" /s /u "$INSTDIR\PlexelBaseElement.ocx"'
  !include "${LISTS}\take.nsh"
  Delete "$INSTDIR\uninstall.exe"
  RMDir $INSTDIR
  DeleteRegKey SHCTX "${REMOVAL}"
SectionEnd
