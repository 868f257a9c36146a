; The installer: for one user, no administrator. NOME, VERSIONE, CASA and ICONA come from whoever
; calls makensis, as does file.nsh, which names what gets installed.

; Only 64-bit systems can run the program.
Target amd64-unicode
SetCompressor /SOLID lzma
; What is installed bears the time of its installation.
SetDateSave off

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define PROGRAMMA "$INSTDIR\${NOME}.exe"
!define DISINSTALLA "$INSTDIR\Disinstalla.exe"
!define CLASSI "Software\Classes"
; Own names of registered things: what is left of them is removed with the program.
!define TIPO "${NOME}.Feed"
!define VOCE "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NOME}"
; What the program itself keeps: recent files; copies of saved feeds and work in no file.
!define IMPOSTAZIONI "Software\VB and VBA Program Settings"
!define DATI "$LOCALAPPDATA\${NOME}"

!define SHCNE_ASSOCCHANGED 0x08000000

Name "${NOME}"
OutFile "${NOME}-${VERSIONE}-setup.exe"
BrandingText "${NOME} ${VERSIONE}"
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all
AllowSkipFiles off
CompletedText "Operazione completata"
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSIONE}.0"
VIFileVersion "${VERSIONE}.0"
VIAddVersionKey /LANG=1040 "ProductName" "${NOME}"
VIAddVersionKey /LANG=1040 "FileDescription" "Installazione di ${NOME}"
VIAddVersionKey /LANG=1040 "CompanyName" "${CASA}"
VIAddVersionKey /LANG=1040 "FileVersion" "${VERSIONE}"
VIAddVersionKey /LANG=1040 "ProductVersion" "${VERSIONE}"
VIAddVersionKey /LANG=1040 "LegalCopyright" "MIT"

!define MUI_ICON "${ICONA}"
!define MUI_UNICON "${ICONA}"
; The library's own texts misspell these.
!define MUI_UNINSTFILESPAGE_ABORTHEADER_SUBTEXT "La disinstallazione non è stata completata."
UninstallSubCaption 2 ": Disinstallazione completata"

Page custom paginaInstalla lasciaInstalla
!insertmacro MUI_PAGE_INSTFILES
UninstPage custom un.paginaDisinstalla un.lasciaDisinstalla
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Italian"

Var casella
Var scelta ; of the box on the first page

; A page with a text above and a box to tick below it.
!macro pagina TITOLO SOTTO TESTO CASELLA STATO PULSANTE
  !insertmacro MUI_HEADER_TEXT "${TITOLO}" "${SOTTO}"
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateLabel} 0 0 100% 60u "${TESTO}"
  Pop $0
  ${NSD_CreateCheckbox} 0 70u 100% 12u "${CASELLA}"
  Pop $casella
  ${NSD_SetState} $casella ${STATO}
  GetDlgItem $0 $HWNDPARENT 1
  SendMessage $0 ${WM_SETTEXT} 0 "STR:${PULSANTE}"
  nsDialogs::Show
!macroend

; Ends with code 2, before anything has changed, while the installed program runs: its file cannot be
; written then. Opening it so changes nothing.
!macro seInEsecuzione CHE
  ${If} ${FileExists} "${PROGRAMMA}"
    ClearErrors
    FileOpen $0 "${PROGRAMMA}" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONEXCLAMATION "${NOME} è aperto. Chiudere il programma e ripetere ${CHE}." /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

; Always this folder, whatever the command line says: what is removed from it is known.
!macro cartella
  StrCpy $INSTDIR "$LOCALAPPDATA\Programs\${NOME}"
!macroend

!macro associazioniCambiate
  System::Call 'shell32::SHChangeNotify(i ${SHCNE_ASSOCCHANGED}, i 0, p 0, p 0)'
!macroend

Function .onInit
  !insertmacro cartella
  StrCpy $scelta 0
  !insertmacro seInEsecuzione "l'installazione"
FunctionEnd

Function paginaInstalla
  !insertmacro pagina "Installazione" "${NOME} ${VERSIONE}" \
    "${NOME} sarà installato per questo utente, nella cartella$\r$\n$INSTDIR.$\r$\n$\r$\nI file .rss e .xml si potranno aprire con ${NOME} dal menu $\"Apri con$\"; il programma che li apre ora resta lo stesso." \
    "&Avvia ${NOME} al termine" ${BST_CHECKED} "Ins&talla"
FunctionEnd

Function lasciaInstalla
  ${NSD_GetState} $casella $scelta
FunctionEnd

Function .onInstSuccess
  ${If} $scelta = ${BST_CHECKED}
    Exec '"${PROGRAMMA}"'
  ${EndIf}
FunctionEnd

!macro apriCon CHIAVE
  WriteRegStr HKCU "${CLASSI}\${CHIAVE}\DefaultIcon" "" "${PROGRAMMA},0"
  WriteRegStr HKCU "${CLASSI}\${CHIAVE}\shell\open\command" "" '"${PROGRAMMA}" "%1"'
!macroend

Section
  !insertmacro seInEsecuzione "l'installazione"
  ; A file that cannot be written from here on ends it with this.
  SetErrorLevel 1
  ClearErrors
  RMDir /r "$INSTDIR\guida"
  !include file.nsh
  SetOutPath "$INSTDIR"
  WriteUninstaller "${DISINSTALLA}"
  ${If} ${Errors}
    Abort
  ${EndIf}
  CreateShortcut "$SMPROGRAMS\${NOME}.lnk" "${PROGRAMMA}"

  WriteRegStr HKCU "${CLASSI}\${TIPO}" "" "Feed RSS"
  !insertmacro apriCon "${TIPO}"
  WriteRegStr HKCU "${CLASSI}\.rss\OpenWithProgids" "${TIPO}" ""
  WriteRegStr HKCU "${CLASSI}\.xml\OpenWithProgids" "${TIPO}" ""
  WriteRegStr HKCU "${CLASSI}\Applications\${NOME}.exe" "FriendlyAppName" "${NOME}"
  !insertmacro apriCon "Applications\${NOME}.exe"
  WriteRegStr HKCU "${CLASSI}\Applications\${NOME}.exe\SupportedTypes" ".rss" ""
  WriteRegStr HKCU "${CLASSI}\Applications\${NOME}.exe\SupportedTypes" ".xml" ""

  WriteRegStr HKCU "${VOCE}" "DisplayName" "${NOME}"
  WriteRegStr HKCU "${VOCE}" "DisplayVersion" "${VERSIONE}"
  WriteRegStr HKCU "${VOCE}" "DisplayIcon" "${PROGRAMMA},0"
  WriteRegStr HKCU "${VOCE}" "Publisher" "${CASA}"
  WriteRegStr HKCU "${VOCE}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${VOCE}" "UninstallString" '"${DISINSTALLA}"'
  WriteRegStr HKCU "${VOCE}" "QuietUninstallString" '"${DISINSTALLA}" /S'
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${VOCE}" "EstimatedSize" $0
  WriteRegDWORD HKCU "${VOCE}" "NoModify" 1
  WriteRegDWORD HKCU "${VOCE}" "NoRepair" 1
  !insertmacro associazioniCambiate
  SetErrorLevel 0
SectionEnd

Function un.onInit
  !insertmacro cartella
  StrCpy $scelta 0
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/TUTTO" $1
  ${IfNot} ${Errors}
    StrCpy $scelta ${BST_CHECKED}
  ${EndIf}
  !insertmacro seInEsecuzione "la disinstallazione"
FunctionEnd

Function un.paginaDisinstalla
  !insertmacro pagina "Disinstallazione" "${NOME} ${VERSIONE}" \
    "${NOME} sarà tolto dalla cartella$\r$\n$INSTDIR.$\r$\n$\r$\nL'elenco dei file recenti, le copie dei feed salvati e il lavoro non salvato restano, se non si chiede di eliminarli. I feed non si toccano." \
    "&Elimina anche file recenti, copie e lavoro non salvato" $scelta "&Disinstalla"
FunctionEnd

Function un.lasciaDisinstalla
  ${NSD_GetState} $casella $scelta
FunctionEnd

; Takes away our name for a kind of file, and the keys above it that nobody else uses.
!macro togliTipo ESTENSIONE
  DeleteRegValue HKCU "${CLASSI}\${ESTENSIONE}\OpenWithProgids" "${TIPO}"
  DeleteRegKey /ifempty HKCU "${CLASSI}\${ESTENSIONE}\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSI}\${ESTENSIONE}"
!macroend

Section un.
  !insertmacro seInEsecuzione "la disinstallazione"
  Delete "$SMPROGRAMS\${NOME}.lnk"
  Delete "${PROGRAMMA}"
  Delete "$INSTDIR\${NOME}.htm"
  RMDir /r "$INSTDIR\guida"
  Delete "$INSTDIR\Licenza.txt"
  ; Who started this copy of it may not have quite ended yet: five seconds.
  ${For} $0 1 50
    Delete "${DISINSTALLA}"
    ${IfNot} ${FileExists} "${DISINSTALLA}"
      ${ExitFor}
    ${EndIf}
    Sleep 100
  ${Next}
  ; Folders only when nothing of others is in them.
  RMDir "$INSTDIR"
  RMDir "$LOCALAPPDATA\Programs"

  !insertmacro togliTipo ".rss"
  !insertmacro togliTipo ".xml"
  DeleteRegKey HKCU "${CLASSI}\${TIPO}"
  DeleteRegKey HKCU "${CLASSI}\Applications\${NOME}.exe"
  DeleteRegKey /ifempty HKCU "${CLASSI}\Applications"

  ${If} $scelta = ${BST_CHECKED}
    DeleteRegKey HKCU "${IMPOSTAZIONI}\${NOME}"
    DeleteRegKey /ifempty HKCU "${IMPOSTAZIONI}"
    RMDir /r "${DATI}"
  ${EndIf}
  ; Last: while anything is left to do, the list of programs has it.
  DeleteRegKey HKCU "${VOCE}"
  !insertmacro associazioniCambiate
SectionEnd
