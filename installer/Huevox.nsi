; Installs Huevox for the current user, without an administrator: files, a Start-menu entry and an entry in the system's list
; of programs. Needs VERSION, FILES (the folder of the files to install), ICON, PICTURE and OUTPUT. With SIGN, a command that
; signs the file that it is given, uninstaller and installer are signed.
Target amd64-unicode
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include Sections.nsh
!include WinVer.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Huevox"
!define SHORTCUT "$SMPROGRAMS\Huevox.lnk"

!ifdef SIGN
    !uninstfinalize '"${SIGN}" "%1"' = 0
    !finalize '"${SIGN}" "%1"' = 0
!endif

Name "Huevox"
OutFile "${OUTPUT}"
BrandingText "Huevox ${VERSION}"
RequestExecutionLevel user
SetCompressor /SOLID lzma
AllowSkipFiles off
SpaceTexts none
ManifestDPIAware true
ManifestSupportedOS Win10
InstallDir "$LOCALAPPDATA\Programs\Huevox"
; A newer version replaces the older one in its folder.
InstallDirRegKey HKCU "${UNINSTALL_KEY}" InstallLocation

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Huevox"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Huevox setup"
VIAddVersionKey LegalCopyright "the Huevox authors"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\Huevox.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_PAGE_HEADER_TEXT "Remove Huevox"
!define MUI_PAGE_HEADER_SUBTEXT "Your settings are kept unless you choose otherwise."
!define MUI_COMPONENTSPAGE_TEXT_TOP "Huevox will be removed from your computer. Palettes that you have saved stay where they are."
!define MUI_COMPONENTSPAGE_TEXT_COMPLIST "Remove:"
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; Ends the setup with exit code 2 while one of the files is in use: it cannot be opened for writing then.
!macro RefuseWhileInUse label file sentence
    ${label}:
    ${If} ${FileExists} "$INSTDIR\${file}"
        ClearErrors
        FileOpen $0 "$INSTDIR\${file}" a
        ${If} ${Errors}
            MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${sentence}" /SD IDCANCEL IDRETRY ${label}
            SetErrorLevel 2
            Quit
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend
!macro RefuseWhileOpen label
    !insertmacro RefuseWhileInUse ${label}Program Huevox.exe "Huevox is running. Close it and try again."
    !insertmacro RefuseWhileInUse ${label}Help huevox.chm "The help of Huevox is open. Close it and try again."
!macroend

; Windows' own number for an error of this kind (ERROR_OLD_WIN_VERSION). Its versions are known by their build.
!define WINDOWS_10_1607 14393
!define OLD_WINDOWS 1150
Function .onInit
    ${IfNot} ${AtLeastBuild} ${WINDOWS_10_1607}
        MessageBox MB_OK|MB_ICONSTOP "Huevox needs Windows 10, version 1607, or later." /SD IDOK
        SetErrorLevel ${OLD_WINDOWS}
        Quit
    ${EndIf}
FunctionEnd

Section
    !insertmacro RefuseWhileOpen install
    SetOutPath "$INSTDIR"
    File "${FILES}\Huevox.exe"
    File "${FILES}\huevox.chm"
    File "${FILES}\LICENSE.txt"
    File "${FILES}\README.txt"
    File "${FILES}\THIRD-PARTY.txt"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "${SHORTCUT}" "$INSTDIR\Huevox.exe"

    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayName "Huevox"
    WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\Huevox.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" EstimatedSize $0
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoModify 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoRepair 1
SectionEnd

Section "un.Huevox"
    SectionIn RO
    !insertmacro RefuseWhileOpen remove
    ; By name: by now the folder may contain palettes.
    Delete "$INSTDIR\Huevox.exe"
    Delete "$INSTDIR\huevox.chm"
    Delete "$INSTDIR\LICENSE.txt"
    Delete "$INSTDIR\README.txt"
    Delete "$INSTDIR\THIRD-PARTY.txt"
    ; The process that started this one may take a moment to end.
    ${For} $0 1 50
        Delete "$INSTDIR\uninstall.exe"
        ${IfNot} ${FileExists} "$INSTDIR\uninstall.exe"
            ${Break}
        ${EndIf}
        Sleep 100
    ${Next}
    RMDir "$INSTDIR"
    Delete "${SHORTCUT}"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd

Section /o "un.Your settings" settings
    DeleteRegKey HKCU "Software\Quorvane\Huevox 2004"
    DeleteRegKey /ifempty HKCU "Software\Quorvane"
SectionEnd

Function un.onInit
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/REMOVESETTINGS" $1
    ${IfNot} ${Errors}
        !insertmacro SelectSection ${settings}
    ${EndIf}
FunctionEnd
