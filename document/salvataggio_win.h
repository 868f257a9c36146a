#pragma once

#include <functional>
#include <string>

class CustodeFile;
class DocumentoXml;

// Deletes the file that exists at `percorso`, or sees that one can be made there, then saves the
// finished document. Raises the failure of any, and nothing stands there then; error 61 when the
// document saved is not whole.
void sostituisciFile(const DocumentoXml& documento, const std::wstring& percorso,
                     CustodeFile* custode);

// Deletes the file at `percorso`, which may be kept elsewhere first, and has another one written.
// Raises the failure to delete it, and what `scrivi` raises.
void sostituisciFile(const std::wstring& percorso, CustodeFile* custode,
                     const std::function<void()>& scrivi);

// Raises error 61 when the file does not end in "</rss>", white space aside: on a full disk the
// DOM reports success and leaves a cut file.
void verificaIntero(const std::wstring& percorso);
