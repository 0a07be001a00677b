; What is asked, when it is installed or removed by hand.

!define MUI_ICON "../resources/tonmira.ico"
!define MUI_UNICON "../resources/tonmira.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "side.bmp"
!define MUI_ABORTWARNING_CANCEL_DEFAULT

!define MUI_PAGE_CUSTOMFUNCTION_PRE SayWhat
!define MUI_DIRECTORYPAGE_TEXT_TOP "$what"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\${PROGRAM}"
!define MUI_FINISHPAGE_RUN_TEXT "$(StartIt)"
!define MUI_FINISHPAGE_TEXT "$(Installed)"
!insertmacro MUI_PAGE_FINISH

UninstPage custom un.AskWhat un.TakeAnswer
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Dutch"

Function SayWhat
  ${If} $before == ""
    StrCpy $what "$(WhatNew)"
  ${ElseIf} $before == "${VERSION}"
    StrCpy $what "$(WhatSame)"
  ${Else}
    ${VersionCompare} "$before" "${VERSION}" $0
    ${If} $0 = 1
      StrCpy $what "$(WhatOlder)"
    ${Else}
      StrCpy $what "$(WhatNewer)"
    ${EndIf}
  ${EndIf}
FunctionEnd

Function un.AskWhat
  !insertmacro MUI_HEADER_TEXT "$(RemoveTitle)" "$(RemoveSubtitle)"
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 36u "$(RemoveText)"
  Pop $0
  ${NSD_CreateCheckBox} 0 44u 100% 12u "$(RemoveSettings)"
  Pop $box
  ${NSD_SetState} $box $purge
  ${NSD_CreateLabel} 12u 58u 95% 24u "$(SettingsAre)"
  Pop $0
  ; As on every page that ends in a deed.
  GetDlgItem $0 $HWNDPARENT 1
  SendMessage $0 ${WM_SETTEXT} 0 "STR:$(^UninstallBtn)"
  nsDialogs::Show
FunctionEnd

Function un.TakeAnswer
  ${NSD_GetState} $box $purge
FunctionEnd
