// Reading the fields of a values file, and the text encodings it may come in.

#include "files/field_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace pilarix;

TEST(FieldReader, SplitsRecordsAsDelimitedFields)
{
    struct Row {
        const char* name;
        std::string text;
        std::vector<std::string> fields;
    };
    const std::vector<Row> rows{
        {"one record a line, CR LF", "300\r\n20\r\n", {"300", "20"}},
        {"LF only", "300\n20\n", {"300", "20"}},
        {"CR only", "300\r20\r", {"300", "20"}},
        {"last line without an end", "300\r\n20", {"300", "20"}},
        {"an empty line is an empty field", "300\r\n\r\n20\r\n", {"300", "", "20"}},
        {"leading blanks skipped", " 1\r\n\t 2\r\n", {"1", "2"}},
        {"trailing blanks of an unquoted field trimmed", "5 mm  \r\n", {"5 mm"}},
        {"blanks inside a field kept", "&45     ou semi-circ.\r\n", {"&45     ou semi-circ."}},
        {"an unquoted comma splits", "300,5\r\n20\r\n", {"300", "5", "20"}},
        {"a quoted field holds commas", "\"300,5\"\r\n20\r\n", {"300,5", "20"}},
        {"quoted field keeps its blanks", "\"  a b  \"\r\n", {"  a b  "}},
        {"text after the closing quote dropped", "\"ab\"cd,ef\r\n", {"ab", "ef"}},
        {"unclosed quote ends at the line end", "\"ab,c\r\nx\r\n", {"ab,c", "x"}},
        {"quote inside an unquoted field kept", "10 mm (3/8'')\r\n", {"10 mm (3/8'')"}},
        {"a comma before the line end leaves an empty field", "a,\r\nb\r\n", {"a", "", "b"}},
        {"nothing at all", "", {}},
    };
    for (const auto& r : rows)
        EXPECT_EQ(camposDelimitados(r.text), r.fields) << r.name;
}

TEST(FieldReader, TakesTextAsUtf8OrAsWindows1252)
{
    struct Row {
        const char* name;
        std::string bytes;
        std::string text;
    };
    const std::vector<Row> rows{
        {"plain ASCII", "KN.cm", "KN.cm"},
        {"UTF-8 kept", "A\xC3\xA7o CA-50A", "Aço CA-50A"},
        {"UTF-8 byte-order mark dropped", "\xEF\xBB\xBF" "300", "300"},
        {"Latin-1 c cedilla", "A\xE7o CA-50A", "Aço CA-50A"},
        {"Latin-1 a tilde", "Padr\xE3o", "Padrão"},
        {"Windows-1252 euro sign", "\x80", "€"},
        {"Windows-1252 quotes", "\x93x\x94", "“x”"},
        {"a truncated UTF-8 sequence is not UTF-8", "A\xC3", "AÃ"},
        {"an overlong form is not UTF-8", "\xC0\xAF", "À¯"},
    };
    for (const auto& r : rows)
        EXPECT_EQ(textoUtf8(r.bytes), r.text) << r.name;
}
