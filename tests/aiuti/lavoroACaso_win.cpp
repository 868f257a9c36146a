#include "tests/aiuti/lavoroACaso_win.h"

#include "document/copie_win.h"
#include "document/diario_win.h"
#include "res/risorse.h"
#include "support/testi/testo.h"
#include "support/windows/file_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/feedDiProva_win.h"
#include "tests/aiuti/lavoroACaso_parti_win.h"
#include "ui/main/comandi.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <ranges>
#include <stdexcept>
#include <utility>

namespace {

using std::chrono::microseconds;
using std::chrono::steady_clock;

constexpr const wchar_t* recenti = L"Software\\VB and VBA Program Settings\\Ostrelle\\url";

std::wstring primoRecente() {
    std::array<wchar_t, 1024> valore{};
    DWORD byte = sizeof valore;
    const LSTATUS esito = RegGetValueW(HKEY_CURRENT_USER, recenti, L"murl1", RRF_RT_REG_SZ, nullptr,
                                       valore.data(), &byte);
    return esito == ERROR_SUCCESS ? valore.data() : L"";
}

std::wstring riga(const VoceLavoro& voce) {
    return normale(std::wstring(rifila(voce.titolo)) + L'\n' +
                   std::wstring(rifila(voce.descrizione)));
}

std::string tutto(const std::wstring& percorso) {
    std::ifstream ingresso(std::filesystem::path(percorso), std::ios::binary);
    return {std::istreambuf_iterator<char>(ingresso), {}};
}

bool intero(std::string_view feed) {
    const auto fine = feed.find_last_not_of(" \t\r\n");
    return fine != std::string_view::npos && feed.substr(0, fine + 1).ends_with("</rss>");
}

// The newest of a file's copies, and whether any holds these bytes.
struct Copie {
    std::wstring ultima;
    bool trovata = false;
};
Copie copieCon(const std::wstring& cartella, std::string_view byte) {
    Copie copie;
    std::filesystem::file_time_type quando{};
    std::error_code errore;
    for (const auto& voce : std::filesystem::directory_iterator(cartella, errore)) {
        const std::wstring nome = voce.path().wstring();
        copie.trovata = copie.trovata || tutto(nome) == byte;
        if (copie.ultima.empty() || voce.last_write_time() >= quando) {
            quando = voce.last_write_time();
            copie.ultima = nome;
        }
    }
    return copie;
}

} // namespace

Boia::Boia(HANDLE processo, std::uint32_t microsecondi, const std::wstring& dopoIlFile)
    : filo_([=] {
          constexpr microseconds largo(2000);
          constexpr std::chrono::seconds massimo(5);
          const auto ora = steady_clock::now;
          if (!dopoIlFile.empty()) {
              const auto fine = ora() + massimo;
              while (GetFileAttributesW(dopoIlFile.c_str()) != INVALID_FILE_ATTRIBUTES &&
                     ora() < fine) {
              }
          }
          const auto quando = ora() + microseconds(microsecondi);
          while (ora() < quando) {
              if (quando - ora() > largo) {
                  Sleep(1);
              }
          }
          TerminateProcess(processo, 1);
      }) {}

LavoroACaso::LavoroACaso(std::uint32_t seme, Genere genere, std::wstring cartella)
    : motore_(seme), genere_(genere), cartella_(std::move(cartella)) {
    if (genere_ != Genere::Nuovo) {
        scriviFeed();
    }
    possibili_ = {stato_};
}

void LavoroACaso::annota(std::string cosa) {
    constexpr std::size_t ricordato = 600;
    fatto_ += std::move(cosa) + "; ";
    if (fatto_.size() > ricordato) {
        fatto_.erase(0, fatto_.size() - ricordato);
    }
}

void LavoroACaso::scriviFeed() {
    const std::uint32_t quanti = genere_ == Genere::Grande ? 2000 + caso(2000) : 3 + caso(60);
    FeedDiProva feed;
    std::vector<ElementoCondiviso> elementi;
    feed.title = stato_.canale[0] = L"Notizie";
    for (std::uint32_t i = 0; i < quanti; ++i) {
        auto voce = std::make_shared<VoceLavoro>();
        voce->titolo = L"Elemento " + std::to_wstring(i);
        voce->link = L"https://e.example/" + std::to_wstring(i);
        voce->descrizione = parole();
        voce->data = L"Tue, 15 Nov 2005 10:00:00 +0100";
        voce->guid = L"guid " + std::to_wstring(i);
        elementi.push_back(creaElemento(
            {voce->titolo, voce->link, voce->descrizione, voce->autore, *voce->data, *voce->guid}));
        stato_.elementi.push_back(std::move(voce));
    }
    feed.items.riempi(std::move(elementi));
    stato_.percorso = minuscolo(cartella_ + L"\\notizie.xml");
    feed.scrivi(stato_.percorso);
    ultimoFile_ = tutto(stato_.percorso);
    RegSetKeyValueW(HKEY_CURRENT_USER, recenti, L"murl1", REG_SZ, stato_.percorso.c_str(),
                    static_cast<DWORD>((stato_.percorso.size() + 1) * sizeof(wchar_t)));
}

void LavoroACaso::uccidi() {
    ++conti_["uccisioni"];
    try {
        riparti();
        if (genere_ == Genere::Grande) {
            if (editor_) {
                lasciaEditor(caso(2) == 0);
            }
            for (std::uint32_t i = caso(4); i > 0 && !editor_; --i) {
                passo();
            }
            if (editor_) {
                lasciaEditor(false);
            }
            ++conti_["mirate al salvataggio"];
            if (!boia_) {
                // Most of a save is before the file goes and comes anew.
                const bool alVuoto = caso(2) == 0;
                boia_.emplace(programma_->processo(), caso(alVuoto ? 12000 : durata_),
                              alVuoto ? stato_.percorso : L"");
            }
            salva();
        } else {
            for (std::uint32_t i = caso(12); i > 0; --i) {
                passo();
            }
            if (!boia_) {
                boia_.emplace(programma_->processo(), caso(80000));
            }
        }
        for (;;) {
            passo();
        }
    } catch (const Terminata&) {
        dopoLaFine();
    }
}

void LavoroACaso::dopoLaFine() {
    annota("ENDED");
    if (std::exchange(salvando_, false)) {
        ++conti_["durante un salvataggio"];
    }
    if (programma_) {
        programma_->attendiFine();
    }
    boia_.reset();
    programma_.reset();
    editor_.reset();

    const std::wstring& percorso = possibili_.back().percorso;
    if (percorso.empty()) {
        return;
    }
    const std::string ora = tutto(percorso);
    if (!fileEsiste(percorso)) {
        ++conti_["file assente"];
    } else if (!intero(ora)) {
        ++conti_["file tronco"];
    }
    const CopieFile copie(cartella_ + L"\\dati\\Ostrelle\\copie");
    if (ora != ultimoFile_ && !ultimoFile_.empty() &&
        !copieCon(copie.cartella(percorso), ultimoFile_).trovata) {
        throw std::runtime_error("the old file is neither at its place nor among the copies");
    }
    if (intero(ora)) {
        ultimoFile_ = ora;
    }
}

void LavoroACaso::armaForse(std::uint32_t unaVoltaSu, std::uint32_t entro) {
    if (!boia_ && caso(unaVoltaSu) == 0) {
        ++conti_["mirate all'avvio o alla ripresa"];
        boia_.emplace(programma_->processo(), caso(entro));
    }
}

void LavoroACaso::riparti() {
    annota("START");
    const bool subito = genere_ != Genere::Grande && caso(15) == 0;
    programma_.emplace([&](HANDLE processo) {
        if (subito) {
            ++conti_["mirate all'avvio o alla ripresa"];
            boia_.emplace(processo, caso(400000));
        }
    });
    recupera();
}

void LavoroACaso::recupera() {
    for (;;) {
        if (const HWND si = programma_->pulsanteAvviso(L"Recupera")) {
            armaForse(genere_ == Genere::Grande ? 30 : 8, 60000);
            OstrelleGuidata::premi(si);
            programma_->calma();
            annota("recovered from the diary");
            ++conti_["riprese dal diario"];
            break;
        }
        const HWND via = programma_->pulsanteAvviso(L"Elimina");
        if (via == nullptr) {
            apri();
            break;
        }
        ++conti_["diari senza base"];
        elimina(via);
    }
    riconosci();
}

void LavoroACaso::apri() {
    const std::wstring percorso = primoRecente();
    if (percorso.empty()) {
        return;
    }
    if (!intero(tutto(percorso))) {
        // As a person would, by the guide.
        const CopieFile copie(cartella_ + L"\\dati\\Ostrelle\\copie");
        const std::wstring copia = copieCon(copie.cartella(percorso), ultimoFile_).ultima;
        annota("file taken from its copy");
        ++conti_["riprese da una copia"];
        CopyFileW(copia.c_str(), percorso.c_str(), FALSE);
    } else {
        ++conti_["riaperture del file"];
    }
    annota("file opened");
    programma_->comando(mnrec + 1);
    programma_->calma();
}

StatoLavoro LavoroACaso::osserva(std::vector<std::wstring>& righe) {
    // A dialog shows when its queue first falls empty.
    for (int volta = 0; volta < 3 && programma_->dialogo() == nullptr && possibili_.back().bozza;
         ++volta) {
        programma_->calma();
    }
    StatoLavoro visto;
    visto.percorso = programma_->titolo();
    for (std::size_t i = 0; i < campiCanale.size(); ++i) {
        visto.canale[i] = programma_->testo(programma_->campo(campiCanale[i]));
    }
    righe = programma_->righe();
    finestraEditor_ = programma_->dialogo();
    if (finestraEditor_ != nullptr) {
        if (GetDlgItem(finestraEditor_, IDC_EDITTITOLO) == nullptr) {
            throw std::runtime_error("a box: " + scatola(*programma_, finestraEditor_));
        }
        visto.bozza = StatoLavoro::Bozza{};
        visto.bozza->testi = testiEditor();
    }
    return visto;
}

void LavoroACaso::riconosci() {
    std::vector<std::wstring> righe;
    const StatoLavoro visto = osserva(righe);
    std::string perche;
    for (const auto& questo : std::views::reverse(possibili_)) {
        std::string diverso;
        const auto confronta = [&](const std::string& che, std::wstring_view atteso,
                                   std::wstring_view trovato) {
            if (diverso.empty() && normale(atteso) != normale(trovato)) {
                diverso =
                    che + ": \"" + inUtf8(trovato) + "\" instead of \"" + inUtf8(atteso) + '"';
            }
        };
        confronta("caption",
                  minuscolo(L"Ostrelle  [" +
                            (questo.percorso.empty() ? L"Nuovo Documento" : questo.percorso) +
                            L"]"),
                  minuscolo(visto.percorso));
        for (std::size_t i = 0; i < campiCanale.size(); ++i) {
            confronta("field " + std::to_string(i), questo.canale[i], visto.canale[i]);
        }
        confronta("items", std::to_wstring(questo.elementi.size()), std::to_wstring(righe.size()));
        for (std::size_t i = 0; i < righe.size() && diverso.empty(); ++i) {
            confronta("item " + std::to_string(i), riga(*questo.elementi[i]), righe[i]);
        }
        confronta("editor", questo.bozza ? L"open" : L"", visto.bozza ? L"open" : L"");
        for (std::size_t i = 0; i < 4 && questo.bozza && visto.bozza; ++i) {
            confronta("draft " + std::to_string(i), questo.bozza->testi[i], visto.bozza->testi[i]);
        }
        if (diverso.empty()) {
            if (questo.bozza) {
                editor_ = questo.bozza->indice;
            }
            stato_ = StatoLavoro(questo);
            possibili_ = {stato_};
            storia_ = {stato_.elementi};
            posto_ = 0;
            return;
        }
        perche += diverso + "\n";
    }
    throw std::runtime_error("LOST. Of each state that would be right:\n" + perche);
}

void LavoroACaso::concludi() {
    try {
        riparti();
        boia_.reset();
        if (editor_) {
            lasciaEditor(false);
        }
        sbrigaAvvisi();
        if (stato_.elementi.empty()) {
            apriEditor(true);
            lasciaEditor(true);
        }
        salva();
        confrontaFile();
        programma_->comando(mnChiudi);
        programma_->attendiFine();
    } catch (const Terminata&) {
        // The last start was to be ended: once more.
        dopoLaFine();
        concludi();
        return;
    }
    programma_.reset();
    if (!diariIn(cartella_ + L"\\dati\\Ostrelle\\diario").empty()) {
        throw std::runtime_error("a diary was left behind by a regular end");
    }
}

void LavoroACaso::confrontaFile() {
    FeedDiProva feed;
    feed.leggi(stato_.percorso);
    const auto confronta = [](const std::string& che, std::wstring_view atteso,
                              std::wstring_view trovato) {
        if (normale(atteso) != normale(trovato)) {
            throw std::runtime_error("LOST in the file, " + che + ": \"" + inUtf8(trovato) +
                                     "\" instead of \"" + inUtf8(atteso) + '"');
        }
    };
    const auto& c = stato_.canale;
    const std::array trovati{feed.title,          feed.link,         feed.description,
                             feed.language,       feed.copyright,    feed.webMaster,
                             feed.image.sTitle(), feed.image.sUrl(), feed.image.sLink()};
    for (std::size_t i = 0; i < trovati.size(); ++i) {
        confronta("field " + std::to_string(i), c[i], trovati[i]);
    }
    confronta("items", std::to_wstring(stato_.elementi.size()),
              std::to_wstring(feed.items.conteggio()));
    for (std::size_t i = 0; i < stato_.elementi.size(); ++i) {
        const VoceLavoro& voce = *stato_.elementi[i];
        const Elemento& letto = *feed.items.elemento(static_cast<int>(i));
        const std::string che = "item " + std::to_string(i);
        confronta(che, voce.titolo, letto[CampoElemento::Titolo]);
        confronta(che, voce.link, letto[CampoElemento::Link]);
        confronta(che, voce.descrizione, letto[CampoElemento::Descrizione]);
        confronta(che, voce.autore, letto[CampoElemento::Autore]);
        for (auto& [nostra, sua] : {std::pair{&voce.data, letto[CampoElemento::Data]},
                                    std::pair{&voce.guid, letto[CampoElemento::Guid]}}) {
            if (!*nostra) {
                *nostra = std::wstring(sua);
            }
            confronta(che, **nostra, sua);
        }
    }
    ++conti_["file confrontati"];
}
