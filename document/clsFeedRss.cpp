#include "document/clsFeedRss.h"

#include "support/testo.h"

std::wstring clsFeedRss::NormalizzaACapo(std::wstring_view testo) {
    return aCapoCrLf(testo);
}
