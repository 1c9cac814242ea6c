#include "files/field_reader.h"

#include "files/record_text.h"

#include <cstdint>

namespace pilarix {

namespace {

// Windows-1252 0x80..0x9F; 0 where the code page leaves the byte undefined (it is
// then kept as the C1 control of the same number, as Windows itself does).
constexpr char32_t kCp1252Alto[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
};

void appendUtf8(std::string& out, char32_t c)
{
    if (c < 0x80) {
        out.push_back(static_cast<char>(c));
    } else if (c < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (c >> 6)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else if (c < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (c >> 12)));
        out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (c >> 18)));
        out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    }
}

bool branco(char c) { return c == ' ' || c == '\t'; }

} // namespace

std::string textoUtf8(std::string_view bytes)
{
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF")
        bytes.remove_prefix(3);
    if (files::isUtf8(bytes))
        return std::string(bytes);
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 8);
    for (char ch : bytes) {
        const auto b = static_cast<std::uint8_t>(ch);
        char32_t c = b;
        if (b >= 0x80 && b <= 0x9F && kCp1252Alto[b - 0x80] != 0)
            c = kCp1252Alto[b - 0x80];
        appendUtf8(out, c);
    }
    return out;
}

std::vector<std::string> camposDelimitados(std::string_view text)
{
    std::vector<std::string> campos;
    std::size_t i = 0;
    const std::size_t n = text.size();
    auto fimDeLinha = [&](std::size_t k) { return k >= n || text[k] == '\r' || text[k] == '\n'; };
    auto pulaFimDeLinha = [&] {
        if (i < n && text[i] == '\r')
            ++i;
        if (i < n && text[i] == '\n')
            ++i;
    };

    while (i < n) {
        // One line: one or more fields.
        for (;;) {
            while (i < n && branco(text[i]))
                ++i;
            std::string campo;
            if (i < n && text[i] == '"') {
                ++i;
                while (!fimDeLinha(i) && text[i] != '"')
                    campo.push_back(text[i++]);
                if (i < n && text[i] == '"')
                    ++i;
                while (!fimDeLinha(i) && text[i] != ',')
                    ++i;
            } else {
                while (!fimDeLinha(i) && text[i] != ',')
                    campo.push_back(text[i++]);
                while (!campo.empty() && branco(campo.back()))
                    campo.pop_back();
            }
            campos.push_back(std::move(campo));
            if (i < n && text[i] == ',') {
                ++i;
                continue;
            }
            break;
        }
        pulaFimDeLinha();
    }
    return campos;
}

} // namespace pilarix
