// What does the program say? Every sentence once.
#pragma once

#include <string_view>

namespace messages {

inline constexpr const char* title = "Huevox";
inline constexpr std::string_view titlePrefix =
    "Huevox - ";  ///< of the main window; the palette's name follows
inline constexpr std::string_view newPaletteName = "New palette";
inline constexpr const char* newPaletteCaption = "Huevox - New palette";

inline constexpr const char* alreadyRunning = "Huevox is already running on your system.";
inline constexpr const char* lowColorDepth =
    "The color depth of your monitor has a low value.\r\n\r\n"
    "Huevox will look better if you select a higher value in the Control Panel in Windows.";
inline constexpr const char* unexpectedError = "Huevox encountered an unexpected error and must close.";
inline constexpr const char* paletteChanged = "The palette has been changed. Do you want to save it?";
inline constexpr const char* replaceTitle = "Save Palette As";
inline constexpr const char* replaceAfterName = " already exists.\r\nDo you want to replace it?";
inline constexpr const char* couldNotSave = "Could not save. Check if file or folder is read-only.";
inline constexpr const char* couldNotOpen = "Could not open. Check if file is in use or has been removed.";
inline constexpr const char* noNotepad = "Could not open file in Notepad.";
inline constexpr const char* noHelp = "Problem with HTML Help.";
inline constexpr const char* noBrowser = "Problem with browser.";
inline constexpr const char* noMail = "Problem with mail client.";
inline constexpr const char* notMadeHereBeforePath = "You tried to open the file\r\n\r\n";
inline constexpr const char* notMadeHereAfterPath =
    "\r\n\r\nThis file has not been made in Huevox and cannot be opened in Huevox";
inline constexpr const char* unusableSettings =
    "Unusable settings found in Registry. Default settings restored.";
inline constexpr const char* unusableFolder = "This folder cannot be used.";

inline constexpr const char* decimalNotAllowed =
    "The value is not allowed. Only values from 0 to 255 are allowed.";
inline constexpr const char* hexNotAllowed =
    "The value is not allowed. Only values from 00 to FF are allowed.";

/// The name of a mark that has none, and the name that stands in for it until the first edit.
inline constexpr const char* noName = "Type a colour name";
inline constexpr const char* notJavaScript = "Not JavaScript colour";

/// The report on a colour: one sentence of each pair, the JavaScript name and the question after them.
inline constexpr const char* colorPropertiesTitle = "Colour Properties";
inline constexpr const char* websafeColor = "The selected colour is a websafe colour.";
inline constexpr const char* notWebsafeColor = "The selected colour is not a websafe colour.";
inline constexpr const char* failsafeColor = "The selected colour will look good in failsafe mode.";
inline constexpr const char* notFailsafeColor = "The selected colour will not look good in failsafe mode.";
inline constexpr const char* javaScriptColor = "The selected colour is a JavaScript colour.";
inline constexpr const char* notJavaScriptColor = "The selected colour is not a JavaScript colour.";
inline constexpr const char* javaScriptNameBeforeName = "In JavaScript, the name of the selected colour is ";
inline constexpr const char* javaScriptNameAfterName = ".";
inline constexpr const char* alsoKnownAsAqua = " (also known as aqua)";
inline constexpr const char* alsoKnownAsFuchsia = " (also known as fuchsia)";
inline constexpr const char* renameBeforeName = "Do you want to change the name of the selected colour to ";
inline constexpr const char* renameAfterName = "?";

inline constexpr const char* alwaysOnTop = "Always on &Top";

inline constexpr const char* nameTip = "Click and type a colour name";
inline constexpr const char* markTip = "Click here to select this colour mark";
inline constexpr const char* sampleTip = "Drag and drop from here to pick a colour anywhere on the screen";
inline constexpr const char* redTip = "Type the red value";
inline constexpr const char* greenTip = "Type the green value";
inline constexpr const char* blueTip = "Type the blue value";
inline constexpr const char* setTip =
    "Click here to change the selected colour according to the values to the left";
inline constexpr const char* decimalTip = "Click here for decimal colour values";
inline constexpr const char* hexTip = "Click here for hexadecimal colour values";
inline constexpr const char* notationTip = "Select the format you want to copy to the clipboard";
inline constexpr const char* jsNamesTip =
    "Check this check box if you want to copy the JavaScript name instead of the RGB colour code";
inline constexpr const char* previewTip =
    "This is what you get if you paste right now in another application";
inline constexpr const char* colorPickTip = "Uncheck this check box to open palettes";
inline constexpr const char* openTip = "Open Palette In Huevox (Ctrl+O)";
inline constexpr const char* notepadTip = "Open Palette In Notepad (Ctrl+I)";
inline constexpr const char* openDisabledTip = "Uncheck the check box Colour Pick Mode to enable";
inline constexpr const char* websafeTip = "Click here to open the Websafe Palette";
inline constexpr const char* failsafeTip = "Click here to open the Failsafe Palette";
inline constexpr const char* javaScriptTip = "Click here to open the JavaScript Palette";
inline constexpr const char* pasteEnabledTip = "Paste Colour To Selected Colour Mark (F3)";
inline constexpr const char* pasteDisabledTip = "Use the Copy button to enable";

inline constexpr const char* upperRedTip = "Insert the code for Red in Upper Case Hex";
inline constexpr const char* upperGreenTip = "Insert the code for Green in Upper Case Hex";
inline constexpr const char* upperBlueTip = "Insert the code for Blue in Upper Case Hex";
inline constexpr const char* lowerRedTip = "Insert the code for Red in Lower Case Hex";
inline constexpr const char* lowerGreenTip = "Insert the code for Green in Lower Case Hex";
inline constexpr const char* lowerBlueTip = "Insert the code for Blue in Lower Case Hex";
inline constexpr const char* decimalRedTip = "Insert the code for Red in Decimal";
inline constexpr const char* decimalGreenTip = "Insert the code for Green in Decimal";
inline constexpr const char* decimalBlueTip = "Insert the code for Blue in Decimal";
inline constexpr const char* longDecimalTip = "Insert the code for Long Decimal";

inline constexpr const char* standardFormatTip =
    "What format should Huevox select the next time the program starts?";
inline constexpr const char* promptTip =
    "Click here if you want Huevox to remind you to save unsaved changes on exit";
inline constexpr const char* noPromptTip =
    "Click here if you do not want Huevox to remind you to save unsaved changes on exit";
inline constexpr const char* changeFolderTip =
    "What folder should Huevox select when you open and save files?";
inline constexpr const char* alphabeticalOrderTip =
    "Click here if the JavaScript Palette should be sorted alphabetically";
inline constexpr const char* dotNetOrderTip =
    "Click here if the JavaScript Palette should be sorted as in Visual Studio .NET";

}  // namespace messages
