#pragma once

#include "tests/aiuti/ostrelleGuidata_win.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <vector>

// An item as it was typed. The program gives it its date and guid: known once a file showed them.
struct VoceLavoro {
    std::wstring titolo;
    std::wstring link;
    std::wstring descrizione;
    std::wstring autore;
    mutable std::optional<std::wstring> data;
    mutable std::optional<std::wstring> guid;
};
using TabellaLavoro = std::vector<std::shared_ptr<const VoceLavoro>>;

// The document with all that was typed, as whoever worked on it knows it.
struct StatoLavoro {
    std::array<std::wstring, 9> canale;
    TabellaLavoro elementi;
    // What was typed into the open item editor: title, link, author, description.
    struct Bozza {
        int indice = -1;
        std::array<std::wstring, 4> testi;
    };
    std::optional<Bozza> bozza;
    std::wstring percorso;
};

// Ends a process, once: a while from now or after a file has gone.
class Boia {
public:
    Boia(HANDLE processo, std::uint32_t microsecondi, const std::wstring& dopoIlFile = {});
    Boia(const Boia&) = delete;
    Boia& operator=(const Boia&) = delete;
    ~Boia() { filo_.join(); }

private:
    std::thread filo_;
};

// Random work on the shipped program, which is ended at random moments, started again and asked for
// what it held. Keeps a plain model of the work and compares. What does not fit raises
// std::runtime_error.
class LavoroACaso {
public:
    enum class Genere { Nuovo, Piccolo, Grande };
    // All its files are below `cartella`, the program's own data in `cartella`\dati.
    LavoroACaso(std::uint32_t seme, Genere genere, std::wstring cartella);

    // Starts, works, is ended; a large feed while it is saved.
    void uccidi();
    // Starts for the last time, saves and leaves regularly: nothing must be left behind.
    void concludi();

    // How often each thing happened.
    [[nodiscard]] const std::map<std::string, int>& conti() const noexcept { return conti_; }
    // The last things done, for the report of a failure.
    [[nodiscard]] const std::string& fatto() const noexcept { return fatto_; }

private:
    std::uint32_t caso(std::uint32_t sotto) { return motore_() % sotto; }
    void annota(std::string cosa);
    [[nodiscard]] std::wstring parole();
    void scriviFeed();

    // Runs `azione`, after which the program is to hold the last of these states; meanwhile any.
    template <class Azione>
    void tenta(std::vector<StatoLavoro> dopo, Azione azione);
    void cambia(TabellaLavoro elementi);

    void riparti();
    void recupera();
    void apri();
    [[nodiscard]] StatoLavoro osserva(std::vector<std::wstring>& righe);
    void riconosci();
    void dopoLaFine();

    void passo();
    void passoNellEditor();
    void campo();
    void apriEditor(bool nuovo);
    void scriviNellEditor(std::optional<std::size_t> quale = {});
    void lasciaEditor(bool confermando);
    void cancella();
    void sposta();
    void ripercorri(bool annullando);
    void salva();
    void confrontaFile();
    void sbrigaAvvisi();
    void elimina(HWND pulsante);

    // Changes the text of a control in some way; `metti` puts it into a state.
    template <class Metti>
    void scrivi(HWND controllo, Metti metti);
    [[nodiscard]] std::array<std::wstring, 4> testiEditor() const;
    void armaForse(std::uint32_t unaVoltaSu, std::uint32_t entro);

    std::mt19937 motore_;
    Genere genere_;
    std::wstring cartella_;
    int parola_ = 0;
    int fileSalvati_ = 0;

    std::optional<OstrelleGuidata> programma_;
    std::optional<Boia> boia_;
    std::optional<int> editor_;
    HWND finestraEditor_ = nullptr;

    StatoLavoro stato_;
    std::vector<StatoLavoro> possibili_;
    // What undo walks through, and where it stands.
    std::vector<TabellaLavoro> storia_;
    std::size_t posto_ = 0;
    // The bytes of the file when it was last known to be whole.
    std::string ultimoFile_;
    // How long a save takes, in microseconds.
    std::uint32_t durata_ = 30000;
    bool salvando_ = false;

    std::map<std::string, int> conti_;
    std::string fatto_;
};
