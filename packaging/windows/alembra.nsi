; The installer for one user, made by packaging/windows/make:
;   makensis -DVERSION=… -DFOLDER=<the program folder> -DICON=… -DREMOVE=<list of Delete and RMDir> -DOUTPUT=… alembra.nsi
; Options and database of the user are elsewhere (core/platform.h), so the uninstaller leaves them alone.

Target amd64-unicode
SetCompressor /SOLID lzma
!include MUI2.nsh

Name "Alembra ${VERSION}"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Alembra"
!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Alembra"
InstallDirRegKey HKCU "${KEY}" "InstallLocation"

!define MUI_ICON "${ICON}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\Alembra_uk.exe"
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

Section
    SetOutPath "$INSTDIR"
    File /r "${FOLDER}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Alembra.lnk" "$INSTDIR\Alembra_uk.exe"
    WriteRegStr HKCU "${KEY}" "DisplayName" "Alembra"
    WriteRegStr HKCU "${KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${KEY}" "DisplayIcon" "$INSTDIR\Alembra_uk.exe"
    WriteRegStr HKCU "${KEY}" "Publisher" "Alembra developers"
    WriteRegStr HKCU "${KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegDWORD HKCU "${KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${KEY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
    Delete "$SMPROGRAMS\Alembra.lnk"
    ; Only what was installed: the folder may have files of the user.
    !include "${REMOVE}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${KEY}"
SectionEnd
