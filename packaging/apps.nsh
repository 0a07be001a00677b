; The entry in the system's list of programs.

!define APPS_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tonmira"

!macro Apps
  Function WriteApps
    WriteRegStr HKCU "${APPS_KEY}" "DisplayName" "Tonmira"
    WriteRegStr HKCU "${APPS_KEY}" "DisplayIcon" "$INSTDIR\${PROGRAM},0"
    WriteRegStr HKCU "${APPS_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${APPS_KEY}" "Publisher" "${PUBLISHER}"
    WriteRegStr HKCU "${APPS_KEY}" "URLInfoAbout" "${SITE}"
    WriteRegStr HKCU "${APPS_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${APPS_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${APPS_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${APPS_KEY}" "EstimatedSize" ${SIZE_KB}
    WriteRegDWORD HKCU "${APPS_KEY}" "VersionMajor" ${VERSION_MAJOR}
    WriteRegDWORD HKCU "${APPS_KEY}" "VersionMinor" ${VERSION_MINOR}
    WriteRegDWORD HKCU "${APPS_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${APPS_KEY}" "NoRepair" 1
  FunctionEnd
!macroend
