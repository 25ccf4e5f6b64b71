; The uninstaller. Records and settings stay unless their user asks for it (the box, or /RemoveData).

Var RemoveData
Var RemoveDataBox

Function un.onInit
    ; That of everyone's installation lies in the folder that is registered for everyone.
    StrCpy $ForAll 0
    ReadRegStr $R0 HKLM "${UNINSTALL_KEY}" InstallLocation
    ${If} $R0 == $INSTDIR
        StrCpy $ForAll 1
    ${EndIf}
    ${GetParameters} $R0
    ${GetOptions} $R0 "/RemoveData" $R1
    ${IfNot} ${Errors}
        StrCpy $RemoveData 1
    ${EndIf}
    Call un.isAdministrator
    ${If} ${Silent}
    ${AndIf} $ForAll = 1
    ${AndIf} $R0 = 0
        SetErrorLevel ${NOT_ELEVATED}
        Quit
    ${EndIf}
FunctionEnd

Function un.confirmPage
    !insertmacro MUI_HEADER_TEXT "$(TextRemoveTitle)" "$(TextVersion)"
    nsDialogs::Create 1018
    Pop $R0
    ${NSD_CreateLabel} 0 0 100% 28u "$(TextRemoves)"
    Pop $R0
    ${NSD_CreateCheckBox} 0 40u 100% 12u "$(TextRemoveData)"
    Pop $RemoveDataBox
    ${NSD_SetState} $RemoveDataBox $RemoveData
    ${NSD_CreateLabel} 12u 54u -12u 28u "$(TextDataFolder)"
    Pop $R0
    GetDlgItem $R0 $HWNDPARENT 1
    SendMessage $R0 ${WM_SETTEXT} 0 "STR:$(^UninstallBtn)"
    Call un.markElevation
    nsDialogs::Show
FunctionEnd

Function un.leaveConfirm
    ${NSD_GetState} $RemoveDataBox $RemoveData
FunctionEnd

Section Uninstall
    SetOutPath $TEMP ; a folder in use can't be removed
    Call un.isAdministrator
    ${If} $ForAll = 1
    ${AndIf} $R0 = 0
        StrCpy $R1 "/S _?=$INSTDIR"
        Call un.runElevated
    ${Else}
        Call un.uninstall
    ${EndIf}
    Call un.removeAutostart
    SetShellVarContext current ; the data is this user's
    ${If} $RemoveData = 1
        RMDir /r "${DATA}"
    ${EndIf}
SectionEnd

Function un.uninstall
    StrCpy $R6 $INSTDIR
    Call un.endProgram
    InitPluginsDir
    File "/oname=$PLUGINSDIR\${MARKER}" "${MARKER}" ; its own copy: that in the folder may be gone
    StrCpy $R0 $INSTDIR
    StrCpy $R1 ""
    StrCpy $R2 "$PLUGINSDIR\${MARKER}"
    Call un.removeListed
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    SetShellVarContext current
    ${If} $ForAll = 1
        SetShellVarContext all
    ${Else}
        RMDir "$LOCALAPPDATA\Programs" ; when nothing else is in it
    ${EndIf}
    Delete "$SMPROGRAMS\${NAME}.lnk"
    Delete "$DESKTOP\${NAME}.lnk"
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
FunctionEnd

; Of every user that is within reach; only where it starts what was removed here.
Function un.removeAutostart
    StrCpy $R0 0
    StrLen $R3 '"$INSTDIR\zpsg.exe"'
    ${Do}
        EnumRegKey $R1 HKU "" $R0
        ${If} $R1 == ""
            ${Break}
        ${EndIf}
        ReadRegStr $R2 HKU "$R1\${RUN_KEY}" "${NAME}"
        StrCpy $R2 $R2 $R3
        ${If} $R2 == '"$INSTDIR\zpsg.exe"'
            DeleteRegValue HKU "$R1\${RUN_KEY}" "${NAME}"
        ${EndIf}
        IntOp $R0 $R0 + 1
    ${Loop}
FunctionEnd
