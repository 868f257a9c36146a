#pragma once

#include <string>
#include <vector>

// Files on their way into the system's own lists of recent documents. They get there when nothing
// else is left to do: the shell takes longer over one than a small feed takes to open.
class RecentiSistema {
public:
    RecentiSistema() noexcept = default;
    RecentiSistema(const RecentiSistema&) = delete;
    RecentiSistema& operator=(const RecentiSistema&) = delete;
    // What is still on its way gets there.
    ~RecentiSistema() { codaVuota(); }

    void ricorda(const std::wstring& percorso) { inAttesa_.push_back(percorso); }
    void codaVuota() noexcept;

private:
    std::vector<std::wstring> inAttesa_;
};
