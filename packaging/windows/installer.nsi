; The installer: for the user who runs it, without an administrator's rights. /S installs silently, /D=FOLDER elsewhere.
; Defined by packaging/windows/build: VERSION, FOLDER (with what is installed), ICON, OUTPUT.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
Name "Kestrel Reader (PT)"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Kestrel Reader"
BrandingText " "
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\KestrelReader"
; Where an earlier version stands, which this one replaces.
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Kestrel Reader (PT)"
VIAddVersionKey "FileDescription" "Installs Kestrel Reader (PT)"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "The Kestrel Reader developers. MIT licence."

!include LogicLib.nsh
!include MUI2.nsh
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\kestrel-reader.exe"
!insertmacro MUI_PAGE_LICENSE "${FOLDER}\LICENSE.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Portuguese"
!insertmacro MUI_LANGUAGE "PortugueseBR"

; Windows lets nobody replace or remove a program that runs: half of it would be another version, or be left alone.
!macro RefuseWhileItRuns
    ${If} ${FileExists} "$INSTDIR\kestrel-reader.exe"
        ClearErrors
        FileOpen $0 "$INSTDIR\kestrel-reader.exe" a
        ${If} ${Errors}
            MessageBox MB_OK|MB_ICONSTOP "Kestrel Reader is running, or may not be changed. Please close it, and try again." /SD IDOK
            SetErrorLevel 2
            Abort
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

Section
    !insertmacro RefuseWhileItRuns
    SetOutPath "$INSTDIR"
    ClearErrors
    File /r "${FOLDER}\*"
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP "Not all files could be written. Please run this Setup again." /SD IDOK
        SetErrorLevel 2
        Abort
    ${EndIf}
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortCut "$SMPROGRAMS\Kestrel Reader (PT).lnk" "$INSTDIR\kestrel-reader.exe"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Kestrel Reader (PT)"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\kestrel-reader.exe"
    WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Kestrel Reader Project"
    WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
    ; Only here the computer's zone is known.
    ClearErrors
    ExecWait '"$INSTDIR\kestrel-stamp.exe" /quiet' $0
    ${If} ${Errors}
    ${OrIf} $0 <> 0
        MessageBox MB_OK|MB_ICONSTOP "The time of the text could not be set; the program would refuse it. \
            Please run this Setup again." /SD IDOK
        SetErrorLevel 2
        Abort
    ${EndIf}
SectionEnd

; Only what was installed: the reader may have put files of his own beside it.
Section "Uninstall"
    !insertmacro RefuseWhileItRuns
    !include "${OUTPUT}.files.nsh"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Kestrel Reader (PT).lnk"
    DeleteRegKey HKCU "${UNINSTALL}"
SectionEnd
