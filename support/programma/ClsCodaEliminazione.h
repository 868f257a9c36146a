#pragma once

#include <string>
#include <vector>

// The temporary files to delete when the program ends. One object, owned by a scope of the start:
// its destructor is what deletes. A stack: the last path recorded goes first.
class ClsCodaEliminazione {
public:
    ClsCodaEliminazione() = default;
    ClsCodaEliminazione(const ClsCodaEliminazione&) = delete;
    ClsCodaEliminazione& operator=(const ClsCodaEliminazione&) = delete;
    ~ClsCodaEliminazione() { CancellaFile(); }

    // Records a path, also one that is there already. Raises error 6 past 32767 and leaves the list
    // as it was.
    void Push(std::wstring file);

    [[nodiscard]] bool filePresenti() const noexcept { return !file_.empty(); }

    // The path recorded last, taken off the list; empty when there is none.
    [[nodiscard]] std::wstring Pop() noexcept;

    // Tries once to delete each file and empties the list. What cannot be deleted stays on disk.
    void CancellaFile() noexcept;

private:
    std::vector<std::wstring> file_;
};
