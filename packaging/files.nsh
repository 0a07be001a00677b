; The files of an installation, and the list of them: uninstall.lst, a name below its folder in each
; line. Only what a list names is ever replaced or deleted.

Var root   ; the folder of an installation
Var list   ; a list of its files
Var action ; a function that is called for each, with its name in $file
Var file
Var handle
Var answer

; In a build with CUT, ends the program at the step whose number TONMIRA_CUT has, as a power failure
; would. Other builds have nothing of it.
!ifdef CUT
  Var step
  !macro Step
    Push $R9
    IntOp $step $step + 1
    ReadEnvStr $R9 "TONMIRA_CUT"
    ${If} $step = $R9
      System::Call 'kernel32::TerminateProcess(p -1, i 77)'
    ${EndIf}
    Pop $R9
  !macroend
!else
  !macro Step
  !macroend
!endif
!define Step '!insertmacro Step'

; Brings a file onto the disk, so that a name that points to it never outlives its content.
!macro Flush PATH
  System::Call 'kernel32::CreateFileW(w "${PATH}", i 0x40000000, i 7, p 0, i 3, i 0, p 0) p.R9'
  System::Call 'kernel32::FlushFileBuffers(p R9)'
  System::Call 'kernel32::CloseHandle(p R9)'
!macroend
!define Flush '!insertmacro Flush'

; Gives a file another's name in one step, and has that on the disk; ${Errors} if it cannot.
!macro MoveOver FROM TO
  ClearErrors
  System::Call 'kernel32::MoveFileExW(w "${FROM}", w "${TO}", i 11) i.R9'
  ${If} $R9 = 0
    SetErrors
  ${EndIf}
!macroend
!define MoveOver '!insertmacro MoveOver'

; Ends with a code and, where somebody looks, with a message.
!macro Fail CODE TEXT
  SetErrorLevel ${CODE}
  MessageBox MB_OK|MB_ICONSTOP "${TEXT}" /SD IDOK
  Abort "${TEXT}"
!macroend
!define Fail '!insertmacro Fail'

!macro Shared UN
  Function ${UN}EachListed
    Push $R0
    ClearErrors
    FileOpen $handle "$list" r
    ${IfNot} ${Errors}
      ${Do}
        ClearErrors
        FileRead $handle $file
        ${If} ${Errors}
          ${ExitDo}
        ${EndIf}
        ${Do} ; its line end
          StrCpy $R0 $file 1 -1
          ${If} $R0 != "$\r"
          ${AndIf} $R0 != "$\n"
            ${ExitDo}
          ${EndIf}
          StrCpy $file $file -1
        ${Loop}
        Call ${UN}IsBelow
        ${If} $R0 == 1
          Call $action
        ${EndIf}
      ${Loop}
      FileClose $handle
    ${EndIf}
    Pop $R0
  FunctionEnd

  ; $R0 := 1 if $file is a name below its folder, whoever wrote the list.
  Function ${UN}IsBelow
    Push $R1
    Push $R2
    StrCpy $R0 0
    ${If} $file != ""
      StrCpy $R0 1
      StrCpy $R1 0
      ${Do}
        StrCpy $R2 $file 2 $R1
        ${If} $R2 == ""
          ${ExitDo}
        ${EndIf}
        ${If} $R2 == ".."
          StrCpy $R0 0
        ${EndIf}
        StrCpy $R2 $R2 1
        ${If} $R2 == ":"
        ${OrIf} $R2 == "*"
        ${OrIf} $R2 == "?"
          StrCpy $R0 0
        ${EndIf}
        IntOp $R1 $R1 + 1
      ${Loop}
    ${EndIf}
    Pop $R2
    Pop $R1
  FunctionEnd

  Function ${UN}DeleteListed
    ClearErrors
    Delete "$root\$file"
    ${If} ${Errors}
    ${AndIf} $file != "uninstall.exe" ; runs, and is deleted later
      StrCpy $answer $file
    ${EndIf}
    StrCpy $R8 $file
    ${Do} ; the folders that it was in, from the inside
      ${GetParent} $R8 $R8
      ${If} $R8 == ""
        ${ExitDo}
      ${EndIf}
      RMDir "$root\$R8"
    ${Loop}
    ${Step}
  FunctionEnd

  ; Deletes what the list in $root names, the list, and the folder if nothing else is in it. The list
  ; stays with what cannot be deleted now: the next installation tries again.
  Function ${UN}DeleteRoot
    StrCpy $answer ""
    StrCpy $list "$root\uninstall.lst"
    GetFunctionAddress $action ${UN}DeleteListed
    Call ${UN}EachListed
    ${If} $answer == ""
      Delete "$list"
    ${EndIf}
    RMDir "$root"
  FunctionEnd

  ; The folders in which versions were unpacked.
  Function ${UN}DeleteUpdates
    StrCpy $0 1
    ${While} $0 < 100
      ${If} ${FileExists} "$INSTDIR\update-$0\*.*"
        StrCpy $root "$INSTDIR\update-$0"
        Call ${UN}DeleteRoot
      ${EndIf}
      IntOp $0 $0 + 1
    ${EndWhile}
  FunctionEnd
!macroend

!macro Replace NAME
  StrCpy $root $stage
  StrCpy $file "${NAME}"
  Call ReplaceListed
!macroend
!define Replace '!insertmacro Replace'

!macro InstallerFiles
  !insertmacro Apps

  ; Puts $file of $stage into the program's folder, in one step.
  Function ReplaceListed
    StrCpy $R7 0
    ${Do}
      SetFileAttributes "$INSTDIR\$file" NORMAL
      System::Call 'kernel32::CopyFileW(w "$stage\$file", w "$INSTDIR\update.tmp", i 0) i.R9'
      ${If} $R9 <> 0
        ${Flush} "$INSTDIR\update.tmp"
        ${MoveOver} "$INSTDIR\update.tmp" "$INSTDIR\$file"
        ${IfNot} ${Errors}
          ${Step}
          Return
        ${EndIf}
      ${EndIf}
      Sleep 200
      IntOp $R7 $R7 + 1
    ${LoopUntil} $R7 >= 20
    ; The new version stays in $stage, where everything points to, and the next installation goes on.
    StrCpy $stage ""
    ${Fail} ${FAILED} "$(CannotReplace)"
  FunctionEnd

  ; From here on the uninstaller deletes the files of both versions.
  Function ListOldAndNew
    StrCpy $root $INSTDIR
    ClearErrors
    FileOpen $R6 "$INSTDIR\update.tmp" w
    GetFunctionAddress $action AddToList
    StrCpy $list "$INSTDIR\uninstall.lst"
    Call EachListed
    StrCpy $list "$stage\uninstall.lst"
    Call EachListed
    FileClose $R6
    ${Flush} "$INSTDIR\update.tmp"
    ${MoveOver} "$INSTDIR\update.tmp" "$INSTDIR\uninstall.lst"
    ${If} ${Errors}
      Call DropStage
      ${Fail} ${FAILED} "$(CannotWrite)"
    ${EndIf}
    ${Step}
  FunctionEnd

  Function AddToList
    FileWrite $R6 "$file$\r$\n"
  FunctionEnd

  ; Points the Start menu and the file type to the version in $root.
  Function PointToRoot
    CreateShortCut "$SMPROGRAMS\Tonmira.new" "$root\${PROGRAM}" "" "$INSTDIR\${PROGRAM}" 0
    ${Flush} "$SMPROGRAMS\Tonmira.new"
    ${Step}
    ${MoveOver} "$SMPROGRAMS\Tonmira.new" "$SMPROGRAMS\Tonmira.lnk"
    ${Step}
    Call TakeFileType
    ${Step}
  FunctionEnd

  ; What only the old version had, where the new one was unpacked, and an installation elsewhere.
  Function DeleteOld
    StrCpy $root $INSTDIR
    StrCpy $list "$INSTDIR\uninstall.lst"
    GetFunctionAddress $action DeleteUnlisted
    Call EachListed
    ${Replace} "uninstall.lst"
    Call DeleteUpdates
    ${If} $moved != ""
      StrCpy $root $moved
      Call DeleteRoot
    ${EndIf}
  FunctionEnd

  Function DeleteUnlisted
    ${IfNot} ${FileExists} "$stage\$file"
      Call DeleteListed
    ${EndIf}
  FunctionEnd

  Function DropStage
    ${If} $stage != ""
      SetOutPath "$TEMP"
      StrCpy $root $stage
      Call DeleteRoot
      RMDir "$INSTDIR" ; if it was made for this
      StrCpy $stage ""
    ${EndIf}
  FunctionEnd
!macroend
