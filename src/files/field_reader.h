#pragma once
// Reading the text of a project file: the bytes as the program's own UTF-8, and
// the delimited fields of the records, read the way sequential files are read
// field by field.

#include <string>
#include <string_view>
#include <vector>

namespace pilarix {

// The text of a file as UTF-8. A byte-order mark is dropped. Bytes that are not
// valid UTF-8 are taken as Windows-1252, the code page in which older Windows tools
// wrote these files ("Aço CA-50A", "Padrão").
std::string textoUtf8(std::string_view bytes);

// The delimited fields of a text, in order. Lines end at CR LF, LF or CR. Leading
// blanks of a field are skipped; a field ends at a comma or at the end of its line;
// a field that opens with a double quote runs to the closing quote and may hold
// commas (anything between the closing quote and the next comma is dropped); an
// unquoted field loses its trailing blanks. An empty line is one empty field.
std::vector<std::string> camposDelimitados(std::string_view text);

} // namespace pilarix
