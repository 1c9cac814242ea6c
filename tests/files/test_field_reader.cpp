// Reading the fields of a values file, and the encodings it may come in.

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
        {"CR LF", "300\r\n20\r\n", {"300", "20"}},
        {"LF only, last line unended", "300\n20", {"300", "20"}},
        {"empty line is an empty field", "300\r\n\r\n20\r\n", {"300", "", "20"}},
        {"blanks around trimmed, inside kept", " \t&45     ou semi-circ.  \r\n", {"&45     ou semi-circ."}},
        {"unquoted comma splits", "300,5\r\n", {"300", "5"}},
        {"quoted field holds commas and blanks", "\" 1,5 \"\r\n20\r\n", {" 1,5 ", "20"}},
        {"text after the closing quote dropped", "\"ab\"cd,ef\r\n", {"ab", "ef"}},
        {"unclosed quote ends at the line end", "\"ab,c\r\nx\r\n", {"ab,c", "x"}},
        {"quotes inside an unquoted field kept", "10 mm (3/8'')\r\n", {"10 mm (3/8'')"}},
    };
    for (const auto& r : rows)
        EXPECT_EQ(camposDelimitados(r.text), r.fields) << r.name;
}

TEST(FieldReader, TakesTextAsUtf8OrAsWindows1252)
{
    const std::vector<std::pair<std::string, std::string>> rows{
        {"A\xC3\xA7o CA-50A", "Aço CA-50A"},        // UTF-8 kept
        {"\xEF\xBB\xBF" "300", "300"},              // byte-order mark dropped
        {"Padr\xE3o A\xE7o", "Padrão Aço"},         // Latin-1
        {"\x80\x93x\x94", "€“x”"},                  // Windows-1252 only
        {"A\xC3", "AÃ"},                            // truncated sequence is not UTF-8
        {"\xC0\xAF", "À¯"},                         // overlong form is not UTF-8
    };
    for (const auto& [bytes, text] : rows)
        EXPECT_EQ(textoUtf8(bytes), text) << text;
}
