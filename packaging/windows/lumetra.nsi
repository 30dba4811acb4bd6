; SPDX-License-Identifier: GPL-3.0-or-later
; The Windows installer of Lumetra, made by scripts/windows.sh:
;   makensis -DVERSION=<x.y.z> -DSTAGE=<installed tree> -DOUTFILE=<setup.exe> lumetra.nsi
; For the user who runs it, without administrator rights: the program goes to
; the user's own programs folder, the menu entry, the bill type and the
; uninstaller are the user's. The user's data live apart (%APPDATA%\Lumetra)
; and stay when the program is removed.

; A 64-bit installer for a 64-bit program (and one that Wine's 64-bit loader
; runs without its 32-bit half).
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user

!define NAME "Lumetra"
!define REGUNINST "Software\Microsoft\Windows\CurrentVersion\Uninstall\Lumetra"
!define PROGID "Lumetra.Parcella"

Name "${NAME} ${VERSION}"
OutFile "${OUTFILE}"
InstallDir "$LOCALAPPDATA\Programs\Lumetra"
InstallDirRegKey HKCU "Software\Lumetra" "InstallDir"
Icon "${STAGE}/lumetra.ico"
UninstallIcon "${STAGE}/lumetra.ico"
BrandingText "${NAME} ${VERSION}"

!include "MUI2.nsh"
!define MUI_ICON "${STAGE}/lumetra.ico"
!define MUI_UNICON "${STAGE}/lumetra.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\lumetra.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Italian"

Section "Lumetra"
  SetShellVarContext current
  SetOutPath "$INSTDIR"
  File /r "${STAGE}/*.*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "Software\Lumetra" "InstallDir" "$INSTDIR"

  CreateShortCut "$SMPROGRAMS\Lumetra.lnk" "$INSTDIR\lumetra.exe" "" "$INSTDIR\lumetra.ico" 0

  ; Bills open in Lumetra, with the program's icon.
  WriteRegStr HKCU "Software\Classes\.qX9" "" "${PROGID}"
  WriteRegStr HKCU "Software\Classes\${PROGID}" "" "Parcella Lumetra"
  WriteRegStr HKCU "Software\Classes\${PROGID}\DefaultIcon" "" "$INSTDIR\lumetra.ico,0"
  WriteRegStr HKCU "Software\Classes\${PROGID}\shell\open\command" "" '"$INSTDIR\lumetra.exe" "%1"'
  ; SHCNE_ASSOCCHANGED: Explorer shows the new icon at once.
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'

  WriteRegStr HKCU "${REGUNINST}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${REGUNINST}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${REGUNINST}" "Publisher" "Lumetra"
  WriteRegStr HKCU "${REGUNINST}" "DisplayIcon" "$INSTDIR\lumetra.ico"
  WriteRegStr HKCU "${REGUNINST}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${REGUNINST}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${REGUNINST}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${REGUNINST}" "NoModify" 1
  WriteRegDWORD HKCU "${REGUNINST}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  SetShellVarContext current
  Delete "$SMPROGRAMS\Lumetra.lnk"
  ; Only what the installer put there: a utenza.txt beside the program is the
  ; user's own (a portable copy) and stays.
  Delete "$INSTDIR\lumetra.exe"
  Delete "$INSTDIR\lumetra-render.exe"
  Delete "$INSTDIR\tariffe_database.txt"
  Delete "$INSTDIR\istruzioni.rtf"
  Delete "$INSTDIR\lumetra.ico"
  Delete "$INSTDIR\*.dll"
  RMDir /r "$INSTDIR\platforms"
  RMDir /r "$INSTDIR\styles"
  RMDir /r "$INSTDIR\translations"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"

  ; The bill type, unless another program has taken it since.
  ReadRegStr $0 HKCU "Software\Classes\.qX9" ""
  StrCmp $0 "${PROGID}" 0 +2
    DeleteRegKey HKCU "Software\Classes\.qX9"
  DeleteRegKey HKCU "Software\Classes\${PROGID}"
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
  DeleteRegKey HKCU "${REGUNINST}"
  DeleteRegKey HKCU "Software\Lumetra"
SectionEnd
