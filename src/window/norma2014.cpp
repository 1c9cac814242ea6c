// A column by ABNT NBR 6118:2014 in the window: the load cases with the moments of
// both ends in both directions, the effective lengths and the method of the second
// order, read from the window in its units; the engine does the rest.

#include "window/program.h"

#include "base/number_text.h"
#include "app/units.h"

namespace pilarix {

namespace {
// An empty box is no moment.
double lido(const std::string& texto) { return texto.empty() ? 0 : Val(texto); }
} // namespace

std::vector<engine::Case2014> Program::casos2014()
{
    const double fn = unitFactor(Form1.Combo4.Text).value_or(Nd != 0 ? Nd / Val(Form1.Text16.Text) : 1);
    const double fm = unitFactor(Form1.Combo5.Text).value_or(Md != 0 ? Md / Val(Form1.Text17.Text) : 1);
    std::vector<engine::Case2014> casos{{NomeDoCaso1, Nd, Md, lido(Form1.MdBase.Text) * fm, lido(Form1.MyTopo.Text) * fm,
                                         lido(Form1.MyBase.Text) * fm}};
    for (const auto& c : OutrosCasos)
        casos.push_back({c.nome, Val(c.nd) * fn, Val(c.md) * fm, lido(c.mdBase) * fm, lido(c.myTopo) * fm,
                         lido(c.myBase) * fm});
    return casos;
}

engine::Slenderness2014Input Program::esbeltez2014() const
{
    engine::Slenderness2014Input s;
    s.effectiveLengthH = lido(Form1.LeH.Text);
    s.effectiveLengthB = lido(Form1.LeB.Text);
    s.method = Form1.SegundaOrdem.Text == "rigidez" ? engine::SecondOrderMethod::ApproximateStiffness
                                                     : engine::SecondOrderMethod::ApproximateCurvature;
    return s;
}

void Program::calcula2014(engine::Questions& perguntas)
{
    engine::Column2014Result r =
        engine::calculate2014(Entrada, casos2014(), esbeltez2014(), perguntas, memoria, metodo,
                              norma2023() ? engine::ConcreteRules::Nbr2023 : engine::ConcreteRules::Nbr2014);
    for (const auto& c : r.cases) {
        if (r.cases.size() < 2)
            break;
        // The table of cases shows the direction that needs more steel.
        const bool emB = c.b.asNec > c.h.asNec;
        ResultadosDosCasos.push_back({c.loadCase.name, c.loadCase.Nd, c.loadCase.MdTop,
                                      r.detail.design.zone, r.detail.design.betaX, emB ? c.b.asNec : c.h.asNec,
                                      std::max(c.h.utilisation, c.b.utilisation), c.governing});
    }
    if (r.refusal) {
        Resultado2014 = std::move(r);
        return;
    }
    // The detailed section in the direction of h, under the governing case.
    if (r.detail.detailed && !r.cases.empty()) {
        const auto& g = r.cases[static_cast<std::size_t>(r.governingCase)];
        engine::ColumnInput governante = Entrada;
        governante.Nd = g.loadCase.Nd;
        governante.Md = g.h.slenderness.totalMoment / r.gammaN;
        if (const auto secao = engine::detailedSection(governante, r.detail))
            Verificacao = engine::verify(*secao, g.nSd, g.h.slenderness.totalMoment);
    }
    Resultado = r.detail;
    Resultado2014 = std::move(r);
}

} // namespace pilarix
