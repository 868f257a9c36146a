#include "ui/controls/ancoraggi_win.h"

namespace {

SIZE misuraDi(const RECT& r) noexcept {
    return {r.right - r.left, r.bottom - r.top};
}

} // namespace

Ancoraggi::Ancoraggi(HWND dialogo, std::span<const ControlloAncorato> controlli)
    : dialogo_(dialogo) {
    RECT r{};
    GetClientRect(dialogo, &r);
    interno_ = misuraDi(r);
    GetWindowRect(dialogo, &r);
    minima_ = misuraDi(r);
    for (const ControlloAncorato& ancorato : controlli) {
        const HWND controllo = GetDlgItem(dialogo, ancorato.id);
        GetWindowRect(controllo, &r);
        MapWindowPoints(nullptr, dialogo, reinterpret_cast<POINT*>(&r), 2);
        posti_.push_back({controllo, ancorato.ancoraggio, r});
    }
}

SIZE Ancoraggi::inPiu() const noexcept {
    RECT r{};
    GetClientRect(dialogo_, &r);
    return {r.right - interno_.cx, r.bottom - interno_.cy};
}

void Ancoraggi::disponi() const {
    const auto [inPiuX, inPiuY] = inPiu();
    for (const Posto& posto : posti_) {
        RECT dove = posto.inizio;
        switch (posto.ancoraggio) {
        case Ancoraggio::SiAllargaESiAllunga:
            dove.bottom += inPiuY;
            [[fallthrough]];
        case Ancoraggio::SiAllarga:
            dove.right += inPiuX;
            break;
        case Ancoraggio::ScendeESiSposta:
            OffsetRect(&dove, inPiuX, inPiuY);
            break;
        case Ancoraggio::Scende:
            OffsetRect(&dove, 0, inPiuY);
            break;
        }
        const SIZE misura = misuraDi(dove);
        SetWindowPos(posto.controllo, nullptr, dove.left, dove.top, misura.cx, misura.cy,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    }
    // The frame around the controls lies over their parent.
    RedrawWindow(dialogo_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}
