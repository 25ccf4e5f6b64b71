; zpsg-setup.exe: for one user without administrator rights, or for everyone. package.sh compiles it, in the folder with
; what is to be installed, and defines VERSION, SIZE (KiB installed), ICON, SIDE and HEADER (pictures), FILES (a script
; with the macro InstallFiles) and OUTPUT.
;
; Switches: /S silent, /CurrentUser, /AllUsers, /Autostart, /Desktop, and at last /D=FOLDER without quotes.
; Exit codes: 0 done, 1 cancelled, 2 a file could not be written, 3 the program runs and did not end, 4 administrator
; rights are needed and were not given.
;
; The setup starts with the user's own rights. For everyone it starts itself once more, silent and with administrator
; rights, for the part that needs them; what belongs to the user stays with the user that way.

; A 32-bit Windows refuses a 64-bit setup in its own words, and the program is 64-bit as well.
Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
SetDateSave on
AllowSkipFiles off
CRCCheck on
ManifestDPIAware true
ManifestSupportedOS all
ManifestLongPathAware true
RequestExecutionLevel user

!define NAME "ZPS G"
!define PUBLISHER "The ZPS G developers"
!define MARKER "installed.ini"
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\zpsg"
!define NO_FOLDER "$WINDIR\${NAME}" ; stands for: none was named with /D
!define DATA "$LOCALAPPDATA\zpsg"
!define CANCELLED 1
!define STILL_RUNS 3
!define NOT_ELEVATED 4

Name "${NAME}"
OutFile "${OUTPUT}"
InstallDir "${NO_FOLDER}" ; its last part is added to a folder that the user picks
BrandingText "${NAME} ${VERSION}"
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=0 "ProductName" "${NAME}"
VIAddVersionKey /LANG=0 "FileDescription" "${NAME} Setup"
VIAddVersionKey /LANG=0 "CompanyName" "${PUBLISHER}"
VIAddVersionKey /LANG=0 "LegalCopyright" "Copyright (c) 2026 ${PUBLISHER}. MIT licence."
VIAddVersionKey /LANG=0 "FileVersion" "${VERSION}.0"
VIAddVersionKey /LANG=0 "ProductVersion" "${VERSION}.0"
VIAddVersionKey /LANG=0 "OriginalFilename" "zpsg-setup.exe"

Var ForAll        ; 1: for everyone
Var Old           ; version that is installed already in this way, or empty
Var OldFolder     ; where that is
Var WantAutostart ; 1: yes
Var WantDesktop   ; 1: yes

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WinVer.nsh
!include WordFunc.nsh
!include "${__FILEDIR__}\shared.nsh"
!include "${FILES}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_HEADERIMAGE
!define MUI_HEADERIMAGE_RIGHT
!define MUI_HEADERIMAGE_BITMAP "${HEADER}"
!define MUI_HEADERIMAGE_BITMAP_STRETCH AspectFitHeight
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE}"
!define MUI_WELCOMEFINISHPAGE_BITMAP_STRETCH AspectFitHeight
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION runProgram

Page custom optionsPage leaveOptions
!define MUI_PAGE_CUSTOMFUNCTION_PRE skipKnownFolder
!define MUI_PAGE_CUSTOMFUNCTION_SHOW markElevation
!insertmacro MUI_PAGE_DIRECTORY
!define MUI_PAGE_CUSTOMFUNCTION_SHOW unmarkElevation
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
UninstPage custom un.confirmPage un.leaveConfirm
!define MUI_PAGE_CUSTOMFUNCTION_SHOW un.unmarkElevation
!insertmacro MUI_UNPAGE_INSTFILES

; The first stands in for every language that is not among them.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "Russian"
!insertmacro MUI_LANGUAGE "Japanese"
!insertmacro MUI_LANGUAGE "SimpChinese"
!insertmacro MUI_LANGUAGE "TradChinese"
!include "${__FILEDIR__}\texts.nsh"
!include "${__FILEDIR__}\options.nsh"
!include "${__FILEDIR__}\uninstall.nsh"

Function .onInit
    Call chooseLanguage
    ${GetParameters} $R0
    ${GetOptions} $R0 "/Autostart" $R1
    ${IfNot} ${Errors}
        StrCpy $WantAutostart 1
    ${EndIf}
    ${GetOptions} $R0 "/Desktop" $R1
    ${IfNot} ${Errors}
        StrCpy $WantDesktop 1
    ${EndIf}
    ; As it is installed already, if it is; else for this user.
    ReadRegStr $R1 HKCU "${UNINSTALL_KEY}" DisplayVersion
    ReadRegStr $R2 HKLM "${UNINSTALL_KEY}" DisplayVersion
    StrCpy $ForAll 0
    ${If} $R1 == ""
    ${AndIf} $R2 != ""
        StrCpy $ForAll 1
    ${EndIf}
    ${GetOptions} $R0 "/AllUsers" $R1
    ${IfNot} ${Errors}
        StrCpy $ForAll 1
    ${EndIf}
    ${GetOptions} $R0 "/CurrentUser" $R1
    ${IfNot} ${Errors}
        StrCpy $ForAll 0
    ${EndIf}
    ${If} $INSTDIR == "${NO_FOLDER}"
        StrCpy $INSTDIR ""
    ${EndIf}
    Call findInstalled
    ${If} ${Silent}
    ${AndIf} $ForAll = 1
        Call isAdministrator
        ${If} $R0 = 0
            SetErrorLevel ${NOT_ELEVATED}
            Quit
        ${EndIf}
    ${EndIf}
FunctionEnd

; Chinese has two scripts, and the system names more than one region for each.
Function chooseLanguage
    System::Call "kernel32::GetUserDefaultUILanguage() i .R0"
    ${Select} $R0
    ${Case2} 3076 5124 ; Hong Kong, Macau
        StrCpy $LANGUAGE 1028
    ${Case} 4100 ; Singapore
        StrCpy $LANGUAGE 2052
    ${EndSelect}
FunctionEnd

; What is installed in the chosen way, and the folder that follows from it.
Function findInstalled
    ${If} $ForAll = 1
        SetShellVarContext all
        ReadRegStr $Old HKLM "${UNINSTALL_KEY}" DisplayVersion
        ReadRegStr $OldFolder HKLM "${UNINSTALL_KEY}" InstallLocation
        StrCpy $R0 "$PROGRAMFILES64\${NAME}"
    ${Else}
        SetShellVarContext current
        ReadRegStr $Old HKCU "${UNINSTALL_KEY}" DisplayVersion
        ReadRegStr $OldFolder HKCU "${UNINSTALL_KEY}" InstallLocation
        StrCpy $R0 "$LOCALAPPDATA\Programs\${NAME}"
    ${EndIf}
    ${If} $INSTDIR == ""
        StrCpy $INSTDIR $R0
        ${If} $OldFolder != ""
            StrCpy $INSTDIR $OldFolder
        ${EndIf}
    ${EndIf}
FunctionEnd

Section
    AddSize ${SIZE} ; for the page with the folder: the files come in a function
    Call isAdministrator
    ${If} $ForAll = 1
    ${AndIf} $R0 = 0
        StrCpy $R1 "/S /AllUsers"
        ${If} $WantDesktop = 1
            StrCpy $R1 "$R1 /Desktop"
        ${EndIf}
        StrCpy $R1 "$R1 /D=$INSTDIR"
        Call runElevated
    ${Else}
        Call install
    ${EndIf}
    Call setAutostart
SectionEnd

; As the program itself writes it, so that its settings show it and take it back.
Function setAutostart
    StrLen $R0 '"$OldFolder\zpsg.exe"'
    ReadRegStr $R1 HKCU "${RUN_KEY}" "${NAME}"
    StrCpy $R2 $R1 $R0
    StrCpy $R1 $R1 "" $R0
    ${If} $WantAutostart = 1
        WriteRegStr HKCU "${RUN_KEY}" "${NAME}" '"$INSTDIR\zpsg.exe" open'
    ${ElseIf} $R2 == '"$OldFolder\zpsg.exe"'
        WriteRegStr HKCU "${RUN_KEY}" "${NAME}" '"$INSTDIR\zpsg.exe"$R1' ; it may have moved
    ${EndIf}
FunctionEnd

Function install
    InitPluginsDir
    StrCpy $R6 $INSTDIR
    Call endProgram
    ${If} $OldFolder != ""
        StrCpy $R6 $OldFolder
        Call endProgram
    ${EndIf}
    ${If} $OldFolder != ""
    ${AndIf} ${FileExists} "$OldFolder\${MARKER}"
        CopyFiles /SILENT "$OldFolder\${MARKER}" "$PLUGINSDIR\${MARKER}"
    ${EndIf}
    !insertmacro InstallFiles
    WriteUninstaller "$INSTDIR\uninstall.exe"
    Call removeStale
    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\zpsg.exe"
    ${If} $WantDesktop = 1
        CreateShortcut "$DESKTOP\${NAME}.lnk" "$INSTDIR\zpsg.exe"
    ${EndIf}
    !insertmacro Register "DisplayName" "${NAME}"
    !insertmacro Register "DisplayVersion" "${VERSION}"
    !insertmacro Register "Publisher" "${PUBLISHER}"
    !insertmacro Register "DisplayIcon" "$INSTDIR\zpsg.exe,0"
    !insertmacro Register "InstallLocation" "$INSTDIR"
    !insertmacro Register "UninstallString" '"$INSTDIR\uninstall.exe"'
    !insertmacro Register "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE}
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
FunctionEnd

; What the version before had and this one has not. In another folder that is everything.
Function removeStale
    StrCpy $R0 $OldFolder
    StrCpy $R1 ""
    ${If} $OldFolder == $INSTDIR
        StrCpy $R1 "$INSTDIR\${MARKER}"
    ${ElseIf} $OldFolder != ""
        Delete "$OldFolder\uninstall.exe"
    ${EndIf}
    StrCpy $R2 "$PLUGINSDIR\${MARKER}"
    Call removeListed
    ${If} $OldFolder != ""
    ${AndIf} $OldFolder != $INSTDIR
        RMDir "$OldFolder"
    ${EndIf}
FunctionEnd

; With the user's own rights. Where the setup itself has more, the desktop's own process does it.
Function runProgram
    Call isAdministrator
    ${If} $R0 = 0
        Exec '"$INSTDIR\zpsg.exe"'
    ${Else}
        Exec '"$WINDIR\explorer.exe" "$INSTDIR\zpsg.exe"'
    ${EndIf}
FunctionEnd
