; The first page: for whom, and what else.

Var ForAllButton
Var AutostartBox
Var DesktopBox

Function optionsPage
    nsDialogs::Create 1018
    Pop $R0
    ${If} $Old != ""
        Call showReplacement
    ${Else}
        Call showChoice
    ${EndIf}
    nsDialogs::Show
FunctionEnd

; An upgrade leaves everything as it was chosen.
Function showReplacement
    !insertmacro MUI_HEADER_TEXT "$(TextUpdateTitle)" "$(TextVersion)"
    ${VersionCompare} "$Old" "${VERSION}" $R0
    ${If} $R0 = 1
        ${NSD_CreateLabel} 0 0 100% 36u "$(TextReplacesNewer)"
    ${Else}
        ${NSD_CreateLabel} 0 0 100% 36u "$(TextReplaces)"
    ${EndIf}
    Pop $R0
    ${NSD_CreateLabel} 0 40u 100% 28u "$(TextEndsProgram)"
    Pop $R0
    GetDlgItem $R0 $HWNDPARENT 1
    SendMessage $R0 ${WM_SETTEXT} 0 "STR:$(^InstallBtn)"
    Call markElevation
FunctionEnd

Function showChoice
    !insertmacro MUI_HEADER_TEXT "$(TextChoiceTitle)" "$(TextVersion)"
    Call unmarkElevation
    ${NSD_CreateFirstRadioButton} 0 0 100% 12u "$(TextForMe)"
    Pop $R0
    ${NSD_CreateLabel} 12u 13u -12u 18u "$(TextForMeNote)"
    Pop $R1
    ${NSD_CreateAdditionalRadioButton} 0 34u 100% 12u "$(TextForAll)"
    Pop $ForAllButton
    ${NSD_CreateLabel} 12u 47u -12u 18u "$(TextForAllNote)"
    Pop $R1
    ${If} $ForAll = 1
        ${NSD_Check} $ForAllButton
    ${Else}
        ${NSD_Check} $R0
    ${EndIf}
    ${NSD_CreateCheckBox} 0 80u 100% 12u "$(TextAutostart)"
    Pop $AutostartBox
    ${NSD_SetState} $AutostartBox $WantAutostart
    ${NSD_CreateCheckBox} 0 96u 100% 12u "$(TextDesktop)"
    Pop $DesktopBox
    ${NSD_SetState} $DesktopBox $WantDesktop
FunctionEnd

Function leaveOptions
    ${If} $Old == ""
        StrCpy $R1 $ForAll
        ${NSD_GetState} $ForAllButton $ForAll
        ${NSD_GetState} $AutostartBox $WantAutostart
        ${NSD_GetState} $DesktopBox $WantDesktop
        ${If} $R1 <> $ForAll ; another folder follows from it
            StrCpy $INSTDIR ""
            Call findInstalled
        ${EndIf}
    ${EndIf}
FunctionEnd

Function skipKnownFolder
    ${If} $Old != ""
        Abort
    ${EndIf}
FunctionEnd
