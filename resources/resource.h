// Every number that a resource has, once. Window class = form name, control = IDC_<control>, command =
// IDM_<menu item>: this is also the face that automation and accessibility tools know the program by, so keep
// it stable.
#pragma once

// Icons. The lowest is the program's own.
#define IDI_huevox 1
#define IDI_New 11
#define IDI_Open 12
#define IDI_OpenInNotepad 13
#define IDI_Save 14
#define IDI_CopyColor 15
#define IDI_PasteColor 16
#define IDI_Find 17
#define IDI_CustomFormat 18
#define IDI_Options 19
#define IDI_Help 20
#define IDI_ColorProperties 21
#define IDI_Back 22
#define IDI_Forward 23

// Commands of the main window, in the order of its menu.
#define IDM_mnuFileNew 40001
#define IDM_mnuFileOpen 40002
#define IDM_mnuFileOpenInNotepad 40003
#define IDM_mnuFileSave 40004
#define IDM_mnuFileSaveAs 40005
#define IDM_mnuFileExit 40006
#define IDM_mnuEditCopyColor 40011
#define IDM_mnuEditPasteColor 40012
#define IDM_mnuEditFind 40013
#define IDM_mnuToolsCustomFormat 40021
#define IDM_mnuToolsOptions 40022
#define IDM_mnuHelpHelp 40031
#define IDM_mnuHomePage 40032
#define IDM_mnuHelpColorProperties 40033
#define IDM_mnuHelpAboutHuevox 40034

// Buttons of frmJavaScript's tool bar.
#define IDM_Alphabetically 40101
#define IDM_DotNet 40102

// Controls of frmMain. Arrays are consecutive from their base.
#define IDC_tbrTools 1001
#define IDC_tmrClip 1002

#define IDC_hsbRed 1011
#define IDC_hsbGreen 1012
#define IDC_hsbBlue 1013
#define IDC_txtSetRed 1021
#define IDC_txtSetGreen 1022
#define IDC_txtSetBlue 1023
#define IDC_cmdSetColor 1031
#define IDC_optSetDec 1032
#define IDC_optSetHex 1033
#define IDC_frmSet 1034

#define IDC_txtName 1100
#define IDC_optColor 1110
#define IDC_picSampleContainer 1120
#define IDC_picPick 1121
#define IDC_picSample 1130
#define IDC_lblColorProp 1140
#define IDC_lblColorBar 1150

#define IDC_lstAutocopy 1201
#define IDC_chkJSNamesOnly 1202
#define IDC_lblClipboardInfo 1203
#define IDC_lblClipboard 1204

#define IDC_cmdWebsafe 1301
#define IDC_cmdFailsafe 1302
#define IDC_cmdJavaScript 1303
#define IDC_chkColorPick 1304

// Controls of the palette windows.
#define IDC_lblWebsafeColor 1401
#define IDC_lblFailsafeColor 1402
#define IDC_lblJavaScriptColor 1403
#define IDC_tbrSortTools 1404
