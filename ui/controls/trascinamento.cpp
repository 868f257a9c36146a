#include "ui/controls/trascinamento.h"

#include <cstdlib>

void Trascinamento::premi(int elemento) noexcept {
    attivo_ = true;
    trascinato_ = elemento;
    segui(elemento);
}

void Trascinamento::segui(int elemento) noexcept {
    if (attivo_) {
        puntatore_ = elemento < 0 ? Puntatore::Vietato : Puntatore::Trascina;
    }
}

Trascinamento::Esito Trascinamento::rilascia(int elemento) noexcept {
    segui(elemento);
    Esito esito;
    if (trascinato_ >= 0 && puntatore_ == Puntatore::Trascina) {
        esito = {.sposta = elemento != trascinato_, .da = trascinato_, .a = elemento};
    }
    abbandona();
    return esito;
}

void Trascinamento::abbandona() noexcept {
    *this = Trascinamento();
}

bool iniziaTrascinamento(const AreaRighe& area, int x, int y) noexcept {
    return x >= area.margineX && x < area.larghezza - area.margineX && y >= area.cima &&
           y < area.fondo - area.margineY;
}

int passoScorrimento(const AreaRighe& area, int y, int yPressione) noexcept {
    if (std::abs(y - yPressione) <= area.margineY) {
        return 0;
    }
    if (y < area.cima + area.margineY) {
        return -1;
    }
    return y >= area.fondo - area.margineY ? 1 : 0;
}
