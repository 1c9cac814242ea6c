#include "files/record_text.h"

#include <cstdint>

namespace pilarix::files {

namespace {

bool branco(char c) { return c == ' ' || c == '\t'; }

bool temPontas(std::string_view s) { return !s.empty() && (branco(s.front()) || branco(s.back())); }

int hex(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

bool precisaEscapar(unsigned char c) { return c == ';' || c == ',' || c == '"' || c == '%' || c < 0x20 || c == 0x7F; }

} // namespace

bool isUtf8(std::string_view s)
{
    std::size_t i = 0;
    while (i < s.size()) {
        const auto b = static_cast<std::uint8_t>(s[i]);
        std::size_t n = 0;
        char32_t c = 0, min = 0;
        if (b < 0x80) {
            ++i;
            continue;
        }
        if ((b & 0xE0) == 0xC0)
            n = 1, c = b & 0x1F, min = 0x80;
        else if ((b & 0xF0) == 0xE0)
            n = 2, c = b & 0x0F, min = 0x800;
        else if ((b & 0xF8) == 0xF0)
            n = 3, c = b & 0x07, min = 0x10000;
        else
            return false;
        if (i + n >= s.size())
            return false;
        for (std::size_t k = 1; k <= n; ++k) {
            const auto t = static_cast<std::uint8_t>(s[i + k]);
            if ((t & 0xC0) != 0x80)
                return false;
            c = (c << 6) | (t & 0x3F);
        }
        if (c < min || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF))
            return false;
        i += n + 1;
    }
    return true;
}

std::optional<std::string> recordText(const std::string& value, std::string& why)
{
    if (value.find_first_of("\r\n") != std::string::npos) {
        why = "tem uma quebra de linha";
        return std::nullopt;
    }
    if (!isUtf8(value)) {
        why = "não é texto UTF-8";
        return std::nullopt;
    }
    const std::size_t primeiro = value.find_first_not_of(" \t");
    const bool abreAspas = primeiro != std::string::npos && value[primeiro] == '"';
    const bool entreAspas = value.find(',') != std::string::npos || temPontas(value) || abreAspas;
    if (!entreAspas)
        return value;
    if (value.find('"') != std::string::npos) {
        why = "tem aspas (\") junto com vírgula, aspas no início ou espaços nas pontas";
        return std::nullopt;
    }
    return "\"" + value + "\"";
}

bool needsPercent(std::string_view part)
{
    if (temPontas(part))
        return true;
    for (const char c : part)
        if (precisaEscapar(static_cast<unsigned char>(c)))
            return true;
    return false;
}

std::string percentEncoded(std::string_view part)
{
    static const char* const kHex = "0123456789ABCDEF";
    std::string out;
    for (std::size_t i = 0; i < part.size(); ++i) {
        const auto c = static_cast<unsigned char>(part[i]);
        const bool ponta = branco(part[i]) && (i == 0 || i + 1 == part.size());
        if (precisaEscapar(c) || ponta) {
            out += '%';
            out += kHex[c >> 4];
            out += kHex[c & 0xF];
        } else {
            out += part[i];
        }
    }
    return out;
}

std::optional<std::string> percentDecoded(std::string_view part)
{
    std::string out;
    for (std::size_t i = 0; i < part.size(); ++i) {
        if (part[i] != '%') {
            out += part[i];
            continue;
        }
        const int a = i + 2 < part.size() ? hex(part[i + 1]) : -1;
        const int b = i + 2 < part.size() ? hex(part[i + 2]) : -1;
        if (a < 0 || b < 0)
            return std::nullopt;
        out += static_cast<char>(a * 16 + b);
        i += 2;
    }
    return out;
}

} // namespace pilarix::files
