; The installer: for the user who runs it, without an administrator's rights. It is given VERSION, FILES (the folder
; to install), REMOVE (the uninstaller's list of it), SIZE in KiB and OUTPUT.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

!include MUI2.nsh
!define ENTRIES "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define ENTRY "${ENTRIES}\Glyphgrove"
!define PROGRAMS "$LOCALAPPDATA\Programs"

Name Glyphgrove
OutFile "${OUTPUT}"
InstallDir "${PROGRAMS}\Glyphgrove"
InstallDirRegKey HKCU "${ENTRY}" InstallLocation
BrandingText "Glyphgrove ${VERSION}"
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey ProductName Glyphgrove
VIAddVersionKey CompanyName Tallowick
VIAddVersionKey FileDescription "Glyphgrove installer"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey LegalCopyright "MIT licence"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\glyphgrove.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

Section
    SetOutPath "$INSTDIR"
    File /r "${FILES}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Glyphgrove.lnk" "$INSTDIR\glyphgrove.exe"
    WriteRegStr HKCU "${ENTRY}" DisplayName Glyphgrove
    WriteRegStr HKCU "${ENTRY}" DisplayVersion "${VERSION}"
    WriteRegStr HKCU "${ENTRY}" DisplayIcon "$INSTDIR\glyphgrove.exe"
    WriteRegStr HKCU "${ENTRY}" Publisher Tallowick
    WriteRegStr HKCU "${ENTRY}" InstallLocation "$INSTDIR"
    WriteRegStr HKCU "${ENTRY}" UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${ENTRY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${ENTRY}" EstimatedSize ${SIZE}
    WriteRegDWORD HKCU "${ENTRY}" NoModify 1
    WriteRegDWORD HKCU "${ENTRY}" NoRepair 1
SectionEnd

; What was installed and nothing else: the user may keep files of his own there, and other programs may be listed.
Section Uninstall
    !include "${REMOVE}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    RMDir "${PROGRAMS}"
    Delete "$SMPROGRAMS\Glyphgrove.lnk"
    DeleteRegKey HKCU "${ENTRY}"
    DeleteRegKey /ifempty HKCU "${ENTRIES}"
SectionEnd
