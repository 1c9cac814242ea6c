#include "ui/verdict_text.h"

#include "window/units.h"

namespace pilarix::ui {

namespace {
QString qs(const std::string& s) { return QString::fromStdString(s); }
} // namespace

// The governing case, named where the results are not the main window's Nd and Md.
QString casoDeterminanteTexto(const Program& p)
{
    if (p.ResultadosDosCasos.size() < 2)
        return {};
    for (const auto& c : p.ResultadosDosCasos)
        if (c.governa)
            return c.nome == p.NomeDoCaso1
                       ? QStringLiteral("Caso determinante: %1 (o Nd e o Md da janela)").arg(qs(c.nome))
                       : QStringLiteral("Caso determinante: %1. O Nd e o Md da janela são do caso %2; os resultados, "
                                        "do caso %1.")
                             .arg(qs(c.nome), qs(p.NomeDoCaso1));
    return {};
}

// The check of the detailed section in the units the user chose for Nd and Md.
DiagramData dadosDoDiagrama(const Program& p)
{
    DiagramData d;
    const auto& f = p.Form1;
    d.forceUnit = qs(f.Combo4.Text);
    d.momentUnit = qs(f.Combo5.Text);
    const auto& v = *p.Verificacao;
    const double fn = fatorDaUnidade(f.Combo4.Text).value_or(1);
    const double fm = fatorDaUnidade(f.Combo5.Text).value_or(1);
    for (const auto& [n, m] : v.curve)
        d.curve.emplace_back(m / fm, n / fn);
    if (p.ResultadosDosCasos.empty()) {
        d.points.push_back({v.nSd / fn, v.mSd / fm, QStringLiteral("Sd"), v.utilisation, true});
    } else {
        // Every load case on the governing case's section, γn as the design took it.
        const double g = p.Resultado ? p.Resultado->design.gammaN : 1;
        for (const auto& c : p.ResultadosDosCasos)
            d.points.push_back({c.Nd * g / fn, c.Md * g / fm, qs(c.nome), c.utilizacao, c.governa});
    }
    if (v.mRd)
        d.mRd = *v.mRd / fm;
    d.nRdMax = v.nRdMax / fn;
    d.nRdMin = v.nRdMin / fn;
    return d;
}

} // namespace pilarix::ui
