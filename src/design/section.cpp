// d' and the bar layers of the section.

#include "driver/program.h"

#include "base/number_text.h"

namespace pilarix {

void Program::dLinha01()
{
    // "d' automático": the first pass starts from 3 cm and the cover correction
    // moves it; a repeated pass keeps the d' that the correction set.
    if (Form1.Check3.ticked()) {
        if (Recalcula == "n")
            dLinha = 3.0;
        return;
    }
    dLinha = Val(Form1.Text3.Text);
}

void Program::SArran1R03()
{
    // The four corner bars belong to a width face and to a depth face at once.
    NBarrasTotal = CInt16(2 * (nBase + nAltura) - 4, "número total de barras");

    // One layer per bar of a depth face; the two outer layers hold a whole width
    // face, the inner ones one bar on each depth face.
    for (Indice = 1; Indice <= nAltura; ++Indice) {
        if (Indice == 1 || Indice == nAltura)
            NBarCam(Indice - 1) = nBase;
        else
            NBarCam(Indice - 1) = 2;
    }

    // Layer 1 is the farthest from the most compressed face (depth h - d'), the last
    // one the nearest (depth d'), equally spaced between.
    for (Indice = 1; Indice <= nAltura; ++Indice) {
        YCam(Indice - 1) = (Altura - dLinha) - (Indice - 1) * (Altura - 2 * dLinha) / (nAltura - 1);
        YRel(Indice - 1) = YCam(Indice - 1) / Altura;
    }
}

} // namespace pilarix
