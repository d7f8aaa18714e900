' Sets every property of the control, reads it back, hears an event, crosses a record, meets an error. An error that nobody
' catches ends a script without a word, so that its last line tells that it came so far.
Option Explicit
Dim control, other, desk, record
Set control = CreateObject("PlexelBaseElement.ctlPlexelBaseElement")
Set other = CreateObject("PlexelBaseElement.ctlPlexelBaseElement")
Set desk = CreateObject("PlexelTests.Desk")

control.DPIFontScaleFactor = 1.5
control.WizardOptions = 2
control.XElementSize = 2
control.FocusVisible = True
control.FocusWidth = 3
control.FocusColor = 65280
control.WizardOn = True
control.DeviceType = 77
control.SizeY = 21
control.SizeX = 21
control.ElementType = 2
control.ZoomFactor = 21
control.LEDTypeLayer1 = 2
control.LEDTypeLayer2 = 2
control.LEDTypeLayer3 = 2
control.LEDTypeLayer4 = 2
control.ReleaseKeyDefLayer1 = "[a]"
control.ReleaseKeyDefLayer2 = "[a]"
control.ReleaseKeyDefLayer3 = "[a]"
control.ReleaseKeyDefLayer4 = "[a]"
control.PressKeyDefLayer1 = "[a]"
control.PressKeyDefLayer2 = "[a]"
control.PressKeyDefLayer3 = "[a]"
control.PressKeyDefLayer4 = "[a]"
control.OriginalPosX = 77
control.OriginalPosY = 77
control.HardwareNumberKey = 77
control.HardwareNumberKey1 = 77
control.HardwareNumberKey2 = 77
control.HardwareNumberKey3 = 77
control.HardwareNumberKey4 = 77
control.HardwareNumberKey5 = 77
control.HardwareNumberKey6 = 77
control.HardwareNumberKey7 = 77
control.HardwareNumberLed = 77
control.HardwareNumberButton = 77
control.ShowDefined = True
control.KeyDefinedColor = 65280
control.ShowX = True
control.VantaEnabled = True
control.TargetSystem = "[a]"
control.ButtonNotes = "[a]"
control.ShowXPermanent = True
Set control.ParentWindow = desk

WScript.Echo "DPIFontScaleFactor " & control.DPIFontScaleFactor
WScript.Echo "WizardOptions " & control.WizardOptions
WScript.Echo "XElementSize " & control.XElementSize
WScript.Echo "FocusVisible " & control.FocusVisible
WScript.Echo "FocusWidth " & control.FocusWidth
WScript.Echo "FocusColor " & control.FocusColor
WScript.Echo "WizardOn " & control.WizardOn
WScript.Echo "DeviceType " & control.DeviceType
WScript.Echo "SizeY " & control.SizeY
WScript.Echo "SizeX " & control.SizeX
WScript.Echo "ElementType " & control.ElementType
WScript.Echo "ZoomFactor " & control.ZoomFactor
WScript.Echo "LEDTypeLayer1 " & control.LEDTypeLayer1
WScript.Echo "LEDTypeLayer2 " & control.LEDTypeLayer2
WScript.Echo "LEDTypeLayer3 " & control.LEDTypeLayer3
WScript.Echo "LEDTypeLayer4 " & control.LEDTypeLayer4
WScript.Echo "ReleaseKeyDefLayer1 " & control.ReleaseKeyDefLayer1
WScript.Echo "ReleaseKeyDefLayer2 " & control.ReleaseKeyDefLayer2
WScript.Echo "ReleaseKeyDefLayer3 " & control.ReleaseKeyDefLayer3
WScript.Echo "ReleaseKeyDefLayer4 " & control.ReleaseKeyDefLayer4
WScript.Echo "PressKeyDefLayer1 " & control.PressKeyDefLayer1
WScript.Echo "PressKeyDefLayer2 " & control.PressKeyDefLayer2
WScript.Echo "PressKeyDefLayer3 " & control.PressKeyDefLayer3
WScript.Echo "PressKeyDefLayer4 " & control.PressKeyDefLayer4
WScript.Echo "OriginalPosX " & control.OriginalPosX
WScript.Echo "OriginalPosY " & control.OriginalPosY
WScript.Echo "HardwareNumberKey " & control.HardwareNumberKey
WScript.Echo "HardwareNumberKey1 " & control.HardwareNumberKey1
WScript.Echo "HardwareNumberKey2 " & control.HardwareNumberKey2
WScript.Echo "HardwareNumberKey3 " & control.HardwareNumberKey3
WScript.Echo "HardwareNumberKey4 " & control.HardwareNumberKey4
WScript.Echo "HardwareNumberKey5 " & control.HardwareNumberKey5
WScript.Echo "HardwareNumberKey6 " & control.HardwareNumberKey6
WScript.Echo "HardwareNumberKey7 " & control.HardwareNumberKey7
WScript.Echo "HardwareNumberLed " & control.HardwareNumberLed
WScript.Echo "HardwareNumberButton " & control.HardwareNumberButton
WScript.Echo "ShowDefined " & control.ShowDefined
WScript.Echo "KeyDefinedColor " & control.KeyDefinedColor
WScript.Echo "ShowX " & control.ShowX
WScript.Echo "VantaEnabled " & control.VantaEnabled
WScript.Echo "TargetSystem " & control.TargetSystem
WScript.Echo "ButtonNotes " & control.ButtonNotes
WScript.Echo "ShowXPermanent " & control.ShowXPermanent

desk.Listen control
desk.Click
WScript.Echo desk.Heard

record = control.TactisBaseElementScanCodeBuffer
other.SetTactisBaseElementDefinition record
WScript.Echo "crossed " & other.PressKeyDefLayer3 & " " & other.HardwareNumberLed & " " & other.ButtonNotes

On Error Resume Next
control.XElementSize = 2147483647
WScript.Echo "error " & Err.Number & " " & Left(Err.Description, 13) & " " & Err.Source
On Error GoTo 0
desk.Leave
WScript.Echo "DONE"
