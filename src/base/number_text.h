#pragma once
// Numbers as the program reads and writes them in its boxes and messages.

#include <cstdint>
#include <string>
#include <string_view>

namespace pilarix {

// The leading number of a text: optional blanks, sign, digits with "." as the only
// decimal point, optional exponent. Reading stops at the first character that
// cannot continue the number; no number reads 0 ("22,5" reads 22, "abc" reads 0).
// A number too large for a double raises CalcError.
double Val(std::string_view text);

// True when the whole text is one number as the boxes and files hold it: optional
// sign, digits with "." as the decimal point, optional exponent ("400", "-12.5",
// "1e3"); false for "", "12,5", "12 kN".
bool IsNumber(std::string_view text);

// The plain text form used where messages join numbers: up to 15 significant
// digits, no trailing zeros, "." as decimal point, "0." before a fraction, exponent
// form ("1E-05", "1.5E+15") only below 1E-4 or from 1E15 in magnitude.
std::string Str(double x);

// r(x) = Int(x * 100 + 0.5) / 100, the two-decimal rounding of the messages.
double r2(double x);

// The display masks "##0", "##0.0", "##0.00", "##0.000": at least one integer
// digit, that many decimals, half away from zero on the value taken to 15
// significant digits. Any mask "#...0" or "#...0.0...0" is accepted.
std::string Format(double x, std::string_view mask);

// VB's Int: the largest whole number not above x.
double Int(double x);

// Conversion to a 16-bit integer, rounding half to even; outside -32768..32767 it
// raises CalcError naming the quantity.
std::int16_t CInt16(double x, std::string_view what);

} // namespace pilarix
