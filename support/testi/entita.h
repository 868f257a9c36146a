#pragma once

#include <string_view>

// Whether every general entity that the text of a well-formed XML document refers to, in its
// content or through other entities, has its replacement in the document's own DOCTYPE. One that is
// declared nowhere, in an external DTD or as an external entity has none.
[[nodiscard]] bool entitaNote(std::wstring_view documento);
