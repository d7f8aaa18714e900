#pragma once

#include <QLocale>
#include <QString>
#include <array>
#include <cstdint>
#include <string>

namespace plexel {

/// The numbers of the editor's own texts in the language files.
enum class Text : std::int32_t {
  OK = 100,
  Cancel = 101,
  Yes = 20001,
  No = 20002,
  MenuFile = 20100,
  New = 20101,
  Open = 20102,
  Save = 20103,
  SaveAs = 20104,
  Quit = 20105,
  MenuElement = 20110,
  Configure = 20111,
  Properties = 20112,
  ConfigureKeySwitch = 20113,
  MenuView = 20120,
  ZoomIn = 20121,
  ZoomOut = 20122,
  ZoomNormal = 20123,
  ShowEvents = 20124,
  MenuExtras = 20130,
  Settings = 20131,
  MenuHelp = 20140,
  HelpContents = 20141,
  About = 20142,
  AboutText = 20143,
  NewTitle = 20200,
  NewPanel = 20201,
  OpenTitle = 20202,
  SaveTitle = 20203,
  FileFilter = 20204,
  AskSave = 20205,
  DoNotSave = 20206,
  OpenFailed = 20207,
  SaveFailed = 20208,
  SettingsFailed = 20209,
  Untitled = 20210,
  Failed = 20211,
  FilesDamaged = 20212,
  NothingSelected = 20300,
  KindUnknown = 20310,
  KindLed = 20311,
  KindOval = 20312,
  KindOvalLed = 20313,
  KindRect = 20314,
  KindRectLed = 20315,
  KindKey = 20316,
  NumberOfKey = 20320,
  NumberOfLed = 20321,
  NumbersOfContacts = 20322,
  Layer = 20323,
  NotDefined = 20324,
  LedShows = 20325,
  AllLayers = 20326,
  NothingToConfigure = 20327,
  CaptureIsPartial = 20330,
  RoomOfLayer = 20340,
  NoRoom = 20341,
  Stored = 20342,
  NothingStored = 20343,
  CodesWithoutText = 20344,
  CodeBytes = 20345,
  Events = 20400,
  ClearEvents = 20401,
  SettingsTitle = 20500,
  GroupGeneral = 20501,
  GroupMarks = 20502,
  GroupRecording = 20503,
  Language = 20510,
  UseWizard = 20511,
  ShowCodeBalance = 20512,
  LockTaskKeys = 20513,
  ShowX = 20514,
  ShowXPermanent = 20515,
  ShowDefined = 20516,
  FocusColor = 20520,
  FocusWidth = 20521,
  CaptureColor = 20522,
  DefinedColor = 20523,
  XSize = 20524,
  XBig = 20530,
  XMedium = 20531,
  XSmall = 20532,
  HelpTitle = 20600,
};

/// The text of a number in the user's language.
QString Say(Text text);

/// The language of an English name, AnyLanguage for an unknown one.
QLocale::Language LanguageOf(const std::string& name);
/// The name that a language has in itself; one that is unknown keeps its own.
QString LanguageTitle(const std::string& name);

}  // namespace plexel
