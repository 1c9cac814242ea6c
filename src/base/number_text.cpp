#include "base/number_text.h"

#include "base/calc_error.h"

#include <charconv>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace pilarix {

namespace {
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

// Decimal digits and exponent of |x| rounded to 15 significant digits:
// |x| = 0.d1d2...d15 * 10^(exp10 + 1), i.e. d1 is the digit of 10^exp10.
struct Digits {
    std::string d; // exactly 15 digits
    int exp10 = 0;
};

Digits digits15(double ax)
{
    // d.dddddddddddddde±XX, correctly rounded as printf's "%.14e" is.
    char buf[64];
    const auto end = std::to_chars(buf, buf + sizeof buf, ax, std::chars_format::scientific, 14).ptr;
    Digits out;
    out.d.reserve(15);
    const char* p = buf;
    for (; p != end && *p != 'e'; ++p)
        if (isDigit(*p))
            out.d.push_back(*p);
    out.exp10 = (p != end) ? std::atoi(std::string(p + 1, static_cast<const char*>(end)).c_str()) : 0;
    return out;
}
} // namespace

double Val(std::string_view text)
{
    std::size_t i = 0, n = text.size();
    while (i < n && isBlank(text[i]))
        ++i;
    std::string num;
    if (i < n && (text[i] == '+' || text[i] == '-'))
        num.push_back(text[i++]);
    std::size_t mantissaDigits = 0;
    while (i < n && isDigit(text[i])) {
        num.push_back(text[i++]);
        ++mantissaDigits;
    }
    if (i < n && text[i] == '.') {
        num.push_back(text[i++]);
        while (i < n && isDigit(text[i])) {
            num.push_back(text[i++]);
            ++mantissaDigits;
        }
    }
    if (mantissaDigits == 0)
        return 0.0;
    if (i < n && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t j = i + 1;
        std::string exp = "e";
        if (j < n && (text[j] == '+' || text[j] == '-'))
            exp.push_back(text[j++]);
        std::size_t expDigits = 0;
        while (j < n && isDigit(text[j])) {
            exp.push_back(text[j++]);
            ++expDigits;
        }
        if (expDigits > 0)
            num += exp;
    }
    errno = 0;
    const double v = std::strtod(num.c_str(), nullptr);
    if (std::isinf(v) || (errno == ERANGE && std::fabs(v) > 1.0))
        throw CalcError("Número grande demais para ser lido: \"" + std::string(text) + "\".");
    return v;
}

std::string Str(double x)
{
    if (std::isnan(x))
        return "NaN";
    if (std::isinf(x))
        return x > 0 ? "Infinito" : "-Infinito";
    if (x == 0)
        return "0";
    const Digits g = digits15(std::fabs(x));
    std::string d = g.d;
    while (d.size() > 1 && d.back() == '0')
        d.pop_back();
    std::string out = x < 0 ? "-" : "";
    const int e = g.exp10;
    if (e < -4 || e >= 15) {
        out += d.substr(0, 1);
        if (d.size() > 1)
            out += "." + d.substr(1);
        char ebuf[16];
        std::snprintf(ebuf, sizeof ebuf, "E%c%02d", e < 0 ? '-' : '+', e < 0 ? -e : e);
        return out + ebuf;
    }
    if (e < 0)
        return out + "0." + std::string(static_cast<std::size_t>(-e - 1), '0') + d;
    const auto intLen = static_cast<std::size_t>(e + 1);
    if (d.size() <= intLen)
        return out + d + std::string(intLen - d.size(), '0');
    return out + d.substr(0, intLen) + "." + d.substr(intLen);
}

bool IsNumber(std::string_view s)
{
    std::size_t i = 0;
    if (i < s.size() && (s[i] == '-' || s[i] == '+'))
        ++i;
    bool digits = false;
    while (i < s.size() && isDigit(s[i]))
        ++i, digits = true;
    if (i < s.size() && s[i] == '.')
        for (++i; i < s.size() && isDigit(s[i]);)
            ++i, digits = true;
    if (digits && i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < s.size() && (s[j] == '-' || s[j] == '+'))
            ++j;
        const std::size_t k = j;
        while (j < s.size() && isDigit(s[j]))
            ++j;
        if (j > k)
            i = j;
    }
    return digits && i == s.size();
}

double Int(double x) { return std::floor(x); }

double r2(double x) { return Int(x * 100 + 0.5) / 100; }

std::string Format(double x, std::string_view mask)
{
    const auto dot = mask.find('.');
    const std::size_t decimals = dot == std::string_view::npos ? 0 : mask.size() - dot - 1;
    if (std::isnan(x) || std::isinf(x))
        return Str(x);

    // Work on the decimal digits of the value to 15 significant digits, so that
    // 2.675 (stored as 2.67499999...) shows "2.68" as the engineer typed it.
    std::string intStr = "0", fracStr;
    if (x != 0) {
        const Digits g = digits15(std::fabs(x));
        const int pointPos = g.exp10 + 1; // digits before the decimal point
        if (pointPos <= 0) {
            fracStr = std::string(static_cast<std::size_t>(-pointPos), '0') + g.d;
        } else if (pointPos >= 15) {
            intStr = g.d + std::string(static_cast<std::size_t>(pointPos - 15), '0');
        } else {
            intStr = g.d.substr(0, static_cast<std::size_t>(pointPos));
            fracStr = g.d.substr(static_cast<std::size_t>(pointPos));
        }
    }
    if (fracStr.size() < decimals + 1)
        fracStr.resize(decimals + 1, '0');
    std::string kept = intStr + fracStr.substr(0, decimals);
    if (fracStr[decimals] >= '5') { // half away from zero
        std::size_t k = kept.size();
        while (k > 0 && kept[k - 1] == '9')
            kept[--k] = '0';
        if (k == 0)
            kept.insert(kept.begin(), '1');
        else
            ++kept[k - 1];
    }
    std::string whole = kept.substr(0, kept.size() - decimals);
    const std::string frac = kept.substr(kept.size() - decimals);
    const auto nz = whole.find_first_not_of('0');
    whole = nz == std::string::npos ? "0" : whole.substr(nz);
    // a value that shows as zero shows without a sign: "0.00", never "-0.00"
    const bool negative = x < 0 && (whole != "0" || frac.find_first_not_of('0') != std::string::npos);
    std::string out = negative ? "-" : "";
    out += whole;
    if (decimals > 0)
        out += "." + frac;
    return out;
}

std::int16_t CInt16(double x, std::string_view what)
{
    if (std::isnan(x) || x < -32768.5 || x >= 32767.5)
        throw CalcError("Estouro de capacidade: " + std::string(what) + " = " + Str(x)
                        + " não cabe num inteiro de 16 bits.");
    const double r = std::nearbyint(x); // the default rounding mode: half to even
    if (r < -32768 || r > 32767)
        throw CalcError("Estouro de capacidade: " + std::string(what) + " = " + Str(x)
                        + " não cabe num inteiro de 16 bits.");
    return static_cast<std::int16_t>(r);
}

} // namespace pilarix
