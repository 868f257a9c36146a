#pragma once

// Numbers of resources and controls, shared by the resource scripts and the code.

// The frame of the channel's fields.
#define IDD_FRADATI 100
#define IDC_FRADATI 1001
#define IDC_TXTTITOLO 1002
#define IDC_TXTLINKHOME 1003
#define IDC_TXTDESCRIZIONE 1004
#define IDC_CBOLINGUA 1005
#define IDC_TXTCOPYRIGHT 1006
#define IDC_TXTDATA 1007
#define IDC_TXTORARIO 1008
#define IDC_TXTWEBMASTER 1009
#define IDC_TXTLOGO 1010
#define IDC_TXTURL 1011
#define IDC_TXTLINKIMG 1012
#define IDC_TXTLARGHEZZA 1013
#define IDC_TXTALTEZZA 1014
#define IDC_CMDGETSIZE 1015
#define IDC_LBLURL 1016
#define IDC_LBLLARGHEZZA 1017
#define IDC_LBLALTEZZA 1018

// The main window's other controls.
#define IDC_GRIGLIA 1101
#define IDC_PICCMD 1102
#define IDC_STATUSBAR 1103
#define IDC_TOOLBAR 1104

// The item editor. Its buttons have the numbers that Enter and Esc press.
#define IDD_FRMEDITFEED 200
#define IDC_FRAMEEDIT 2001
#define IDC_EDITTITOLO 2002
#define IDC_EDITLINK 2003
#define IDC_EDITAUTORE 2004
#define IDC_EDITDESCRIZIONE 2005
#define IDC_EDITDATA 2006
#define IDC_EDITORARIO 2007
#define IDC_LBLDATA 2008
#define IDC_LBLORA 2009
// The guide; no control has this number.
#define IDC_GUIDA 2010
#define IDC_CMDSALVA 1
#define IDC_CMDANNULLA 2

// The about box. Its OK has the number that Enter presses.
#define IDD_FRMABOUT 300
#define IDC_PICICON 3001
#define IDC_IMAGE1 3002
#define IDC_FRAME1 3003
#define IDC_LBLTITLE 3004
#define IDC_LBLVERSION 3005
#define IDC_LBLPRODOTTO 3006
#define IDC_LBLAUTORE 3007
#define IDC_LBLSITO 3008
#define IDC_CMDSYSINFO 3009
#define IDC_CMDOK 1
// A picture of the type "GIF".
#define IDR_LOGO 301

// The toolbar's pictures, a strip for each size in pixels, 32 bits with straight alpha: new, open,
// save, email, info.
#define IDB_BARRA16 401
#define IDB_BARRA24 402
#define IDB_BARRA32 403

// The icon of the program and of its windows.
#define IDI_OSTRELLE 1
