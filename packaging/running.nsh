; One installer at a time, and no program while its files are replaced or deleted.

; All windows of the program and its hearing test are of this class.
!define WINDOW_CLASS "TonmiraWindow"
!define SECONDS_TO_CLOSE 10

!macro Running UN
  Function ${UN}OnlySetup
    System::Call 'kernel32::CreateMutexW(p 0, i 0, w "TonmiraSetup") p.r0 ?e'
    Pop $0
    ${If} $0 = 183 ; there is one
      SetErrorLevel ${OTHER_SETUP}
      MessageBox MB_OK|MB_ICONSTOP "$(OtherSetup)" /SD IDOK
      Quit
    ${EndIf}
  FunctionEnd

  ; Returns when nobody uses the files. By hand the user is asked first; silently the program is
  ; asked at once, and given some seconds.
  Function ${UN}CloseProgram
    Call ${UN}AreFree
    ${While} $answer != ""
      StrCpy $R5 $answer
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(IsRunning)" /SD IDRETRY IDRETRY again
      SetErrorLevel ${CANCELLED}
      !if "${UN}" == ""
        Call DropStage
      !endif
      Abort "$(Cancelled)"
      again:
      DetailPrint "$(Closing)"
      Call ${UN}AskToClose
      ${If} ${Silent}
      ${AndIf} $answer != ""
        ${Fail} ${IN_USE} "$(IsRunning)"
      ${EndIf}
    ${EndWhile}
  FunctionEnd

  ; Asks the program to close, as its user would, and waits.
  Function ${UN}AskToClose
    StrCpy $R4 0
    ${Do}
      IntOp $R3 $R4 % 10
      ${If} $R3 = 0
        Call ${UN}CloseWindows
      ${EndIf}
      Sleep 200
      IntOp $R4 $R4 + 1
      IntOp $R3 ${SECONDS_TO_CLOSE} * 5
      Call ${UN}AreFree
      ${If} $answer == ""
        ${ExitDo}
      ${EndIf}
    ${LoopUntil} $R4 >= $R3
  FunctionEnd

  ; $answer := the name of a file that somebody uses, or nothing.
  Function ${UN}AreFree
    StrCpy $answer ""
    StrCpy $root $INSTDIR
    Call ${UN}TestRoot
    StrCpy $0 1
    ${While} $0 < 100
      StrCpy $root "$INSTDIR\update-$0"
      ${If} $root != $stage
        Call ${UN}TestRoot
      ${EndIf}
      IntOp $0 $0 + 1
    ${EndWhile}
    ${If} $moved != ""
      StrCpy $root $moved
      Call ${UN}TestRoot
    ${EndIf}
  FunctionEnd

  Function ${UN}TestRoot
    ${IfNot} ${FileExists} "$root\*.*"
      Return
    ${EndIf}
    GetFunctionAddress $action ${UN}TestListed
    StrCpy $list "$root\uninstall.lst"
    Call ${UN}EachListed
    ${If} $stage != "" ; what is going to be replaced, listed or not
      StrCpy $list "$stage\uninstall.lst"
      Call ${UN}EachListed
    ${EndIf}
  FunctionEnd

  ; Whoever holds a file or runs it does not let others have it alone.
  Function ${UN}TestListed
    ${If} $answer == ""
    ${AndIf} ${FileExists} "$root\$file"
      SetFileAttributes "$root\$file" NORMAL
      System::Call 'kernel32::CreateFileW(w "$root\$file", i 0xC0000000, i 0, p 0, i 3, i 0, p 0) p.R2 ?e'
      Pop $R1
      ${If} $R2 = -1
        StrCpy $answer $file
      ${Else}
        System::Call 'kernel32::CloseHandle(p R2)'
      ${EndIf}
    ${EndIf}
  FunctionEnd

  Function ${UN}CloseWindows
    StrCpy $0 0
    ${Do}
      FindWindow $0 "${WINDOW_CLASS}" "" 0 $0
      ${If} $0 = 0
        ${ExitDo}
      ${EndIf}
      System::Call 'user32::IsWindowVisible(p r0) i.r1'
      System::Call 'user32::IsWindowEnabled(p r0) i.r2' ; not behind a question
      ${If} $1 <> 0
      ${AndIf} $2 <> 0
        Call ${UN}FolderOfWindow
        StrCpy $root $INSTDIR
        Call ${UN}IsInRoot
        ${If} $3 = 0
          StrCpy $root $moved
          Call ${UN}IsInRoot
        ${EndIf}
        ${If} $3 <> 0
          System::Call 'user32::PostMessageW(p r0, i ${WM_CLOSE}, p 0, p 0)'
        ${EndIf}
      ${EndIf}
    ${Loop}
  FunctionEnd

  ; $1 := the path of the program that window $0 belongs to. Windows XP and older have neither the
  ; narrow right nor the first function.
  Function ${UN}FolderOfWindow
    StrCpy $1 ""
    System::Call 'user32::GetWindowThreadProcessId(p r0, *i .r2)'
    System::Call 'kernel32::OpenProcess(i 0x1000, i 0, i r2) p.r3'
    ${If} $3 = 0
      System::Call 'kernel32::OpenProcess(i 0x410, i 0, i r2) p.r3'
    ${EndIf}
    System::Call 'kernel32::QueryFullProcessImageNameW(p r3, i 0, w .r1, *i ${NSIS_MAX_STRLEN}) i.r2'
    ${If} $2 != 1
      System::Call 'psapi::GetModuleFileNameExW(p r3, p 0, w .r1, i ${NSIS_MAX_STRLEN})'
    ${EndIf}
    System::Call 'kernel32::CloseHandle(p r3)'
    System::Call 'kernel32::GetLongPathNameW(w r1, w .r1, i ${NSIS_MAX_STRLEN})'
  FunctionEnd

  ; $3 := 1 if the program $1 lies in or below $root.
  Function ${UN}IsInRoot
    StrCpy $3 0
    ${If} $root != ""
      System::Call 'kernel32::GetLongPathNameW(w "$root", w .r4, i ${NSIS_MAX_STRLEN})'
      StrCpy $4 "$4\"
      StrLen $5 $4
      StrCpy $5 $1 $5
      ${If} $5 == $4
        StrCpy $3 1
      ${EndIf}
    ${EndIf}
  FunctionEnd
!macroend
