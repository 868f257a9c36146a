#pragma once

#include <string>

// Keeps what a file holds before another one takes its place.
class CustodeFile {
public:
    CustodeFile() = default;
    CustodeFile(const CustodeFile&) = delete;
    CustodeFile& operator=(const CustodeFile&) = delete;

    // Called right before a file that is there is deleted; whatever comes of it, it will be. True
    // when it has gone from its place already.
    [[nodiscard]] virtual bool conserva(const std::wstring& percorso) noexcept = 0;

    // The file that went was not replaced: what was to stand there failed, and nothing does.
    virtual void nonSostituito(const std::wstring& percorso) noexcept = 0;

protected:
    ~CustodeFile() = default;
};
