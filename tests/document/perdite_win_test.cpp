#include "document/perdite.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::wstring avviso(std::vector<Perdita> perdite) {
    return avvisoPerdite(perdite);
}

TEST(AvvisoPerdite, NominaLeTrePiuFrequentiEQuanteAltre) {
    EXPECT_EQ(avviso({}), L"");
    EXPECT_EQ(avviso({{"enclosure", 82}}),
              L"Salvando, di questo feed non restano: enclosure (82).");
    EXPECT_EQ(avviso({{"enclosure", 82}, {"category", 45}, {"itunes:author", 12}}),
              L"Salvando, di questo feed non restano: enclosure (82), category (45), "
              L"itunes:author (12).");
    EXPECT_EQ(avviso({{"a", 4}, {"b", 3}, {"c", 2}, {"d", 1}}),
              L"Salvando, di questo feed non restano: a (4), b (3), c (2) e un altro.");
    EXPECT_EQ(avviso({{"a", 4}, {"b", 3}, {"c", 2}, {"d", 1}, {"e", 1}, {"f", 1}}),
              L"Salvando, di questo feed non restano: a (4), b (3), c (2) e altri 3.");
    EXPECT_EQ(avviso({{"\xC3\xA8", 1}}), L"Salvando, di questo feed non restano: \u00E8 (1).");
}

} // namespace
