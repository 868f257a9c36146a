#include "document/clsFeedRss.h"

#include "support/testi/testo.h"

std::wstring clsFeedRss::NormalizzaACapo(std::wstring_view testo) {
    return aCapoCrLf(testo);
}
