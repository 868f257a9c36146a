#include "support/utilita/koUtilitaNumeri.h"

#include <windows.h>

#include <string>

namespace {

// The second character of a number as the user's format shows it, where it is a known separator.
std::uint8_t secondoCarattere(const char* numero) {
    std::string buffer(10, ' ');
    const int scritti = GetNumberFormatA(GetUserDefaultLCID(), 0, numero, nullptr, buffer.data(),
                                         static_cast<int>(buffer.size()));
    const bool noto = scritti > 0 && (buffer[1] == ',' || buffer[1] == '.');
    return noto ? static_cast<std::uint8_t>(buffer[1]) : std::uint8_t{0};
}

} // namespace

std::uint8_t koUtilitaNumeri::GetSeparatoreDecimale() {
    return secondoCarattere("1.2");
}

std::uint8_t koUtilitaNumeri::GetSeparatoreMigliaia() {
    return secondoCarattere("1000");
}
