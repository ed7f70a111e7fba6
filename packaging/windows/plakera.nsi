; The installer. costruisci.sh calls makensis with
;   VERSIONE  1.0.0            PROGRAMMA  folder with all that is installed
;   TOGLIE    a list of commands that remove it, file by file     USCITA  the installer to be written
;   ICONA     the program's    FIANCO     picture beside the first page and the last
; Command line: /S without windows, /AllUsers or /CurrentUser, /MOD=1 opens .Mod files with Plakera, /MOD=0
; no longer, /D=C:\folder (last, without quotes). Exit status, beside those of NSIS: 3 Windows is too old,
; 4 rights are missing, 5 files cannot be written.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS Win10

!define NOME "Plakera"
!define CHIAVE_DISINSTALLA "Software\Microsoft\Windows\CurrentVersion\Uninstall\Plakera"
!define CHIAVE_PROGRAMMA "Software\Plakera"
!define TIPO "Plakera.Modello"
; What .Mod files were opened with before the user gave them to Plakera.
!define PRIMA "AltroProgramma"
; Whether they are Plakera's: the last answer, 1 or 0.
!define RISPOSTA "Mod"
; What was installed, a line each, for the version that comes after.
!define ELENCO "installati.txt"

!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "${NOME}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${CHIAVE_PROGRAMMA}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "Cartella"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${CHIAVE_PROGRAMMA}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "Cartella"
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_FUNCTION UtentiScelti
!define MULTIUSER_INIT_TEXT_ALLUSERSNOTPOSSIBLE \
  "Per installare o togliere Plakera per tutti gli utenti servono i diritti di amministratore."
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include Sections.nsh
!include TextFunc.nsh
!include WinVer.nsh
!include x64.nsh

Name "${NOME}"
BrandingText "${NOME} ${VERSIONE}"
; NSIS's own word is that of an installation, for removals too.
CompletedText "Completato"
OutFile "${USCITA}"
VIProductVersion "${VERSIONE}.0"
VIAddVersionKey /LANG=1040 ProductName "${NOME}"
VIAddVersionKey /LANG=1040 ProductVersion "${VERSIONE}"
VIAddVersionKey /LANG=1040 FileVersion "${VERSIONE}"
VIAddVersionKey /LANG=1040 FileDescription "Installazione di ${NOME}"
VIAddVersionKey /LANG=1040 LegalCopyright "${NOME}"

!define MUI_ICON "${ICONA}"
!define MUI_UNICON "${ICONA}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${FIANCO}"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
!insertmacro MUI_PAGE_WELCOME
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
; By the user's own Explorer: an administrator's program would see none of the user's network drives.
!define MUI_FINISHPAGE_RUN "$WINDIR\explorer.exe"
!define MUI_FINISHPAGE_RUN_PARAMETERS '$\"$INSTDIR\plakera.exe$\"'
!define MUI_FINISHPAGE_RUN_NOTCHECKED
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Italian"

; What the command line says, or nothing.
Var CartellaDetta
Var ModDetto

; Windows keeps a running program's file from being written.
!macro SoloSeChiuso
  ${If} ${FileExists} "$INSTDIR\plakera.exe"
    riprova:
    ClearErrors
    FileOpen $0 "$INSTDIR\plakera.exe" a
    ${If} ${Errors}
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Plakera è aperto, o il file plakera.exe non si può scrivere.$\r$\nChiudere il programma e riprovare." /SD IDCANCEL IDRETRY riprova
      SetErrorLevel 5
      Abort "Plakera è aperto: nulla è stato cambiato."
    ${Else}
      FileClose $0
    ${EndIf}
  ${EndIf}
!macroend

!macro RinnovaIcone
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

; MultiUser.nsh says so too, but in a box that waits for somebody also where there are no windows, and then
; ends as if all were well.
!macro SoloConDiritti
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/AllUsers" $1
  ${IfNot} ${Errors}
    UserInfo::GetAccountType
    Pop $1
    ${If} $1 != "Admin"
    ${AndIf} $1 != "Power"
      MessageBox MB_OK|MB_ICONSTOP "${MULTIUSER_INIT_TEXT_ALLUSERSNOTPOSSIBLE}" /SD IDOK
      SetErrorLevel 4
      Quit
    ${EndIf}
  ${EndIf}
!macroend

; What is still ours of the .Mod files goes back to whom it was taken from, if he is still there.
!macro LasciaMod
  ReadRegStr $0 SHCTX "Software\Classes\.mod" ""
  ${If} $0 == "${TIPO}"
    ReadRegStr $1 SHCTX "${CHIAVE_PROGRAMMA}" "${PRIMA}"
    ${If} $1 != ""
      EnumRegKey $0 HKCR "$1" 0
    ${Else}
      StrCpy $0 ""
    ${EndIf}
    ${If} $0 == ""
      DeleteRegValue SHCTX "Software\Classes\.mod" ""
    ${Else}
      WriteRegStr SHCTX "Software\Classes\.mod" "" "$1"
    ${EndIf}
  ${EndIf}
  DeleteRegValue SHCTX "${CHIAVE_PROGRAMMA}" "${PRIMA}"
  DeleteRegValue SHCTX "Software\Classes\.mod\OpenWithProgids" "${TIPO}"
  DeleteRegKey /ifempty SHCTX "Software\Classes\.mod\OpenWithProgids"
  DeleteRegKey /ifempty SHCTX "Software\Classes\.mod"
  DeleteRegKey SHCTX "Software\Classes\${TIPO}"
!macroend

; The licences of an older version may be others. Only what that version put there, never what is not known:
; a name is found as it is written only if it is that of a file in that folder.
Function TogliLicenzeDiPrima
  ClearErrors
  FileOpen $0 "$INSTDIR\${ELENCO}" r
  ${If} ${Errors}
    Return
  ${EndIf}
  ${Do}
    ClearErrors
    FileRead $0 $1
    ${If} ${Errors}
      ${ExitDo}
    ${EndIf}
    ${TrimNewLines} $1 $1
    StrCpy $2 $1 8
    StrCpy $1 $1 "" 8
    ${If} $2 == "licenze\"
      FindFirst $2 $3 "$INSTDIR\licenze\$1"
      FindClose $2
      ${If} $3 == $1
        Delete "$INSTDIR\licenze\$1"
      ${EndIf}
    ${EndIf}
  ${Loop}
  FileClose $0
FunctionEnd

Section "${NOME}" SezioneProgramma
  SectionIn RO
  !insertmacro SoloSeChiuso
  Call TogliLicenzeDiPrima
  SetOutPath "$INSTDIR"
  ClearErrors
  File /r "${PROGRAMMA}\*"
  ${If} ${Errors}
    SetErrorLevel 5
    Abort "L'installazione non è riuscita: i file non si possono scrivere in $INSTDIR."
  ${EndIf}
  WriteUninstaller "$INSTDIR\disinstalla.exe"

  CreateShortcut "$SMPROGRAMS\${NOME}.lnk" "$INSTDIR\plakera.exe"
  WriteRegStr SHCTX "${CHIAVE_PROGRAMMA}" "Cartella" "$INSTDIR"
  WriteRegStr SHCTX "Software\Microsoft\Windows\CurrentVersion\App Paths\plakera.exe" "" "$INSTDIR\plakera.exe"

  WriteRegStr SHCTX "${CHIAVE_DISINSTALLA}" "DisplayName" "${NOME}"
  WriteRegStr SHCTX "${CHIAVE_DISINSTALLA}" "DisplayVersion" "${VERSIONE}"
  WriteRegStr SHCTX "${CHIAVE_DISINSTALLA}" "DisplayIcon" "$INSTDIR\plakera.exe"
  WriteRegStr SHCTX "${CHIAVE_DISINSTALLA}" "Publisher" "${NOME}"
  WriteRegStr SHCTX "${CHIAVE_DISINSTALLA}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${CHIAVE_DISINSTALLA}" "UninstallString" '"$INSTDIR\disinstalla.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${CHIAVE_DISINSTALLA}" "QuietUninstallString" '"$INSTDIR\disinstalla.exe" /$MultiUser.InstallMode /S'
  WriteRegDWORD SHCTX "${CHIAVE_DISINSTALLA}" "NoModify" 1
  WriteRegDWORD SHCTX "${CHIAVE_DISINSTALLA}" "NoRepair" 1
  SectionGetSize ${SezioneProgramma} $0
  WriteRegDWORD SHCTX "${CHIAVE_DISINSTALLA}" "EstimatedSize" $0
SectionEnd

; Chosen by nobody unless ticked. What another program has is only taken over where the user says so;
; without windows nobody is there to say it.
Section /o "Apri i file .Mod con Plakera" SezioneMod
  ; Of those for whom it is installed: what a user has for himself goes before what is there for all.
  ReadRegStr $1 SHCTX "Software\Classes\.mod" ""
  StrCpy $0 $1
  ${If} $0 == ""
  ${AndIf} $MultiUser.InstallMode == "CurrentUser"
    ReadRegStr $0 HKLM "Software\Classes\.mod" ""
  ${EndIf}
  ${If} $0 != ""
  ${AndIf} $0 != "${TIPO}"
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "I file .Mod si aprono ora con un altro programma ($0).$\r$\nAprirli con Plakera?" /SD IDNO IDYES prende
    !insertmacro LasciaMod
    WriteRegStr SHCTX "${CHIAVE_PROGRAMMA}" "${RISPOSTA}" "0"
    Goto fatto
    prende:
  ${EndIf}
  ${If} $1 == ""
    DeleteRegValue SHCTX "${CHIAVE_PROGRAMMA}" "${PRIMA}"
  ${ElseIf} $1 != "${TIPO}"
    WriteRegStr SHCTX "${CHIAVE_PROGRAMMA}" "${PRIMA}" "$1"
  ${EndIf}
  WriteRegStr SHCTX "Software\Classes\${TIPO}" "" "Modello di stampa"
  WriteRegStr SHCTX "Software\Classes\${TIPO}\DefaultIcon" "" "$INSTDIR\plakera.exe,0"
  WriteRegStr SHCTX "Software\Classes\${TIPO}\shell\open\command" "" '"$INSTDIR\plakera.exe" "%1"'
  WriteRegStr SHCTX "Software\Classes\.mod\OpenWithProgids" "${TIPO}" ""
  WriteRegStr SHCTX "Software\Classes\.mod" "" "${TIPO}"
  WriteRegStr SHCTX "${CHIAVE_PROGRAMMA}" "${RISPOSTA}" "1"
  fatto:
  !insertmacro RinnovaIcone
SectionEnd

Section "-SenzaMod"
  ${IfNot} ${SectionIsSelected} ${SezioneMod}
    !insertmacro LasciaMod
    WriteRegStr SHCTX "${CHIAVE_PROGRAMMA}" "${RISPOSTA}" "0"
    !insertmacro RinnovaIcone
  ${EndIf}
SectionEnd

; Two lines each: the page has room for no more.
LangString DescriviProgramma ${LANG_ITALIAN} "Il programma, il suo manuale e le licenze."
LangString DescriviMod ${LANG_ITALIAN} "Un doppio clic su un modello lo apre con Plakera. Se lo apre già un altro programma, viene chiesto prima."
!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SezioneProgramma} $(DescriviProgramma)
  !insertmacro MUI_DESCRIPTION_TEXT ${SezioneMod} $(DescriviMod)
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; Called whenever it is known for whom it is installed, and again when the user says otherwise.
Function UtentiScelti
  ${If} $CartellaDetta != ""
    StrCpy $INSTDIR $CartellaDetta
  ${EndIf}
  ; An upgrade leaves the choice that was made.
  StrCpy $0 $ModDetto
  ${If} $0 == ""
    ReadRegStr $0 SHCTX "${CHIAVE_PROGRAMMA}" "${RISPOSTA}"
  ${EndIf}
  ${If} $0 == 1
    !insertmacro SelectSection ${SezioneMod}
  ${Else}
    !insertmacro UnselectSection ${SezioneMod}
  ${EndIf}
FunctionEnd

Function .onInit
  ${IfNot} ${RunningX64}
  ${OrIfNot} ${AtLeastWin10}
  ${OrIfNot} ${AtLeastBuild} 17763
    MessageBox MB_OK|MB_ICONSTOP "Plakera richiede Windows 10 (versione 1809) o uno più recente, a 64 bit." /SD IDOK
    SetErrorLevel 3
    Quit
  ${EndIf}
  SetRegView 64
  !insertmacro SoloConDiritti
  StrCpy $CartellaDetta $INSTDIR
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/MOD=" $ModDetto
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  SetRegView 64
  !insertmacro SoloConDiritti
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section Uninstall
  !insertmacro SoloSeChiuso
  !insertmacro LasciaMod
  DeleteRegKey SHCTX "Software\Microsoft\Windows\CurrentVersion\App Paths\plakera.exe"
  DeleteRegKey SHCTX "${CHIAVE_DISINSTALLA}"
  DeleteRegKey SHCTX "${CHIAVE_PROGRAMMA}"
  Delete "$SMPROGRAMS\${NOME}.lnk"
  ; Only what was installed: the folder may hold files of the user's own.
  !include "${TOGLIE}"
  Delete "$INSTDIR\disinstalla.exe"
  RMDir "$INSTDIR"
  !insertmacro RinnovaIcone
SectionEnd
