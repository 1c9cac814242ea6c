// The d' estimate from stirrup, bar and cover: the distance from a face to the
// centre of the corner bar, d' = c + φt + φl / 2.

#include "window/program.h"

#include "base/number_text.h"
#include "engine/catalogue.h"

namespace pilarix {

namespace {
// The lists of this dialog spell the diameters with a decimal comma. A text that is
// in no row leaves the diameter last found (mm).
void procura(const std::string& texto, int primeira, int ultima, double& diametroMm)
{
    for (int i = primeira; i <= ultima; ++i)
        if (texto == engine::bar(i).labelComma)
            diametroMm = engine::bar(i).diameter * 10;
}
} // namespace

void Program::Form5Calcula()
{
    procura(Form5.Combo1.Text, 1, engine::kLastStirrupBar, Form5.DiamEstriboMm);
    procura(Form5.Combo2.Text, engine::kFirstLongitudinalBar, engine::kBarCount, Form5.DiamLongMm);
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
