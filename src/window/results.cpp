// The result boxes of the main window and their reset.

#include "window/program.h"

#include "base/number_text.h"
#include "engine/catalogue.h"

namespace pilarix {

void Program::Zera31()
{
    auto& f = Form1;
    for (TextBox* t : {&f.Text8, &f.Text9, &f.Text10, &f.Text11, &f.Text12, &f.Text13, &f.Text14, &f.Text15,
                       &f.Text19, &f.Text25, &f.Text26, &f.Text27, &f.Text28, &f.Text29, &f.Text30})
        t->Text.clear();
    f.Text30.BackColor = kWhite;
    for (auto& t : f.Text7) {
        t.BackColor = kWhite;
        t.ForeColor = kInactiveCaptionText;
    }
    f.CotasVisiveis = false;
    ErroEntrada = "n";
    Resultado.reset();
    Verificacao.reset();
    Resultado2014.reset();
    ResultadosDosCasos.clear();
    DLinhaDigitado.reset();
    DLinhaReescrito.clear();
}

void Program::LimpaResultados()
{
    Zera31();
    Desenho.reset();
    ++VersaoDoDesenho;
    Form1.Image1Visible = true;
    MensagensDoCalculo.clear();
    LimpaSolucoes();
}

void Program::Imprime37()
{
    auto& f = Form1;
    const auto& m = metodo();
    f.Text9.Text = Format(m.AsMin, "##0.00");
    f.Text10.Text = Format(m.AsNec, "##0.00");
    f.Text11.Text = Format(m.AsReal, "##0.00");
    f.Text12.Text = Format(m.AsMinBarra, "##0.00");
    f.Text13.Text = Format(m.AsBarraD, "##0.00");
    f.Text14.Text = Format(m.AsBarra, "##0.00");
    f.Text15.Text = Format(m.Excesso, "##0.00") + "%";
    f.Text19.Text = Format(m.PesoLong, "##0.00");
    f.Text25.Text = Format(m.CobNominal, "##0.00");
    f.Text26.Text = Format(m.CobEfetivo, "##0.00");
    f.Text27.Text = m.TextoEstribo;
    f.Text28.Text = Format(m.BetaX, "##0.000");
    f.Text29.Text = Format(m.BetaX * Altura, "##0.0");
    f.Text8.Text = Str(static_cast<int>(m.Zona));

    // The bar list shows the longitudinal bars of the catalogue (10 to 40 mm); the
    // chosen one is picked out by its area, the figure the bar was chosen by.
    for (int i = engine::kFirstLongitudinalBar; i <= engine::kBarCount; ++i) {
        if (engine::bar(i).area == m.AsBarra) {
            auto& t = f.Text7[static_cast<std::size_t>(i - engine::kFirstLongitudinalBar)];
            t.BackColor = kDarkBlue;
            t.ForeColor = kWhite;
        }
    }
}

} // namespace pilarix
