; The installer of Tonmira. make_setup.sh compiles it, with these defined:
;
;   FOLDER   the complete portable folder      ARCH  x64 or x86
;   VERSION  three numbers with points         OUT   the installer to write
;   SIGN     if defined: a program that signs the one file given to it, in place
;   CUT      if defined, for tests alone: see Step in files.nsh
;
; It installs for one user, without more rights than that user has. docs/installer.md has its switches,
; exit codes, and what it writes where.
;
; Order of an installation. Whatever moment the power fails, what the Start menu and the file type
; start is a complete version, the old or the new one, never a mixture of both:
;
;   1. Everything is unpacked into a folder of its own, update-N below the folder of the program, and
;      brought onto the disk. Nothing points there yet.
;   2. The running program is closed. If that fails, update-N goes, and nothing has happened.
;   3. Start menu and file type are pointed to the new version in update-N, each in one step.
;   4. File by file the folder of the program gets the new version. Nothing points there now; update-N
;      stays whole.
;   5. Start menu and file type are pointed back to the folder of the program.
;   6. What only the old version had, and update-N, are deleted.
;
; Two renames of whole folders would leave a moment without any, and would take the user's own files
; along; a folder for each version would break what users have pinned to tonmira.exe.
;
; An installation that was cut off is finished by the next one. That takes a free N, since the one of
; the first may be what the Start menu points to, and deletes all of them in the end.


Unicode true
!if ${ARCH} == x64
  Target amd64-unicode
!else
  Target x86-unicode
!endif
SetCompressor /SOLID lzma
SetDateSave off ; of a picture it would be the time of the checkout
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all
XPStyle on

!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh
!include nsDialogs.nsh
!include WinMessages.nsh
!include WordFunc.nsh

!define PROGRAM "tonmira.exe"
!define PUBLISHER "Zevrin Software"
!define SITE "https://www.tonmira.example"

; Exit codes; 0 is success.
!define CANCELLED 1
!define FAILED 2
!define IN_USE 3
!define OTHER_SETUP 4

Name "Tonmira"
OutFile "${OUT}"
BrandingText "Tonmira ${VERSION}"
!include apps.nsh
InstallDir "$LOCALAPPDATA\Programs\Tonmira"
InstallDirRegKey HKCU "${APPS_KEY}" "InstallLocation" ; not where /D= names a folder

!searchparse "${VERSION}" "" VERSION_MAJOR "." VERSION_MINOR "." VERSION_PATCH

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey /LANG=1033 "CompanyName" "${PUBLISHER}"
VIAddVersionKey /LANG=1033 "FileDescription" "Tonmira Setup"
VIAddVersionKey /LANG=1033 "FileVersion" "${VERSION}.0"
VIAddVersionKey /LANG=1033 "LegalCopyright" ""
VIAddVersionKey /LANG=1033 "ProductName" "Tonmira"
VIAddVersionKey /LANG=1033 "ProductVersion" "${VERSION}.0"

!ifdef SIGN
  !uninstfinalize '"${SIGN}" "%1"' = 0
!endif

; The list of what is installed, made now.
!tempfile LIST
!tempfile LISTED
!system '"${__FILEDIR__}/list_files.sh" "${FOLDER}" "${LIST}" >"${LISTED}"' = 0
!include "${LISTED}"
!delfile "${LISTED}"

Var stage   ; where the new version is unpacked
Var moved   ; the folder of an installation elsewhere, which this one replaces
Var before  ; the version that is installed, or nothing
Var what    ; what is going to happen, for the user
Var purge   ; ${BST_CHECKED}: the uninstaller deletes settings and logs, too
Var removed ; 1 once nothing is left
Var box

!include questions.nsh
!include texts.nsh
!include files.nsh
!include running.nsh
!include file_type.nsh

!insertmacro Shared ""
!insertmacro Shared "un."
!insertmacro Running ""
!insertmacro Running "un."

!macro Unpack NAME SOURCE
  File "/oname=$stage\${NAME}" "${FOLDER}/${SOURCE}"
  ${Flush} "$stage\${NAME}"
  ${Step}
!macroend

!macro MakeFolder NAME
  CreateDirectory "$stage\${NAME}"
!macroend

!macro MakeFolderBeside NAME
  CreateDirectory "$INSTDIR\${NAME}"
!macroend

Function .onInit
  Call OnlySetup
  ReadRegStr $before HKCU "${APPS_KEY}" "DisplayVersion"
  ReadRegStr $moved HKCU "${APPS_KEY}" "InstallLocation"
FunctionEnd

; What is left of an installation that could not be finished goes, unless it is in use by now.
Function .onInstFailed
  Call DropStage
FunctionEnd

Section
  AddSize ${SIZE_KB}
  AddSize ${SIZE_KB} ; everything is there twice for a moment
  Call UnpackStage
  ${GetFileName} $stage $0
  ${If} ${FileExists} "$moved\$0\uninstall.lst"
    StrCpy $moved "" ; the same folder, under whatever name
  ${EndIf}
  Call CloseProgram
  Call ListOldAndNew
  ReadRegStr $0 HKCU "${APPS_KEY}" "UninstallString"
  ${If} $0 == ""
    ; From here on, the system can remove even what is cut off.
    SetOutPath "$INSTDIR"
    ${Replace} "uninstall.exe"
    Call WriteApps
  ${EndIf}
  StrCpy $root $stage
  Call PointToRoot
  !insertmacro EachFolder MakeFolderBeside
  StrCpy $root $stage
  StrCpy $list "$stage\uninstall.lst"
  GetFunctionAddress $action ReplaceListed
  Call EachListed
  StrCpy $root $INSTDIR
  Call PointToRoot
  Call WriteApps
  ${Step}
  Call DeleteOld
  ${TellShell}
SectionEnd

; Unpacks into a free folder below $INSTDIR.
Function UnpackStage
  StrCpy $0 1
  ${While} ${FileExists} "$INSTDIR\update-$0\*.*"
    IntOp $0 $0 + 1
  ${EndWhile}
  ClearErrors
  StrCpy $stage "$INSTDIR\update-$0"
  CreateDirectory "$stage"
  ${If} ${Errors}
    StrCpy $stage ""
    ${Fail} ${FAILED} "$(CannotWrite)"
  ${EndIf}
  SetOutPath "$stage"
  File "/oname=uninstall.lst" "${LIST}"
  ${Flush} "$stage\uninstall.lst"
  ${Step}
  File "tnf.ico"
  ${Flush} "$stage\tnf.ico"
  WriteUninstaller "$stage\uninstall.exe"
  ${Flush} "$stage\uninstall.exe"
  !insertmacro EachFolder MakeFolder
  SetDateSave on
  !insertmacro EachFile Unpack
  SetDateSave off
  ; No folder is the current one while it is renamed or deleted.
  SetOutPath "$INSTDIR"
FunctionEnd

!insertmacro InstallerFiles

Function un.onInit
  Call un.OnlySetup
  StrCpy $purge ${BST_UNCHECKED}
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/PURGE" $1
  ${IfNot} ${Errors}
    StrCpy $purge ${BST_CHECKED}
  ${EndIf}
FunctionEnd

Section "un.Tonmira"
  SetOutPath "$TEMP"
  Call un.CloseProgram
  Delete "$SMPROGRAMS\Tonmira.lnk"
  Delete "$SMPROGRAMS\Tonmira.new"
  Call un.GiveBackFileType
  Call un.DeleteUpdates
  StrCpy $root $INSTDIR
  Call un.DeleteRoot
  Delete "$INSTDIR\update.tmp"
  RMDir "$INSTDIR"
  RMDir "$LOCALAPPDATA\Programs" ; if nobody else's program is in it
  Call un.DeleteTemporaryFiles
  ${If} $purge == ${BST_CHECKED}
    Call un.DeleteSettings
  ${EndIf}
  DeleteRegKey HKCU "${APPS_KEY}"
  ${TellShell}
  StrCpy $removed 1
SectionEnd

; What runs cannot delete itself, and without administrator's rights the system deletes nothing at its
; next start. So the command interpreter does, once this program has ended: it is a copy in a
; temporary folder, or with _?= the uninstaller itself.
Function un.DeleteSelf
  ${If} $removed == 1
  ${OrIf} $EXEDIR != $INSTDIR
    ExecShell "open" "$SYSDIR\cmd.exe" '/d /c ping -n 2 127.0.0.1 & del /q "$EXEPATH" & rd "$EXEDIR" & \
      if exist "$EXEPATH" ping -n 5 127.0.0.1 & del /q "$EXEPATH" & rd "$EXEDIR"' SW_HIDE
  ${EndIf}
FunctionEnd

Function un.onGUIEnd
  Call un.DeleteSelf
FunctionEnd

; Silently there is no window to end.
Function un.onUninstSuccess
  ${If} ${Silent}
    Call un.DeleteSelf
  ${EndIf}
FunctionEnd

Function un.onUninstFailed
  ${If} ${Silent}
    Call un.DeleteSelf
  ${EndIf}
FunctionEnd

!delfile "${LIST}"
