#include "configdialog/frmConfigurationDialog.h"

#include <cstddef>
#include <initializer_list>

#include "services/dialogs.h"
#include "services/notes_limit.h"

namespace plexel {

namespace {

/// The place of the picture and of the title on top of each page.
constexpr float pictureLeft = 120, pictureTop = 60, pictureSize = 480;
constexpr float titleLeft = 720, titleTop = 165, titleWidth = 6690, titleHeight = 300;
constexpr float contentLeft = 120, contentWidth = 7290;
constexpr float pageWidth = 7560, pageHeight = 2610;
constexpr float gridTop = 540;
constexpr int gridRowHeight = 285;

void PlaceHeading(PictureBox& picture, const std::string& pictureName, Label& title, std::string caption) {
  picture.Place(pictureLeft, pictureTop, pictureSize, pictureSize);
  picture.Picture(pictureName);
  picture.Stretch(true);
  title.Place(titleLeft, titleTop, titleWidth, titleHeight);
  title.Caption(std::move(caption));
}

}  // namespace

frmConfigurationDialog::frmConfigurationDialog() : Form(dialogs::frmConfigurationDialog) {
  DesignFrame();
  DesignButtonPage();
  DesignLedPage();
  DesignNotesPage();
  DesignMenu();
  DesignTabOrder();
  HelpContextID(HelpTopic);
  for (Control* control : Controls()) control->HelpContextID(HelpTopic);
  ConnectEvents();
}

void frmConfigurationDialog::DesignFrame() {
  Width(DialogWidth);
  Height(DialogHeight);
  KeyPreview(true);

  sstScanCode.Place(60, 60, 7620, 2970);
  sstScanCode.TabCaption(0, "@2007");
  sstScanCode.TabCaption(1, "@2014");
  sstScanCode.TabCaption(2, "@2107");

  cmdOK.Place(7830, 390, 1305, 375);
  cmdOK.Caption("@153");
  cmdCancel.Place(7830, 855, 1305, 375);
  cmdCancel.Caption("@154");
  cmdHelp.Place(7830, 1320, 1305, 375);
  cmdHelp.Caption("@155");

  stbStatusBar.Place(0, ClientHeight() - 300, ClientWidth(), 300);
}

void frmConfigurationDialog::DesignButtonPage() {
  fraButton.OnPage(sstScanCode, 0);
  fraButton.Place(0, 0, pageWidth, pageHeight);
  fraButton.Border(false);

  for (Control* control :
       std::initializer_list<Control*>{&imgButton, &labButtonTitel, &cmdFocusCatcher, &msgScanCodes, &fraCodeType}) {
    control->Inside(fraButton);
  }
  PlaceHeading(imgButton, "button", labButtonTitel, "@2001");
  msgScanCodes.Place(contentLeft, gridTop, contentWidth, 5 * gridRowHeight);
  msgScanCodes.RowHeight(gridRowHeight);
  msgScanCodes.UserResizing(true);
  labButtonTitel.Names(msgScanCodes);
  cmdFocusCatcher.Place(contentLeft, gridTop, 15, 15);
  cmdFocusCatcher.Caption("Focus");
  cmdFocusCatcher.ParksFocus(true);

  fraCodeType.Place(contentLeft, 1995, contentWidth, 540);
  fraCodeType.Caption("@2008");
  struct OptionDesign {
    float left, width;
    const char* caption;
  };
  constexpr auto options =
      std::to_array<OptionDesign>({{120, 2880, "@2700"}, {3030, 2100, "@2701"}, {5160, 2070, "@2702"}});
  for (std::size_t i = 0; i < options.size(); ++i) {
    optCodeType[i].Inside(fraCodeType);
    optCodeType[i].Place(options[i].left, 240, options[i].width, 255);
    optCodeType[i].Caption(options[i].caption);
  }
  optCodeType[0].Value(true);
}

void frmConfigurationDialog::DesignLedPage() {
  fraLed.OnPage(sstScanCode, 1);
  fraLed.Place(0, 0, pageWidth, pageHeight);
  fraLed.Border(false);

  imgLed.Inside(fraLed);
  labLedTitel.Inside(fraLed);
  PlaceHeading(imgLed, "led", labLedTitel, "@2101");
  labLedTitel.Names(cmbLEDTypes.front());
  const std::array<Label*, LayerCount> labels = {&Label2, &Label3, &Label4, &Label5};
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const float top = 645 + 465 * static_cast<float>(i);
    labels[i]->Inside(fraLed);
    labels[i]->Place(contentLeft, top + 75, 1200, 255);
    labels[i]->Caption("Layer " + std::to_string(i + 1) + ":");
    cmbLEDTypes[i].Inside(fraLed);
    labels[i]->Names(cmbLEDTypes[i]);
    cmbLEDTypes[i].Place(1440, top, 4800, 375);
    cmbLEDTypes[i].Sorted(true);
    cmdDeleteLED[i].Inside(fraLed);
    cmdDeleteLED[i].Place(6360, top, 375, 375);
    cmdDeleteLED[i].Picture("delete");
  }
}

void frmConfigurationDialog::DesignNotesPage() {
  for (Control* control : std::initializer_list<Control*>{&imgButtonNotesIcon, &Label1, &txtButtonNotes, &StatusBar1}) {
    control->OnPage(sstScanCode, 2);
  }
  PlaceHeading(imgButtonNotesIcon, "notes", Label1, "@2108");
  txtButtonNotes.Place(contentLeft, 600, contentWidth, 1635);
  txtButtonNotes.MultiLine(true);
  Label1.Names(txtButtonNotes);
  txtButtonNotes.MaxLength(NotesLimit);
  StatusBar1.Place(contentLeft, 2280, contentWidth, 300);
}

void frmConfigurationDialog::DesignMenu() {
  struct EntryDesign {
    MenuItem& entry;
    const char* caption;
  };
  MNU_POPUP.Caption("&Popup");
  for (const EntryDesign& design :
       {EntryDesign{MNU_POPUP_ASCII, "@2400"}, EntryDesign{MNU_SPECIALKEY, "@2402"},
        EntryDesign{MNU_POPUP_WINDOWSKEY, "@2401"}, EntryDesign{MNU_POPUP_NONSTANDARDCODE, "@10814"},
        EntryDesign{MNU_DUMMY, "-"}, EntryDesign{MNU_POPUP_COPY, "@159"}, EntryDesign{MNU_POPUP_PASTE, "@160"}}) {
    design.entry.Caption(design.caption);
    MNU_POPUP.Add(design.entry);
  }
}

void frmConfigurationDialog::DesignTabOrder() {
  int next = 0;
  const auto follows = [&next](Control& control) { control.TabIndex(next++); };
  follows(msgScanCodes);
  for (OptionButton& option : optCodeType) follows(option);
  follows(cmdFocusCatcher);
  for (std::size_t i = 0; i < cmbLEDTypes.size(); ++i) {
    follows(cmbLEDTypes[i]);
    follows(cmdDeleteLED[i]);
  }
  follows(txtButtonNotes);
  follows(cmdOK);
  follows(cmdCancel);
  follows(cmdHelp);
  follows(sstScanCode);
}

void frmConfigurationDialog::ConnectEvents() {
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cmdCancel.OnClick = [this] { cmdCancel_Click(); };
  cmdHelp.OnClick = [this] { cmdHelp_Click(); };
  sstScanCode.OnClick = [this] { EndKeyCapture(); };
  sstScanCode.OnDblClick = [this] { EndKeyCapture(); };
  txtButtonNotes.OnChange = [this] { txtButtonNotes_Change(); };

  msgScanCodes.OnClick = [this] { msgScanCodes_Click(); };
  msgScanCodes.OnDblClick = [this] { msgScanCodes_DblClick(); };
  msgScanCodes.OnMouseDown = [this](std::int16_t button, std::int16_t shift, float x, float y) {
    msgScanCodes_MouseDown(button, shift, x, y);
  };

  for (std::size_t i = 0; i < cmbLEDTypes.size(); ++i) {
    const auto index = static_cast<std::int16_t>(i);
    cmdDeleteLED[i].OnClick = [this, index] { cmdDeleteLED_Click(index); };
    cmbLEDTypes[i].OnKeyDown = [this, index](std::int16_t& keyCode, std::int16_t shift) {
      cmbLEDTypes_KeyDown(index, keyCode, shift);
    };
    cmbLEDTypes[i].OnKeyPress = [this, index](std::int16_t& keyAscii) { cmbLEDTypes_KeyPress(index, keyAscii); };
  }

  MNU_POPUP_ASCII.OnClick = [this] { MNU_POPUP_ASCII_Click(); };
  MNU_SPECIALKEY.OnClick = [this] { MNU_SPECIALKEY_Click(); };
  MNU_POPUP_WINDOWSKEY.OnClick = [this] { MNU_POPUP_WINDOWSKEY_Click(); };
  MNU_POPUP_NONSTANDARDCODE.OnClick = [this] { MNU_POPUP_NONSTANDARDCODE_Click(); };
  MNU_POPUP_COPY.OnClick = [this] { MNU_POPUP_COPY_Click(); };
  MNU_POPUP_PASTE.OnClick = [this] { MNU_POPUP_PASTE_Click(); };
}

}  // namespace plexel
