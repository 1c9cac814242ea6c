#include "window/solution_details.h"

#include "engine/column.h"
#include "engine/questions.h"
#include "engine/verification.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace pilarix {

std::vector<DetalheDaSolucao> detalhaSolucoes(const Program& p)
{
    std::vector<DetalheDaSolucao> out;
    const auto n = std::min<std::size_t>({p.Ordenadas.size(), static_cast<std::size_t>(std::max(0.0, p.NSolucoes)),
                                          static_cast<std::size_t>(Form11Model::kRows)});
    // The load cases as the last calculation took them (γn apart), or the one case.
    std::vector<std::pair<double, double>> casos;
    for (const auto& c : p.ResultadosDosCasos)
        casos.emplace_back(c.Nd, c.Md);
    if (casos.empty())
        casos.emplace_back(p.ProjetoCalculado.column.Nd, p.ProjetoCalculado.column.Md);
    for (std::size_t i = 0; i < n; ++i) {
        const SolutionRow& s = p.Ordenadas[i];
        DetalheDaSolucao d;
        engine::ColumnInput in = p.ProjetoCalculado.column;
        in.barsOnWidthFace = static_cast<int>(s.nBase);
        in.barsOnDepthFace = static_cast<int>(s.nAltura);
        in.dLinha.automatic = false;
        in.dLinha.typed = s.dLinha;
        in.stirrupMode = engine::StirrupMode::Predefined;
        in.predefinedStirrup = static_cast<int>(s.IndiceEstribo);
        engine::Memory memoria;
        memoria.lambda = s.LambdaC1;
        engine::FixedAnswers respostas;
        try {
            const engine::ColumnResult r = engine::calculate(in, respostas, memoria);
            if (r.detailed && r.bar && !r.failure) {
                d.calculado = true;
                d.diametroBarra = r.bar->diameter;
                d.barras = r.design.totalBars;
                d.area = r.bar->providedArea;
                d.diametroEstribo = r.stirrup.diameter;
                d.espacamentoEstribo = r.stirrup.spacing;
                d.pesoLongitudinal = r.steelWeight;
                // The main stirrups along the column, one at each end.
                const double estribos =
                    r.stirrup.spacing > 0 ? std::floor(in.length / r.stirrup.spacing) + 1 : 0;
                d.pesoTotal = r.steelWeight + estribos * r.cover.stirrupLength / 100 * r.stirrup.massPerMetre;
                d.utilizacao = 0;
                for (const auto& [nd, md] : casos) {
                    engine::ColumnInput c = in;
                    c.Nd = nd;
                    c.Md = md;
                    const auto v = engine::verify(c, r, {false, false});
                    d.utilizacao = v ? std::max(d.utilizacao, v->utilisation)
                                     : std::numeric_limits<double>::quiet_NaN();
                    if (!v)
                        break;
                }
            }
        } catch (const std::exception&) {
            d.calculado = false;
        }
        out.push_back(d);
    }
    return out;
}

} // namespace pilarix
