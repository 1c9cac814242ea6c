// Reading the main window into the calculation state, with the corrections and
// messages of the input, and the two largest-diameter settings of "Outros valores".

#include "window/program.h"

#include "base/number_text.h"
#include "engine/catalogue.h"
#include "engine/checks.h"
#include "app/units.h"

#include <array>
#include <utility>

namespace pilarix {

namespace {
// The smallest side of a column: 12 cm.
constexpr double kMenorLado = 12;
} // namespace

void Program::Ler02()
{
    auto& f = Form1;
    CorrecoesDaLeitura.clear();

    // 1. Minimum section side (no upper bound).
    if (Val(f.Text1.Text) < kMenorLado) {
        f.Text1.Text = "12";
        CorrecoesDaLeitura.push_back("Base corrigida para 12 cm (mínimo)");
    }
    if (Val(f.Text2.Text) < kMenorLado) {
        f.Text2.Text = "12";
        CorrecoesDaLeitura.push_back("Altura corrigida para 12 cm (mínimo)");
    }

    // 2-3. Bars that fit on a face, at least 5 cm apart. The width rounds (half to
    // even) and the depth takes the whole part: the asymmetry is the program's own.
    const double dl = Val(f.Text3.Text);
    nMaxBase = CInt16((Val(f.Text1.Text) - 2 * dl) / 5 + 1, "número máximo de barras na base");
    if (nMaxBase < 2)
        nMaxBase = 2;
    nMaxAltura = Int((Val(f.Text2.Text) - 2 * dl) / 5 + 1);
    if (nMaxAltura < 2)
        nMaxAltura = 2;

    // 4-5. Bar counts that do not fit are brought back; 0 and 1 pass unchanged.
    auto corrige = [this](TextBox& caixa, const std::string& n, const char* face, const char* porque) {
        caixa.Text = n;
        CorrecoesDaLeitura.push_back(std::string("Barras nas faces da ") + face + " corrigidas para " + n + " ("
                                     + porque + ")");
    };
    if (Val(f.Text4.Text) > nMaxBase)
        corrige(f.Text4, Str(nMaxBase), "base", "o máximo que cabe na base");
    if (Val(f.Text4.Text) > 500)
        corrige(f.Text4, "500", "base", "o máximo");
    if (Val(f.Text5.Text) > nMaxAltura)
        corrige(f.Text5, Str(nMaxAltura), "altura", "o máximo que cabe na altura");
    if (Val(f.Text5.Text) > 500)
        corrige(f.Text5, "500", "altura", "o máximo");

    // 6-8.
    nBase = Val(f.Text4.Text);
    nAltura = CInt16(Val(f.Text5.Text), "número de barras na altura");
    Comprimento = Val(f.Text23.Text);
    Base = Val(f.Text1.Text);
    Altura = Val(f.Text2.Text);
    Escala = Val(f.Text6.Text);
    MargemDesenho = 20;
    // The drawing frame's own corner is the origin of the picture model.
    OrigemX = static_cast<float>(MargemDesenho + 0.0);
    OrigemY = static_cast<float>(MargemDesenho + 0.0);

    // 9.
    DiamAgregado = Val(Form8.Text2.Text);

    // 10.
    UnidadeNome = f.Combo4.Text;
    Unidades30();
    Nd = Val(f.Text16.Text) * FatorUnidade;
    UnidadeNome = f.Combo5.Text;
    Unidades30();
    Md = Val(f.Text17.Text) * FatorUnidade;
    UnidadeNome = f.Combo6.Text;
    Unidades30();
    Fck = Val(f.Text18.Text) * FatorUnidade;

    // 11. Concrete strength, in kgf/cm²: 1 MPa is exactly 10 kgf/cm² here. A
    // repeated pass does not repeat the warnings.
    auto erro = [this](const engine::Check& c) {
        ErroEntrada = "s";
        metodo().MensagemErro = c.text;
        metodo().ItemNorma = std::string(c.clause);
        MostraErro();
    };
    if (Fck == 0) {
        erro(engine::checks::fckZero());
        return;
    }
    const bool repetido = metodo().Recalcula == engine::Recalculation::Yes;
    if (Fck < 200 && !repetido)
        erro(engine::checks::fckBelowMinimum(Fck));
    // ABNT NBR 6118:2014 covers the classes up to C90 (8.2.1); the 2001 project, C50.
    if (norma2014() ? Fck > 900 : Fck > 500) {
        if (!repetido)
            erro(norma2014() ? engine::checks::fckAboveC90(Fck) : engine::checks::fckAboveMaximum(Fck));
    }

    // 12-13.
    UnidadeNome = f.Combo7.Text;
    Unidades30();
    Es = Val(f.Text20.Text) * FatorUnidade;
    GamaC = Val(f.Text21.Text);
    GamaS = Val(f.Text22.Text);
    Precisao = Val(Form8.Text1.Text);
    UltimoDiametroLongitudunal();
    UltimoDiametroEstribo();

    // The design divides by these three: a zero (an empty box reads 0) is told
    // like a zero fck, before any stage can divide by it.
    if (Es == 0)
        erro(engine::checks::esZero());
    else if (GamaC == 0)
        erro(engine::checks::gammaCZero());
    else if (GamaS == 0)
        erro(engine::checks::gammaSZero());
}

void Program::Unidades30()
{
    // Exact, case-sensitive names. An unknown name (only a hand-edited project file
    // can bring one) leaves the factor of the previous quantity in place.
    if (const auto fator = unitFactor(UnidadeNome))
        FatorUnidade = *fator;
}

void Program::UltimoDiametroLongitudunal()
{
    // The list holds the longitudinal bars of the catalogue, from 10 mm (bar 4).
    const auto& lista = lists::longitudinal;
    for (std::size_t i = 0; i < lista.size(); ++i)
        if (Form8.Combo3.Text == lista[i])
            IndiceBitolaMax = static_cast<int>(i) + engine::kFirstLongitudinalBar;
}

void Program::UltimoDiametroEstribo()
{
    const auto& lista = lists::estribo;
    for (std::size_t i = 0; i < lista.size(); ++i)
        if (Form8.Combo1.Text == lista[i])
            IndiceEstriboMax = static_cast<float>(i + 1);
}

void Program::Form8Command1_Click()
{
    UltimoDiametroEstribo();
    UltimoDiametroLongitudunal();
}

} // namespace pilarix
