#pragma once

#include "support/errori/errore.h"
#include "support/windows/maniglie_win.h"

#include <windows.h>

#include <oleauto.h>
#include <unknwn.h>

#include <string>
#include <string_view>
#include <utility>

// Owner of one reference to a COM object.
template <class Interfaccia>
class ComPtr {
public:
    ComPtr() noexcept = default;
    // Adopts a reference that the caller owned.
    explicit ComPtr(Interfaccia* oggetto) noexcept : oggetto_(oggetto) {}
    ComPtr(const ComPtr& altro) noexcept : oggetto_(altro.oggetto_) {
        if (oggetto_ != nullptr) {
            oggetto_->AddRef();
        }
    }
    ComPtr(ComPtr&& altro) noexcept : oggetto_(std::exchange(altro.oggetto_, nullptr)) {}
    ComPtr& operator=(const ComPtr& altro) noexcept {
        if (this != &altro) {
            ComPtr copia(altro);
            std::swap(oggetto_, copia.oggetto_);
        }
        return *this;
    }
    ComPtr& operator=(ComPtr&& altro) noexcept {
        std::swap(oggetto_, altro.oggetto_);
        return *this;
    }
    ~ComPtr() {
        if (oggetto_ != nullptr) {
            oggetto_->Release();
        }
    }

    [[nodiscard]] Interfaccia* get() const noexcept { return oggetto_; }
    Interfaccia* operator->() const noexcept { return oggetto_; }
    explicit operator bool() const noexcept { return oggetto_ != nullptr; }

    // Empties the owner and gives the address for an out parameter.
    [[nodiscard]] Interfaccia** riempi() noexcept {
        *this = ComPtr();
        return &oggetto_;
    }

private:
    Interfaccia* oggetto_ = nullptr;
};

// Owner of a BSTR.
class Bstr {
public:
    Bstr() noexcept = default;
    // Raises error 7 when there is no memory.
    explicit Bstr(std::wstring_view testo)
        : bstr_(SysAllocStringLen(testo.data(), static_cast<UINT>(testo.size()))) {
        if (bstr_ == nullptr) {
            solleva(errori::memoriaEsaurita);
        }
    }
    Bstr(const Bstr&) = delete;
    Bstr(Bstr&& altro) noexcept : bstr_(std::exchange(altro.bstr_, nullptr)) {}
    Bstr& operator=(const Bstr&) = delete;
    Bstr& operator=(Bstr&& altro) noexcept {
        std::swap(bstr_, altro.bstr_);
        return *this;
    }
    ~Bstr() { SysFreeString(bstr_); }

    [[nodiscard]] BSTR get() const noexcept { return bstr_; }
    [[nodiscard]] std::wstring_view vista() const noexcept {
        return bstr_ == nullptr ? std::wstring_view{}
                                : std::wstring_view(bstr_, SysStringLen(bstr_));
    }
    [[nodiscard]] std::wstring testo() const { return std::wstring(vista()); }
    [[nodiscard]] BSTR* riempi() noexcept {
        SysFreeString(std::exchange(bstr_, nullptr));
        return &bstr_;
    }

private:
    BSTR bstr_ = nullptr;
};

// A VARIANT that owns what it holds.
class Variante {
public:
    Variante() noexcept { VariantInit(&variante_); }
    explicit Variante(std::wstring_view testo) : Variante() {
        variante_.bstrVal = SysAllocStringLen(testo.data(), static_cast<UINT>(testo.size()));
        if (variante_.bstrVal == nullptr) {
            solleva(errori::memoriaEsaurita);
        }
        variante_.vt = VT_BSTR;
    }
    Variante(const Variante&) = delete;
    Variante& operator=(const Variante&) = delete;
    ~Variante() { VariantClear(&variante_); }

    [[nodiscard]] const VARIANT& get() const noexcept { return variante_; }
    [[nodiscard]] VARIANT* riempi() noexcept {
        VariantClear(&variante_);
        return &variante_;
    }

private:
    VARIANT variante_;
};

// The COM apartment of a thread (single-threaded, with OLE's clipboard and drag services), for a
// scope. Raises when COM cannot start.
class Apartamento {
public:
    Apartamento();
    Apartamento(const Apartamento&) = delete;
    Apartamento& operator=(const Apartamento&) = delete;
    ~Apartamento();
};

// What a COM call allocated for its caller.
template <class T>
using MemoriaCom = Maniglia<T*, CoTaskMemFree>;
