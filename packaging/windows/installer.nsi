; The installer: for the user who runs it, without an administrator's rights. It is given VERSION, FILES (the folder
; to install), REMOVE (the uninstaller's list of it), ICON and OUTPUT. While the program is running and the user does
; not close it, installer and uninstaller change nothing and end with exit code 2. The uninstaller works from a copy of
; itself, so only a caller that adds _?=FOLDER gets this code.
Unicode true
Target amd64-unicode
AllowSkipFiles off
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

!include MUI2.nsh
!define ENTRIES "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define ENTRY "${ENTRIES}\Glyphgrove"
!define PROGRAMS "$LOCALAPPDATA\Programs"
!define EXAMPLES "$DOCUMENTS\Glyphgrove Examples"

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

!define IN_USE "Glyphgrove is running, or another program is using its files. Please close it, then choose Retry."

; There is one installation. An earlier one is uninstalled first, wherever it is: files that a new version drops go,
; examples that the user has changed stay.
Section "" Program
    ClearErrors
    CreateDirectory "$INSTDIR"
    IfErrors 0 remove
    Abort "Cannot create the folder $INSTDIR."
    remove:
    ReadRegStr $0 HKCU "${ENTRY}" InstallLocation
    ReadRegStr $1 HKCU "${ENTRY}" QuietUninstallString
    StrCmp $0 "" removed
    SetFileAttributes "$0\glyphgrove.exe" NORMAL ; early uninstallers take read-only for running
    StrCpy $2 0 ; stays if there is no uninstaller
    ExecWait "$1 _?=$0" $2
    IntCmp $2 0 +4
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${IN_USE}" /SD IDCANCEL IDRETRY remove
    RMDir "$INSTDIR"
    Abort
    Delete "$0\uninstall.exe" ; with _?= it cannot delete itself
    RMDir "$0"
    removed:
    SetOutPath "${EXAMPLES}" ; where the program's Open looks first
    SetOverwrite off
    File "${FILES}/examples/*"
    SetOverwrite on
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
    SectionGetSize ${Program} $0
    WriteRegDWORD HKCU "${ENTRY}" EstimatedSize $0
    WriteRegDWORD HKCU "${ENTRY}" NoModify 1
    WriteRegDWORD HKCU "${ENTRY}" NoRepair 1
SectionEnd

; Keeps an example that the user has changed: its time differs.
!macro DeleteExample NAME
    GetFileTime "$INSTDIR\examples\${NAME}" $0 $1
    GetFileTime "${EXAMPLES}\${NAME}" $2 $3
    StrCmp "$0 $1" "$2 $3" 0 +2
    Delete "${EXAMPLES}\${NAME}"
!macroend

; Deletes only what was installed: users may keep files of their own there. Deletes last what a second try needs.
Section Uninstall
    again:
    ClearErrors
    Delete "$INSTDIR\glyphgrove.exe" ; first: Windows keeps the file of a running program
    IfErrors used
    !include "${REMOVE}" ; goes to "used" if a file cannot be deleted
    RMDir "${EXAMPLES}"
    Delete "$SMPROGRAMS\Glyphgrove.lnk"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    RMDir "${PROGRAMS}"
    DeleteRegKey HKCU "${ENTRY}"
    DeleteRegKey /ifempty HKCU "${ENTRIES}"
    Return
    used:
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${IN_USE}" /SD IDCANCEL IDRETRY again
    Abort
SectionEnd
