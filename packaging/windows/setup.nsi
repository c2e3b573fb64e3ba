; SPDX-License-Identifier: GPL-2.0-or-later
; The setup of Nautrel for one user: makensis -DVERSION= -DFOLDER= -DICON= -DSIZE= -DTARGET= setup.nsi
; FOLDER is laid out by `layout`; its .delivered\files names all that this version brings.
; The logbook lies beside the program, in a folder that its diver may write to, and neither it nor
; what the database keeps beside it is ever touched here. The texts that divers edit are laid out
; and renewed by the program itself, which keeps those that were edited.
; Silent: /S, with /DESKTOP for the icon there and, last, /D=FOLDER. Status 2: the program runs.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Nautrel"
!define MENU "$SMPROGRAMS\Nautrel"

Name "Nautrel ${VERSION}"
OutFile "${TARGET}"
; Not among the application data, where nobody would look for a logbook, and not in the documents,
; which a cloud may take away from under an open file.
InstallDir "$PROFILE\Nautrel"
InstallDirRegKey HKCU "${UNINSTALL}" InstallLocation
AllowSkipFiles off
ShowInstDetails nevershow
ShowUninstDetails nevershow
BrandingText "Nautrel ${VERSION}"
VIProductVersion "${VERSION}.0.0"
VIFileVersion "${VERSION}.0.0"
VIAddVersionKey ProductName "Nautrel"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Setup of Nautrel, a logbook for scuba divers"
VIAddVersionKey CompanyName "The Nautrel developers"
VIAddVersionKey LegalCopyright "The Nautrel developers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_DIRECTORYPAGE_TEXT_TOP "Nautrel is installed for you alone. Your logbook will lie in the same folder, so choose one in which you may write. An earlier version there is renewed; your dives, and the templates that you edited, stay as they are."
!define MUI_FINISHPAGE_RUN "$INSTDIR\nautrel.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start Nautrel"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

Var Lock   ; of the logbook, held while files are exchanged so that no program starts in between
Var Kept   ; the edited texts that stay

; Ends the setup with status 2 if a program of this folder runs.
!macro REQUIRE_NOT_RUNNING un
Function ${un}isRunning ; gives back 1 or 0
  StrCpy $R0 0
  System::Call 'kernel32::CreateFileW(w "$INSTDIR\Logbuch.lock", i 0x80000000, i 7, p 0, i 3, i 0x80, p 0) p .r9'
  StrCpy $Lock $9
  ${If} $Lock <> -1
    System::Call 'kernel32::LockFile(p r9, i 0, i 0, i 1, i 0) i .r8'
    ${If} $8 = 0
      StrCpy $R0 1
    ${EndIf}
  ${EndIf}
  ; The system lets nobody write into a program that runs.
  !insertmacro ASK_PROGRAM nautrel.exe
  !insertmacro ASK_PROGRAM nautrel-exchange.exe
  !insertmacro ASK_PROGRAM nautrel-exchange-window.exe
FunctionEnd

Function ${un}releaseLock
  StrCpy $9 $Lock
  System::Call 'kernel32::CloseHandle(p r9)'
FunctionEnd

Function ${un}requireNotRunning
  again:
  Call ${un}isRunning
  ${If} $R0 = 1
    Call ${un}releaseLock
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Nautrel is running in $INSTDIR. Please close it first." /SD IDCANCEL IDRETRY again
    SetErrorLevel 2
    Quit
  ${EndIf}
FunctionEnd
!macroend

!macro ASK_PROGRAM name
  ${If} ${FileExists} "$INSTDIR\${name}"
    ClearErrors
    FileOpen $9 "$INSTDIR\${name}" a
    ${If} ${Errors}
      StrCpy $R0 1
    ${Else}
      FileClose $9
    ${EndIf}
  ${EndIf}
!macroend

; Deletes what the installed version has brought, by its own list.
!macro DELETE_DELIVERED un
Function ${un}deleteDelivered
  ClearErrors
  FileOpen $9 "$INSTDIR\.delivered\files" r
  ${IfNot} ${Errors}
    ${Do}
      FileRead $9 $8
      ${If} ${Errors}
        ${ExitDo}
      ${EndIf}
      StrCpy $7 $8 1 -1
      ${If} $7 == "$\n"
        StrCpy $8 $8 -1
      ${EndIf}
      ${If} $8 != ""
        Delete "$INSTDIR\$8"
      ${EndIf}
    ${Loop}
    FileClose $9
  ${EndIf}
  Delete "$INSTDIR\.delivered\files"
FunctionEnd
!macroend

!insertmacro REQUIRE_NOT_RUNNING ""
!insertmacro REQUIRE_NOT_RUNNING "un."
!insertmacro DELETE_DELIVERED ""
!insertmacro DELETE_DELIVERED "un."

Section "Nautrel" Program
  SectionIn RO
  Call requireNotRunning
  Call deleteDelivered
  ClearErrors
  SetOutPath "$INSTDIR\.delivered\new"
  File "${FOLDER}/.delivered/new/*"
  SetOutPath "$INSTDIR\.delivered"
  File "${FOLDER}/.delivered/files"
  SetOutPath "$INSTDIR"
  File /r /x .delivered "${FOLDER}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  ${If} ${Errors}
    Call releaseLock
    MessageBox MB_OK|MB_ICONSTOP "Nautrel could not be written into $INSTDIR. May you write there, and is there room on the disk?" /SD IDOK
    SetErrorLevel 1
    Abort
  ${EndIf}

  CreateDirectory "${MENU}"
  CreateShortCut "${MENU}\Nautrel.lnk" "$INSTDIR\nautrel.exe"
  ${If} ${FileExists} "$INSTDIR\nautrel-exchange-window.exe"
    CreateShortCut "${MENU}\Exchange dives.lnk" "$INSTDIR\nautrel-exchange-window.exe"
  ${EndIf}

  WriteRegStr HKCU "${UNINSTALL}" DisplayName "Nautrel ${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" DisplayVersion "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" DisplayIcon "$INSTDIR\nautrel.exe"
  WriteRegStr HKCU "${UNINSTALL}" Publisher "The Nautrel developers"
  WriteRegStr HKCU "${UNINSTALL}" InstallLocation "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" UninstallString '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" EstimatedSize ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL}" NoModify 1
  WriteRegDWORD HKCU "${UNINSTALL}" NoRepair 1
  Call releaseLock
SectionEnd

Section /o "Icon on the desktop" Desktop
  CreateShortCut "$DESKTOP\Nautrel.lnk" "$INSTDIR\nautrel.exe"
SectionEnd

Function .onInit
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/DESKTOP" $1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${Desktop}
  ${EndIf}
FunctionEnd

; Whether $0 and $1 hold the same bytes: $R0 is 1 or 0.
Function un.same
  StrCpy $R0 0
  ClearErrors
  FileOpen $2 $0 r
  FileOpen $3 $1 r
  ${IfNot} ${Errors}
    ${Do}
      FileReadByte $2 $4
      FileReadByte $3 $5
      ${If} $4 != $5
        ${ExitDo}
      ${EndIf}
      ${If} $4 == ""
        StrCpy $R0 1
        ${ExitDo}
      ${EndIf}
    ${Loop}
  ${EndIf}
  FileClose $2
  FileClose $3
FunctionEnd

; The text $8 goes if it is as it was delivered, be it by this version or by the last that ran.
Function un.deleteText
  ${IfNot} ${FileExists} "$INSTDIR\$8"
    Return
  ${EndIf}
  StrCpy $0 "$INSTDIR\$8"
  StrCpy $1 "$INSTDIR\.delivered\$8"
  Call un.same
  ${If} $R0 = 0
    StrCpy $1 "$INSTDIR\.delivered\new\$8"
    Call un.same
  ${EndIf}
  ${If} $R0 = 1
    Delete "$INSTDIR\$8"
  ${Else}
    StrCpy $Kept "$Kept$\n    $8"
  ${EndIf}
FunctionEnd

Section Uninstall
  Call un.requireNotRunning
  StrCpy $Kept ""
  FindFirst $6 $8 "$INSTDIR\.delivered\new\*.*"
  ${DoWhile} $8 != ""
    ${If} $8 != "."
    ${AndIf} $8 != ".."
      Call un.deleteText
    ${EndIf}
    FindNext $6 $8
  ${Loop}
  FindClose $6

  Call un.deleteDelivered
  RMDir /r "$INSTDIR\.delivered"
  RMDir "$INSTDIR\platforms"
  RMDir "$INSTDIR\styles"
  RMDir "$INSTDIR\imageformats"
  RMDir "$INSTDIR\licenses"
  Delete "$INSTDIR\uninstall.exe"
  Call un.releaseLock
  Delete "$INSTDIR\Logbuch.lock"
  RMDir "$INSTDIR"

  Delete "${MENU}\Nautrel.lnk"
  Delete "${MENU}\Exchange dives.lnk"
  RMDir "${MENU}"
  Delete "$DESKTOP\Nautrel.lnk"
  DeleteRegKey HKCU "${UNINSTALL}"
  DeleteRegKey HKCU "Software\Nautrel"

  ${If} ${FileExists} "$INSTDIR\Logbuch.mdb"
    StrCpy $Kept "$\n    Logbuch.mdb, your logbook$Kept"
  ${EndIf}
  ${If} $Kept != ""
    MessageBox MB_OK|MB_ICONINFORMATION "Nautrel is gone from this computer. What is yours stays in $INSTDIR:$\n$Kept" /SD IDOK
  ${EndIf}
SectionEnd
