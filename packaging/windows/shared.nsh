; What the installer and the uninstaller both do. Functions of an uninstaller have names that begin with "un.".

!macro Register NAME_ TEXT_
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "${NAME_}" '${TEXT_}'
!macroend

!define SYSSIZEOF_EXECUTE 112 ; bytes in SHELLEXECUTEINFOW of a 64-bit program; the padding is part of the fields

!macro SharedFunctions UN

; $R0: 1 with administrator rights, else 0.
Function ${UN}isAdministrator
    System::Call "shell32::IsUserAnAdmin() i .R0"
FunctionEnd

; Runs this setup once more with administrator rights and the arguments $R1, and waits for it. Goes no further when
; that did not do.
Function ${UN}runElevated
    DetailPrint "$(TextElevating)"
    ${Do}
        Call ${UN}runOnceElevated
        ${If} $R3 = 0
            Return
        ${ElseIf} $R3 = ${NOT_ELEVATED}
            MessageBox MB_ICONEXCLAMATION "$(TextNotElevated)"
            ${Break}
        ${ElseIf} $R3 <> ${STILL_RUNS}
            MessageBox MB_ICONEXCLAMATION "$(TextFailed) ($R3)"
            ${Break}
        ${EndIf}
    ${LoopWhile} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(TextStillRuns)" IDRETRY`
    SetErrorLevel $R3
    Abort "$(TextFailed)"
FunctionEnd

; $R3: its exit code
Function ${UN}runOnceElevated
    ; SHELLEXECUTEINFOW, with SEE_MASK_NOCLOSEPROCESS | SEE_MASK_NOASYNC, and nothing shown
    System::Call '*(i ${SYSSIZEOF_EXECUTE}, i 0x140, p $HWNDPARENT, w "runas", w "$EXEPATH", w R1, p 0, \
        &i8 0, p 0, p 0, p 0, p 0, &i8 0, p 0, p 0) p .R2'
    System::Call "shell32::ShellExecuteExW(p R2) i .R3"
    System::Call "*$R2(i, i, p, p, p, p, p, &i8, p, p, p, p, &i8, p, p .R4)"
    System::Free $R2
    ${If} $R3 = 0
        StrCpy $R3 ${NOT_ELEVATED}
        Return
    ${EndIf}
    System::Call "kernel32::WaitForSingleObject(p R4, i -1)"
    System::Call "kernel32::GetExitCodeProcess(p R4, *i .R3)"
    System::Call "kernel32::CloseHandle(p R4)"
FunctionEnd

; $R0: 1 while the program in folder $R6 runs, whoever started it: Windows lets nobody write to it then.
Function ${UN}programRuns
    StrCpy $R0 0
    StrCpy $R2 "$R6\zpsg.exe"
    Call ${UN}fileIsHeld
    StrCpy $R2 "$R6\zpsg.com" ; waits for the other on a command line
    Call ${UN}fileIsHeld
FunctionEnd

Function ${UN}fileIsHeld
    ${If} ${FileExists} $R2
        ClearErrors
        FileOpen $R1 $R2 a
        ${If} ${Errors}
            StrCpy $R0 1
        ${Else}
            FileClose $R1
        ${EndIf}
    ${EndIf}
FunctionEnd

; Sends each program that was started from folder $R6 the request to end: message WM_APP to the invisible window of
; class "zpsg-messages" (src/platform/windows/ExitRequest.cpp). Other windows of that class take no notice of it.
Function ${UN}askToEnd
    StrCpy $R1 0
    ${Do}
        System::Call 'user32::FindWindowExW(p -3, p R1, w "zpsg-messages", p 0) p .R1' ; -3: HWND_MESSAGE
        ${If} $R1 = 0
            ${Break}
        ${EndIf}
        System::Call "user32::GetWindowThreadProcessId(p R1, *i .R2)"
        System::Call "kernel32::OpenProcess(i 0x1000, i 0, i R2) p .R3" ; to ask for its file
        System::Call "kernel32::QueryFullProcessImageNameW(p R3, i 0, w .R4, *i ${NSIS_MAX_STRLEN})"
        System::Call "kernel32::CloseHandle(p R3)"
        ${If} $R4 == "$R6\zpsg.exe"
            System::Call "user32::PostMessageW(p R1, i 0x8000, p 0, p 0)"
        ${EndIf}
    ${Loop}
FunctionEnd

; Ends the program that runs from folder $R6, so that its files can be replaced. Waits ten seconds for that; goes no
; further while it runs.
Function ${UN}endProgram
    ${Do}
        Call ${UN}programRuns
        ${If} $R0 = 0
            ${Break}
        ${EndIf}
        DetailPrint "$(TextEnding)"
        Call ${UN}askToEnd
        ${For} $R5 1 50
            Sleep 200
            Call ${UN}programRuns
            ${If} $R0 = 0
                ${Break}
            ${EndIf}
        ${Next}
        ${If} $R0 = 1
        ${AndIf} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(TextStillRuns)" /SD IDCANCEL IDCANCEL`
            SetErrorLevel ${STILL_RUNS}
            Abort "$(TextStillRuns)"
        ${EndIf}
    ${Loop}
FunctionEnd

; Deletes from folder $R0 what the list $R2 names and the list $R1 (none: "") does not, and the folders that become
; empty. A list has a section of files and one of folders, innermost first; each line is PATH=1.
Function ${UN}removeListed
    ClearErrors
    FileOpen $R3 $R2 r
    ${IfNot} ${Errors}
        StrCpy $R7 ""
        ${Do}
            ClearErrors
            FileRead $R3 $R4
            ${If} ${Errors}
                ${Break}
            ${EndIf}
            ${If} $R4 == "[files]$\r$\n"
                StrCpy $R7 files
            ${ElseIf} $R4 == "[folders]$\r$\n"
                StrCpy $R7 folders
            ${ElseIf} $R7 != ""
                StrCpy $R4 $R4 -4 ; "=1" and the line's end
                StrCpy $R5 ""
                ${If} $R1 != ""
                    ReadINIStr $R5 $R1 $R7 $R4
                ${EndIf}
                ${If} $R5 != ""
                    ; stays
                ${ElseIf} $R7 == files
                    Delete "$R0\$R4"
                ${Else}
                    RMDir "$R0\$R4"
                ${EndIf}
            ${EndIf}
        ${Loop}
        FileClose $R3
    ${EndIf}
FunctionEnd

; The shield on the button that is next, where Windows is going to ask.
Function ${UN}markElevation
    Call ${UN}isAdministrator
    StrCpy $R1 0
    ${If} $R0 = 0
    ${AndIf} $ForAll = 1
        StrCpy $R1 1
    ${EndIf}
    GetDlgItem $R0 $HWNDPARENT 1
    SendMessage $R0 ${BCM_SETSHIELD} 0 $R1
FunctionEnd

Function ${UN}unmarkElevation
    GetDlgItem $R0 $HWNDPARENT 1
    SendMessage $R0 ${BCM_SETSHIELD} 0 0
FunctionEnd

!macroend

!insertmacro SharedFunctions ""
!insertmacro SharedFunctions "un."
