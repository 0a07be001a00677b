; Tone programs open in Tonmira, unless the user or another program has chosen otherwise. What the
; uninstaller finds changed since is another's and stays.

!define CLASSES "Software\Classes"
!define TYPE "Tonmira.ToneProgram"
!define CHOSEN "Software\Microsoft\Windows\CurrentVersion\Explorer\FileExts\.tnf"

!macro TellShell
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend
!define TellShell '!insertmacro TellShell'

; The program that opens them is the one in $root.
Function TakeFileType
  WriteRegStr HKCU "${CLASSES}\${TYPE}" "" "$(TypeName)"
  WriteRegStr HKCU "${CLASSES}\${TYPE}\DefaultIcon" "" "$INSTDIR\tnf.ico"
  WriteRegStr HKCU "${CLASSES}\${TYPE}\shell" "" "open"
  WriteRegStr HKCU "${CLASSES}\${TYPE}\shell\open\command" "" '"$root\${PROGRAM}" "%1"'
  WriteRegStr HKCU "${CLASSES}\${TYPE}\shell\edit" "" "$(EditVerb)"
  WriteRegExpandStr HKCU "${CLASSES}\${TYPE}\shell\edit\command" "" \
    '"%SystemRoot%\system32\notepad.exe" "%1"'
  WriteRegStr HKCU "${CLASSES}\.tnf\OpenWithProgids" "${TYPE}" ""
  ReadRegStr $0 HKCU "${CLASSES}\.tnf" ""
  ${If} $0 == ""
    ReadRegStr $0 HKCR ".tnf" "" ; the machine's
  ${EndIf}
  ReadRegStr $1 HKCU "${CHOSEN}\UserChoice" "ProgId"
  ${If} $0 == ""
  ${AndIf} $1 == ""
    WriteRegStr HKCU "${CLASSES}\.tnf" "" "${TYPE}"
  ${EndIf}
FunctionEnd

Function un.GiveBackFileType
  DeleteRegValue HKCU "${CLASSES}\.tnf\OpenWithProgids" "${TYPE}"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.tnf\OpenWithProgids"
  ReadRegStr $0 HKCU "${CLASSES}\.tnf" ""
  ${If} $0 == "${TYPE}"
    DeleteRegValue HKCU "${CLASSES}\.tnf" ""
  ${EndIf}
  DeleteRegKey /ifempty HKCU "${CLASSES}\.tnf"
  DeleteRegKey HKCU "${CLASSES}\${TYPE}"
  ; What the system noted of us when the user chose.
  DeleteRegValue HKCU "${CHOSEN}\OpenWithProgids" "${TYPE}"
  ReadRegStr $0 HKCU "${CHOSEN}\UserChoice" "ProgId"
  ${If} $0 == "${TYPE}"
    DeleteRegKey HKCU "${CHOSEN}\UserChoice"
  ${EndIf}
FunctionEnd

; What the program leaves in the temporary folder where it was ended by force.
Function un.DeleteTemporaryFiles
  ReadEnvStr $0 "TEMP"
  ${If} $0 != ""
    Delete "$0\tnfwinmmtmp.wav"
    Delete "$0\tnfwinmmtmp.wav.*.tmp"
    Delete "$0\sound.ini"
    Delete "$0\snd.ini"
    Delete "$0\testcon.dat"
    Delete "$0\testcon.dat.*.tmp"
    Delete "$0\testhearing.ini"
    Delete "$0\updatetonmira.txt"
    Delete "$0\updatetonmira.txt.*.tmp"
    Delete "$0\error.log.*.tmp"
  ${EndIf}
  ReadEnvStr $0 "APPDATA"
  ${If} $0 != ""
    Delete "$0\tonmira.ini.*.tmp"
  ${EndIf}
FunctionEnd

Function un.DeleteSettings
  ReadEnvStr $0 "APPDATA"
  ${If} $0 != ""
    Delete "$0\tonmira.ini"
  ${EndIf}
  ReadEnvStr $0 "TEMP"
  ${If} $0 != ""
    Delete "$0\userdata.txt"
    Delete "$0\error.log"
  ${EndIf}
FunctionEnd
