#pragma once

#include <string>

class CustodeFile;
class DocumentoXml;

// Deletes the file that exists at `percorso`, or sees that one can be made there, then saves the
// finished document. Raises the failure of any; error 61 when the document saved is not whole.
void sostituisciFile(const DocumentoXml& documento, const std::wstring& percorso,
                     CustodeFile* custode);

// Deletes a file that may be kept elsewhere first. Raises the failure to delete it.
void cancellaConservando(const std::wstring& percorso, CustodeFile* custode);

// Raises error 61 when the file does not end in "</rss>", white space aside: on a full disk the
// DOM reports success and leaves a cut file.
void verificaIntero(const std::wstring& percorso);
