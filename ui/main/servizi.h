#pragma once

class ClsCodaEliminazione;
class DialoghiFile;
class EditorElementi;
class Impostazioni;
class Messaggi;
class Orologio;
struct CartelleDati;

// What the windows need from outside themselves; all outlive the windows.
struct Servizi {
    Messaggi& messaggi;
    DialoghiFile& dialoghi;
    Orologio& orologio;
    Impostazioni& impostazioni;
    ClsCodaEliminazione& coda;
    EditorElementi& editor;
    const CartelleDati& cartelle;
};
