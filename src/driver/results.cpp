// The result boxes of the main window and their reset.

#include "driver/program.h"

#include "base/number_text.h"

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
}

void Program::Imprime37()
{
    auto& f = Form1;
    f.Text9.Text = Format(AsMin, "##0.00");
    f.Text10.Text = Format(AsNec, "##0.00");
    f.Text11.Text = Format(AsReal, "##0.00");
    f.Text12.Text = Format(AsMinBarra, "##0.00");
    f.Text13.Text = Format(AsBarraD, "##0.00");
    f.Text14.Text = Format(AsBarra, "##0.00");
    f.Text15.Text = Format(Excesso, "##0.00") + "%";
    f.Text19.Text = Format(PesoLong, "##0.00");
    f.Text25.Text = Format(CobNominal, "##0.00");
    f.Text26.Text = Format(CobEfetivo, "##0.00");
    f.Text27.Text = TextoEstribo;
    f.Text28.Text = Format(BetaX, "##0.000");
    f.Text29.Text = Format(BetaX * Altura, "##0.0");
    f.Text8.Text = Str(NZona);

    // The bar list shows catalogue bars 4 (10 mm) to 11 (40 mm); the chosen one is
    // picked out by its area, the figure the bar was chosen by.
    for (long i = 4; i <= 11; ++i) {
        if (AreaBitola(i) == AsBarra) {
            auto& t = f.Text7[static_cast<std::size_t>(i - 4)];
            t.BackColor = kDarkBlue;
            t.ForeColor = kWhite;
        }
    }
}

} // namespace pilarix
