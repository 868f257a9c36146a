#include "tests/aiuti/spia_win.h"

#include <utility>

#include <gtest/gtest.h>

namespace {

std::function<void(const CWPSTRUCT&)>& chiGuarda() {
    static std::function<void(const CWPSTRUCT&)> funzione;
    return funzione;
}

LRESULT CALLBACK procedura(int codice, WPARAM w, LPARAM l) {
    if (codice == HC_ACTION) {
        chiGuarda()(*reinterpret_cast<const CWPSTRUCT*>(l));
    }
    return CallNextHookEx(nullptr, codice, w, l);
}

} // namespace

Spia::Spia(std::function<void(const CWPSTRUCT&)> guarda)
    : gancio_(SetWindowsHookExW(WH_CALLWNDPROC, procedura, nullptr, GetCurrentThreadId())) {
    chiGuarda() = std::move(guarda);
    EXPECT_NE(gancio_, nullptr);
}

Spia::~Spia() {
    UnhookWindowsHookEx(gancio_);
    chiGuarda() = nullptr;
}
