// The cover question and its corrections of the cover and d'.

#include "driver/program.h"

#include "base/number_text.h"

namespace pilarix {

namespace {

constexpr const char* kItemAgregado = "Item 7.4.7.6 do Projeto de revisão da NB1 / 2001";
constexpr const char* kItemCobrimento = "Item 7.4.7 ";
constexpr const char* kItemCobrimentoBarra = "Item 7.4.7.5";

// Covers are given to the site in steps of half a centimetre, rounded up.
double multiploDeMeio(double c)
{
    const double f = c - Int(c);
    if (f > 0.5)
        return Int(c) + 1;
    if (f > 0)
        return Int(c) + 0.5;
    return c;
}

// d' as the window shows it after a correction: the whole part, a point, and the
// fraction scaled by 1e9 then divided by 1e4 (so 4.25 reads "4.25000" and the
// leading zeros of a fraction such as 4.05 are lost: "4.5000"). Kept as users know it.
std::string textoDLinha(double d)
{
    const double f = d - Int(d);
    return Str(Int(d)) + "." + Str(Int(f * 100000 * 10000 + 0.5) / 10000);
}

} // namespace

void Program::Form4Command2_Click()
{
    const std::string& item = Form4.Label3.Caption;
    if (item == kItemAgregado)
        CalccNAgr();
    if (item == kItemCobrimento)
        CalcdLinha();
    if (item == kItemCobrimentoBarra)
        CalcdLinhaFi();
}

void Program::Form4Command1_Click() { FlagErro = "s"; }

void Program::CalcdLinha()
{
    // The nominal cover grows until the inner height of the stirrup is a whole number
    // of centimetres; only the depth enters.
    AlturaInterna = Int(Altura - 2 * CobNominal);
    CobEfetivo = (Altura - AlturaInterna) / 2;
    dLinha = DiamEstribo + DiamLong / 2 + CobEfetivo;
    Form1.Text3.Text = textoDLinha(dLinha);
    Recalcula = "s";
}

void Program::CalcdLinhaFi()
{
    // NBR 6118, 7.4.7.5: the cover of a longitudinal bar is at least its diameter.
    CobEfetivo = DiamLong - DiamEstribo;
    CobNominal = CobEfetivo;
    CobEfetivo = multiploDeMeio(CobEfetivo);
    const double d = DiamEstribo + DiamLong / 2 + CobEfetivo;
    if (dLinha < d) {
        dLinha = d;
        Form1.Text3.Text = textoDLinha(dLinha);
        Recalcula = "s";
    }
}

void Program::CalccNAgr()
{
    // NBR 6118, 7.4.7.6: the largest aggregate is at most 1.2 times the nominal cover.
    CobNominal = DiamAgregado / 1.2;
    CobNominal = multiploDeMeio(CobNominal);
}

} // namespace pilarix
