; The setup program of one bitness. Made by ./package, which defines VERSION, ARCH, STAGE (the folder with what is
; installed) and OUTPUT.
;
;   setup.exe             asks for the folder; installs for the machine where it runs as an administrator, else for
;                         the user
;   /user, /machine       decides that
;   /S                    without a window;  /D=FOLDER (last, unquoted) chooses the folder
;
; Exit codes: 0 installed, 1 cancelled, 2 failed; a failed installation leaves nothing behind.
!ifndef TARGET_X86
Target amd64-unicode
!else
Target x86-unicode
!endif
Unicode true
!include FileFunc.nsh
!include LogicLib.nsh

!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tavrin-${ARCH}"

Name "Tavrin ${VERSION} (${ARCH})"
OutFile "${OUTPUT}"
RequestExecutionLevel highest
SetCompressor /SOLID lzma
SetDateSave off
ShowInstDetails show
ShowUninstDetails show
Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

Var scope    ; machine or user
Var install  ; what regsvr32 is told for that scope

!macro UseScope
  ${If} $scope == machine
    SetShellVarContext all
    StrCpy $install ""
  ${Else}
    SetShellVarContext current
    StrCpy $install "/n /i:user"
  ${EndIf}
!macroend

!macro UseOwnView
!if ${ARCH} == x64
  SetRegView 64
!endif
!macroend

Function .onInit
  !insertmacro UseOwnView
  UserInfo::GetAccountType
  Pop $0
  StrCpy $scope user
  ${If} $0 == Admin
    StrCpy $scope machine
  ${EndIf}
  ${GetParameters} $1
  ClearErrors
  ${GetOptions} $1 "/user" $2
  ${IfNot} ${Errors}
    StrCpy $scope user
  ${EndIf}
  ClearErrors
  ${GetOptions} $1 "/machine" $2
  ${IfNot} ${Errors}
    StrCpy $scope machine
  ${EndIf}
  !insertmacro UseScope
  ${If} $INSTDIR == ""
    ${If} $scope == machine
!if ${ARCH} == x64
      StrCpy $INSTDIR "$PROGRAMFILES64\Tavrin-x64"
!else
      StrCpy $INSTDIR "$PROGRAMFILES32\Tavrin-x86"
!endif
    ${Else}
      StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Tavrin-${ARCH}"
    ${EndIf}
  ${EndIf}
FunctionEnd

Section
  SetOutPath "$INSTDIR"
  File /r "${STAGE}\*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  ExecWait '"$SYSDIR\regsvr32.exe" /s $install "$INSTDIR\Tavrin.dll"' $0
  ${If} $0 != 0
    DetailPrint "Tavrin.dll cannot be registered ($0)"
    SetOutPath "$TEMP"
    RMDir /r "$INSTDIR"
    SetErrorLevel 2
    Abort
  ${EndIf}
  WriteRegStr SHCTX "${KEY}" "DisplayName" "Tavrin ${VERSION} (${ARCH})"
  WriteRegStr SHCTX "${KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr SHCTX "${KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD SHCTX "${KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${KEY}" "NoRepair" 1
SectionEnd

Function un.onInit
  !insertmacro UseOwnView
  ; It was installed for the user if that user's list says so.
  StrCpy $scope machine
  ReadRegStr $0 HKCU "${KEY}" "InstallLocation"
  ${If} $0 == $INSTDIR
    StrCpy $scope user
  ${EndIf}
  !insertmacro UseScope
FunctionEnd

; Removes what was installed, file by file: what somebody else put into the folder stays.
Section "Uninstall"
  ExecWait '"$SYSDIR\regsvr32.exe" /s /u $install "$INSTDIR\Tavrin.dll"' $0
  !include "${REMOVALS}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey SHCTX "${KEY}"
  ${If} $scope == user
    ; A user's first program brings these along.
    RMDir "$LOCALAPPDATA\Programs"
    DeleteRegKey /ifempty HKCU "Software\Microsoft\Windows\CurrentVersion\Uninstall"
  ${EndIf}
SectionEnd
