#pragma once

#include "document/custodeLavoro_win.h"
#include "tests/aiuti/cartella_win.h"
#include "tests/aiuti/orologio_fermo.h"

#include <optional>
#include <string>

// Texts of windows as a test sets them.
class TestiDiProva final : public TestiInScrittura {
public:
    [[nodiscard]] TestiCampi canale() const override { return campi; }
    [[nodiscard]] std::optional<TestiCampi> editor() const override { return aperto; }

    TestiCampi campi{L"titolo", L"link"};
    std::optional<TestiCampi> aperto;
};

// A custodian with a folder of its own.
struct CustodeProva {
    explicit CustodeProva(Documento& documento)
        : custode(documento, testi, orologio, diari, [this] { ++guasti; }) {}

    CartellaProva cartella;
    std::wstring diari = cartella.file(L"dati\\diario");
    TestiDiProva testi;
    OrologioFermo orologio{DataOra::daParti(2026, 11, 21, 13, 5, 0)};
    int guasti = 0;
    CustodeLavoro custode;
};
