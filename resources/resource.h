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
#define IDM_mnuEditUndo 40014
#define IDM_mnuEditRedo 40015
#define IDM_mnuToolsCustomFormat 40021
#define IDM_mnuToolsOptions 40022
#define IDM_mnuToolsPick 40023
#define IDM_mnuToolsContrast 40024
#define IDM_mnuHelpHelp 40031
#define IDM_mnuHomePage 40032
#define IDM_mnuHelpColorProperties 40033
#define IDM_mnuHelpAboutHuevox 40034

// In the window's own menu: a multiple of 16 below 0xF000.
#define IDM_mnuSystemOnTop 40192

// Buttons of frmJavaScript's tool bar.
#define IDM_Alphabetically 40101
#define IDM_DotNet 40102

// In every dialog: what Enter and Escape press.
#define IDC_cmdOK 1
#define IDC_cmdCancel 2

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
#define IDC_edgColorBar 1151

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

// Controls of frmOptions.
#define IDC_lblStandardFormat 1501
#define IDC_lstStandardFormat 1502
#define IDC_fraExample 1503
#define IDC_lblExample 1504
#define IDC_fraPromptToSave 1511
#define IDC_optYes 1512
#define IDC_optNo 1513
#define IDC_fraStandardFolder 1521
#define IDC_cmdChange 1522
#define IDC_lblSelectedStandardFolder 1523
#define IDC_fraSortOrder 1531
#define IDC_optAlphabetically 1532
#define IDC_optDotNet 1533

// Controls of frmCustomFormat.
#define IDC_txtFormat 1601
#define IDC_cmdHelp 1602
#define IDC_cmdUR 1611
#define IDC_cmdUG 1612
#define IDC_cmdUB 1613
#define IDC_cmdLR 1614
#define IDC_cmdLG 1615
#define IDC_cmdLB 1616
#define IDC_cmdDR 1617
#define IDC_cmdDG 1618
#define IDC_cmdDB 1619
#define IDC_cmdLD 1620
#define IDC_lblUpperCaseHex 1631
#define IDC_lblLowerCaseHex 1632
#define IDC_lblDecimal 1633
#define IDC_lblLongDecimal 1634
#define IDC_lblRed 1635
#define IDC_lblGreen 1636
#define IDC_lblBlue 1637

// Controls of frmAbout.
#define IDC_picInfo 1701
#define IDC_lblDisclaimer 1702
#define IDC_lblSlogan 1703
#define IDC_lblLink 1704
#define IDC_lblMailLink 1705
#define IDC_lblFeedbackInfo 1706
#define IDC_lblMoreInfo 1707
#define IDC_lblTitle 1708
#define IDC_lblCopyright 1709
#define IDC_lblVersion 1710

// The control of frmContrast.
#define IDC_grdContrast 1801
