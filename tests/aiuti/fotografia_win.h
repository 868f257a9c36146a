#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <vector>

// What a folder or a part of the registry holds, at one moment: names with their contents. Names of
// folders and keys end with "\".
using Fotografia = std::map<std::wstring, std::string>;

// All below a folder.
[[nodiscard]] Fotografia fotografaCartella(const std::wstring& cartella);
// All below a key.
[[nodiscard]] Fotografia fotografaRegistro(HKEY radice, const std::wstring& chiave);

// What has come ("+ name") or changed ("* name"), then what has gone ("- name"), a line each, in
// UTF-8; nothing of what begins with one of the `escluse`.
[[nodiscard]] std::string cambiamenti(const Fotografia& prima, const Fotografia& dopo,
                                      const std::vector<std::wstring>& escluse = {});
