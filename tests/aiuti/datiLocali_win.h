#pragma once

#include <string>

// The user's folder of local data, for programs that start during the life of this object: one of a
// test's own.
class DatiLocaliProva {
public:
    explicit DatiLocaliProva(const std::wstring& cartella);
    DatiLocaliProva(const DatiLocaliProva&) = delete;
    DatiLocaliProva& operator=(const DatiLocaliProva&) = delete;
    ~DatiLocaliProva();

private:
    std::wstring prima_;
};
