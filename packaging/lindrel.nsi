; The installer: for one user, without an administrator, for both widths of Windows. packaging/make-installer.sh calls it with
;   VERSION   1.2.3
;   STAGE     the folder of packaging/make-installer.sh
;   OUTPUT    the installer to write
; It neither installs nor removes books. It removes only files that it has installed, and folders only if they are empty.

Unicode true
SetCompressor /SOLID lzma
SetDateSave off ; the files' times are no part of the installer, so that it is the same whenever it is built
RequestExecutionLevel user
ManifestDPIAware true

!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh
!include WinVer.nsh
!include x64.nsh

Name "Lindrel"
BrandingText "Lindrel ${VERSION}"
OutFile "${OUTPUT}"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Lindrel"
InstallDir "$LOCALAPPDATA\Programs\Lindrel"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"

; The installed themes: a line "<MD5> <file>" for each. A theme with another sum has been changed by the user; neither an
; upgrade nor the uninstaller touches it.
!define THEMES "$INSTDIR\styles"
!define THEME_SUMS "$INSTDIR\styles.md5"

!define MUI_ICON "..\src\resources\pictures\frmStart.ico"
!define MUI_UNICON "..\src\resources\pictures\frmStart.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${STAGE}/side.bmp"
!define MUI_WELCOMEPAGE_TITLE "A Lindrel telepítése"
!define MUI_WELCOMEPAGE_TEXT "A következő lépések telepítik a Lindrelt az Ön felhasználói fiókjába. Rendszergazdai jog nem szükséges.$\r$\n$\r$\nHa a Lindrelnek egy korábbi változata fut, előbb zárja be. A könyvei és a megváltoztatott arculatai megmaradnak.$\r$\n$\r$\nA folytatáshoz kattintson a Tovább gombra."
!define MUI_FINISHPAGE_TITLE "A Lindrel telepítése kész"
!define MUI_FINISHPAGE_TEXT "A Lindrelt és a súgóját a Start menüben találja meg.$\r$\n$\r$\nA telepítő bezárásához kattintson a Befejezés gombra."
!define MUI_FINISHPAGE_RUN "$INSTDIR\lindrel.exe"
!define MUI_FINISHPAGE_RUN_TEXT "A Lindrel indítása"
!insertmacro MUI_PAGE_WELCOME
!define MUI_PAGE_CUSTOMFUNCTION_PRE StayWhereItIs
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Hungarian"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=${LANG_HUNGARIAN} "CompanyName" "Lindrel"
VIAddVersionKey /LANG=${LANG_HUNGARIAN} "ProductName" "Lindrel"
VIAddVersionKey /LANG=${LANG_HUNGARIAN} "FileDescription" "Lindrel telepítő"
VIAddVersionKey /LANG=${LANG_HUNGARIAN} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_HUNGARIAN} "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_HUNGARIAN} "LegalCopyright" "© 2026 Lindrel"

!macro SharedFunctions un
  ; Windows does not allow writing to a running program or an open help file. A silent run ends with exit code 2 before
  ; it has changed anything.
  Function ${un}WaitUntilClosed
    ${For} $R0 1 2
      StrCpy $R1 "$INSTDIR\lindrel.exe"
      ${If} $R0 = 2
        StrCpy $R1 "$INSTDIR\lnd.chm"
      ${EndIf}
      ${DoWhile} ${FileExists} "$R1"
        ClearErrors
        FileOpen $R2 "$R1" a
        ${IfNot} ${Errors}
          FileClose $R2
          ${ExitDo}
        ${EndIf}
        ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "A Lindrel vagy a súgója fut. Zárja be (a tálcára tett ablakot is), majd próbálja újra." /SD IDCANCEL IDCANCEL`
          SetErrorLevel 2
          Quit
        ${EndIf}
      ${Loop}
    ${Next}
  FunctionEnd

  Function ${un}RemoveUnchangedThemes
    ClearErrors
    FileOpen $R0 "${THEME_SUMS}" r
    ${If} ${Errors}
      Return
    ${EndIf}
    ${Do}
      ClearErrors
      FileReadUTF16LE $R0 $R1
      ${If} ${Errors}
        ${ExitDo}
      ${EndIf}
      StrCpy $R2 $R1 32
      StrCpy $R3 $R1 -2 33
      ${If} ${FileExists} "${THEMES}\$R3"
        VPatch::GetFileMD5 "${THEMES}\$R3"
        Pop $R4
        ${If} $R4 == $R2
          Delete "${THEMES}\$R3"
        ${EndIf}
      ${EndIf}
    ${Loop}
    FileClose $R0
    Delete "${THEME_SUMS}"
  FunctionEnd
!macroend
!insertmacro SharedFunctions ""
!insertmacro SharedFunctions "un."

; An upgrade replaces the program where it is.
Function StayWhereItIs
  ReadRegStr $R0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $R0 != ""
  ${AndIf} ${FileExists} "$R0\lindrel.exe"
    Abort
  ${EndIf}
FunctionEnd

Function .onInit
  ${IfNot} ${AtLeastBuild} 14393 ; Windows 10, version 1607
    MessageBox MB_OK|MB_ICONSTOP "A Lindrelhez a Windows 10 1607-es vagy újabb változata szükséges." /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
FunctionEnd

; Installs a theme unless the user has one of that name, and records its sum if it is as shipped.
!macro Theme file
  File "/oname=$PLUGINSDIR\theme" "${STAGE}/x64/Lindrel/styles/${file}"
  VPatch::GetFileMD5 "$PLUGINSDIR\theme"
  Pop $R1
  ${IfNot} ${FileExists} "${THEMES}\${file}"
    CopyFiles /SILENT "$PLUGINSDIR\theme" "${THEMES}\${file}"
  ${EndIf}
  VPatch::GetFileMD5 "${THEMES}\${file}"
  Pop $R2
  ${If} $R1 == $R2
    FileWriteUTF16LE $R0 "$R1 ${file}$\r$\n"
  ${EndIf}
!macroend

Section
  Call WaitUntilClosed
  InitPluginsDir
  SetOutPath "$INSTDIR"
  ${If} ${IsNativeAMD64}
    File "${STAGE}/x64/Lindrel/lindrel.exe"
  ${Else}
    File "${STAGE}/x86/Lindrel/lindrel.exe"
  ${EndIf}
  File "${STAGE}/x64/Lindrel/lnd.chm"

  Call RemoveUnchangedThemes
  CreateDirectory "${THEMES}"
  FileOpen $R0 "${THEME_SUMS}" w
  !include "${STAGE}/themes.nsh"
  FileClose $R0

  CreateDirectory "$INSTDIR\LICENSES"
  !macro Licence file
    File "/oname=$INSTDIR\LICENSES\${file}" "${STAGE}/LICENSES/${file}"
  !macroend
  !include "${STAGE}/licences.nsh"
  !macroundef Licence

  CreateDirectory "$SMPROGRAMS\Lindrel"
  CreateShortcut "$SMPROGRAMS\Lindrel\Lindrel.lnk" "$INSTDIR\lindrel.exe"
  CreateShortcut "$SMPROGRAMS\Lindrel\Lindrel súgó.lnk" "$INSTDIR\lnd.chm"

  WriteUninstaller "$INSTDIR\uninstall.exe"
  ${GetSize} "$INSTDIR" "/S=0K" $R0 $R1 $R2
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Lindrel"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Lindrel"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\lindrel.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $R0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section Uninstall
  Call un.WaitUntilClosed
  Call un.RemoveUnchangedThemes
  RMDir "${THEMES}"
  !macro Licence file
    Delete "$INSTDIR\LICENSES\${file}"
  !macroend
  !include "${STAGE}/licences.nsh"
  RMDir "$INSTDIR\LICENSES"
  Delete "$INSTDIR\lindrel.exe"
  Delete "$INSTDIR\lnd.chm"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Lindrel\Lindrel.lnk"
  Delete "$SMPROGRAMS\Lindrel\Lindrel súgó.lnk"
  RMDir "$SMPROGRAMS\Lindrel"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
