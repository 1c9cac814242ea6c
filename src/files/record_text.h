#pragma once
// How a value is written into a record of a project file so that the reader
// (files/field_reader.h) gives back exactly the same text.
//
// A record of the 39 is a delimited field: it ends at a comma or the end of the
// line, loses its blanks at both ends, and opens a quoted field with a double
// quote. A value with a comma or blanks at its ends is therefore written in double
// quotes; a value that holds a line break, or a double quote where it would have to
// be quoted, has no form the reader gives back, and is refused.
//
// The records after the 39 ("Caso;NOME;Nd;Md", "d' digitado;VALOR") join their
// parts with ';' inside one unquoted field; a part that holds ';', ',', '"', '%',
// a control character or blanks at its ends is written with those bytes as %XX.

#include <optional>
#include <string>
#include <string_view>

namespace pilarix::files {

// The text of a record for `value`, quoted when needed; nullopt, with the reason
// in `why`, when no record reads back as `value`.
std::optional<std::string> recordText(const std::string& value, std::string& why);

// True when a part of a record after the 39 must be written %-encoded.
bool needsPercent(std::string_view part);
std::string percentEncoded(std::string_view part);
// nullopt for a '%' not followed by two hexadecimal digits.
std::optional<std::string> percentDecoded(std::string_view part);

// True for text in strict UTF-8, the only encoding a project file is written in.
bool isUtf8(std::string_view text);

} // namespace pilarix::files
