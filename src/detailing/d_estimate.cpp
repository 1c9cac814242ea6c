// The d' estimate from stirrup, bar and cover: the distance from a face to the
// centre of the corner bar, d' = c + φt + φl / 2.

#include "driver/program.h"

#include "base/number_text.h"

#include <array>

namespace pilarix {

namespace {
// The lists of this dialog write the diameters with a decimal comma; their values
// in millimetres, in the order of the lists.
constexpr std::array<double, 4> kEstriboMm{5, 6.3, 8, 10};
constexpr std::array<double, 8> kLongitudinalMm{10, 12.5, 16, 20, 22.5, 25, 32, 40};

// A text that is in no row leaves the diameter last found.
template <std::size_t N>
void procura(const std::string& texto, const std::vector<std::string>& lista, const std::array<double, N>& mm,
             double& diametro)
{
    for (std::size_t i = 0; i < N && i < lista.size(); ++i)
        if (texto == lista[i])
            diametro = mm[i];
}
} // namespace

void Program::Form5Calcula()
{
    procura(Form5.Combo1.Text, lists::estriboVirgula, kEstriboMm, Form5.DiamEstriboMm);
    procura(Form5.Combo2.Text, lists::longitudinalVirgula, kLongitudinalMm, Form5.DiamLongMm);
    const double cobrimento = Val(Form5.Text1.Text);
    dLinhaEstimada = Form5.DiamLongMm / 2 + (Form5.DiamEstriboMm + cobrimento);
    Form5.Text2.Text = Str(dLinhaEstimada);
}

void Program::Form5Aceita()
{
    dLinhaEstimada = dLinhaEstimada / 10;
    // Into the d' box rounded half up to 0.0001 cm, in the plain form that the box
    // reads back exactly.
    Form1.Text3.Text = Str(Int(dLinhaEstimada * 10000 + 0.5) / 10000);
}

} // namespace pilarix
