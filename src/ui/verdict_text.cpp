#include "ui/verdict_text.h"

#include "app/units.h"

namespace pilarix::ui {

namespace {
QString qs(const std::string& s) { return QString::fromStdString(s); }
} // namespace

// The governing case, named where the results are not the main window's Nd and Md.
QString casoDeterminanteTexto(const app::CalculationRecord& r)
{
    // The first case is the window's Nd and Md.
    const CaseOutcome* c = r.governingCase();
    if (!c)
        return {};
    const std::string& primeiro = r.cases.front().name;
    return c == &r.cases.front()
               ? QStringLiteral("Caso determinante: %1 (o Nd e o Md da janela)").arg(qs(c->name))
               : QStringLiteral("Caso determinante: %1. O Nd e o Md da janela são do caso %2; os resultados, "
                                "do caso %1.")
                     .arg(qs(c->name), qs(primeiro));
}

// The check of the detailed section in the units the user chose for Nd and Md.
DiagramData dadosDoDiagrama(const app::CalculationRecord& r)
{
    DiagramData d;
    const ShownUnit forca = r.project.units.shownForce();
    const ShownUnit momento = r.project.units.shownMoment();
    d.forceUnit = qs(forca.name);
    d.momentUnit = qs(momento.name);
    const auto& v = *r.verification;
    const double fn = forca.factor;
    const double fm = momento.factor;
    for (const auto& [n, m] : v.curve)
        d.curve.emplace_back(m / fm, n / fn);
    if (r.cases.empty()) {
        d.points.push_back({v.nSd / fn, v.mSd / fm, QStringLiteral("Sd"), v.utilisation, true});
    } else {
        // Every load case on the governing case's section, γn as the design took it.
        const double g = r.result ? r.result->design.gammaN : 1;
        for (const auto& c : r.cases)
            d.points.push_back({c.Nd * g / fn, c.Md * g / fm, qs(c.name), c.utilisation, c.governing});
    }
    if (v.mRd)
        d.mRd = *v.mRd / fm;
    d.nRdMax = v.nRdMax / fn;
    d.nRdMin = v.nRdMin / fn;
    return d;
}

} // namespace pilarix::ui
