; The installer. tools/windows-package gives VERSION, PROGRAM (the folder of what goes in), FILES (a folder with the two lists made
; of it) and OUT.
;
; It asks whether the program is for the user alone, which takes no rights, or for everybody. Silent with /S, and then with
; /CurrentUser or /AllUsers, and /D= with a folder behind all others. Whatever it put into its folder it takes out again, by name; what the manager keeps there stays.
Target amd64-unicode ; as the program; the folders and the registry are then those of 64 bits
SetCompressor /SOLID lzma
!define TITLE "Dravik Hockey Simulator Client"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\DravikClient"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!define MULTIUSER_INSTALLMODE_INSTDIR "${TITLE}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_USE_PROGRAMFILES64
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh

Name "${TITLE}"
OutFile "${OUT}"
BrandingText "${TITLE} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${TITLE}"
VIAddVersionKey FileDescription "Installer of the ${TITLE}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey LegalCopyright "All rights reserved."

!define MUI_FINISHPAGE_RUN "$INSTDIR\dravik-client.exe"
!define MUI_FINISHPAGE_NOAUTOCLOSE
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; A program that runs cannot be replaced: nothing is touched then.
!macro RefuseWhileOneRuns PROGRAM_NAME
    ${If} ${FileExists} "$INSTDIR\${PROGRAM_NAME}"
        ClearErrors
        FileOpen $0 "$INSTDIR\${PROGRAM_NAME}" a
        ${If} ${Errors}
            MessageBox MB_OK|MB_ICONEXCLAMATION "The ${TITLE} (${PROGRAM_NAME}) is running, or its folder cannot be written to. Close it first." /SD IDOK
            SetErrorLevel 2
            Quit
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend
!macro RefuseWhileItRuns
    !insertmacro RefuseWhileOneRuns dravik-client.exe
    !insertmacro RefuseWhileOneRuns dravik.exe
!macroend

Function .onInit
    ; A folder told by /D= (the last word, without quotes) stands before that of the way, and before where it was.
    StrCpy $R0 $INSTDIR
    !insertmacro MULTIUSER_INIT
    ${If} $R0 != ""
        StrCpy $INSTDIR $R0
    ${EndIf}
FunctionEnd

Function un.onInit
    StrCpy $R0 $INSTDIR ; which the next line replaces by what the list of programs says
    !insertmacro MULTIUSER_UNINIT
    ; Where it stands says whose it is, whatever the command line says: the user may have one of his own beside that of everybody.
    ReadRegStr $0 HKLM "${UNINSTALL_KEY}" InstallLocation
    ReadRegStr $1 HKCU "${UNINSTALL_KEY}" InstallLocation
    ${If} $0 == $R0
        Call un.MultiUser.InstallMode.AllUsers
    ${ElseIf} $1 == $R0
        Call un.MultiUser.InstallMode.CurrentUser
    ${EndIf}
    StrCpy $INSTDIR $R0
FunctionEnd

Section
    !insertmacro RefuseWhileItRuns
    ; A version before this one takes its own files out first, so that none is left that this one does not have.
    ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        ExecWait '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode _?=$INSTDIR'
    ${EndIf}
    !include "${FILES}/install.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortCut "$SMPROGRAMS\${TITLE}.lnk" "$INSTDIR\dravik-client.exe"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayName "${TITLE}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\dravik-client.exe"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" Publisher "Dravik client developers"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode /S'
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoModify 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoRepair 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" EstimatedSize $0
SectionEnd

Section Uninstall
    !insertmacro RefuseWhileItRuns
    !include "${FILES}/uninstall.nsh"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR" ; goes when it is empty
    Delete "$SMPROGRAMS\${TITLE}.lnk"
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
SectionEnd
