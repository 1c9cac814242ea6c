// The best-solution search: every arrangement of bars per face and stirrup is
// calculated silently, those that pass every check are stored, ordered by the
// weight of their longitudinal steel and listed in "Soluções"; the lightest goes
// into the main window.

#include "window/program.h"
#include "window/window_input.h"

#include "base/number_text.h"
#include "engine/catalogue.h"
#include "engine/search.h"
#include "base/calc_error.h"

#include <algorithm>
#include <array>
#include <cfenv>

namespace pilarix {

// The silent pass is the state of the search while the engine tries its candidates.
class BuscaEmCurso {
public:
    explicit BuscaEmCurso(Program& p) : p_(p) { p_.buscaEmCurso_ = true; }
    ~BuscaEmCurso() { p_.buscaEmCurso_ = false; }
    BuscaEmCurso(const BuscaEmCurso&) = delete;
    BuscaEmCurso& operator=(const BuscaEmCurso&) = delete;

private:
    Program& p_;
};

namespace {

// A weight no arrangement reaches: a row that holds it holds no solution.
constexpr double kSemSolucao = 9e35;


bool estriboValido(double indice) { return indice >= 1 && indice <= 4 && indice == Int(indice); }

void limpaLista(Form11Model& form)
{
    for (auto& row : form.Rows) {
        row.Option.Value = false;
        row.Option.Visible = false;
        row.Peso.clear();
        row.nBase.clear();
        row.nAltura.clear();
        row.DiamEstriboMm.clear();
        row.Estribo.clear();
    }
    form.RowsShown = 0;
}

void selecionaLinha(Form11Model& form, int linha)
{
    for (auto& row : form.Rows)
        row.Option.Value = false;
    form.Rows[static_cast<std::size_t>(linha - 1)].Option.Value = true;
}

// The row of "Soluções" whose option is selected, 1 to 40; 0 when none is.
int linhaSelecionada(const Form11Model& form)
{
    for (int i = 0; i < Form11Model::kRows; ++i)
        if (form.Rows[static_cast<std::size_t>(i)].Option.Value)
            return i + 1;
    return 0;
}

void botoesDaLista(Form1Model& f, bool visiveis)
{
    f.Command9.Visible = visiveis;
    f.Command10.Visible = visiveis;
    f.Command11.Visible = visiveis;
}

// Puts a stored solution into the main window and calculates it in the normal
// mode, so that the window shows the very arrangement and weight of the list.
// - The d' of the candidate goes in, in its plain text form: the candidate's cover
//   corrections ended on that d', and with any other the bar may change.
// - λ starts where the candidate's last pass started: a reference field whose bars
//   give no resultant (κ infinite, as at βx = 0.5 ± P under pure bending) keeps the
//   λ of the field evaluated before it, which in the search was left by the
//   previous candidate. Its first reference field took that λ (or set its own), so
//   λC1 is the value to start from.
void poeNaJanela(Program& p, const SolutionRow& s)
{
    auto& f = p.Form1;
    f.Text4.Text = Str(s.nBase);
    f.Text5.Text = Str(s.nAltura);
    if (estriboValido(s.IndiceEstribo))
        f.Combo3.Text = lists::estribo[static_cast<std::size_t>(s.IndiceEstribo) - 1];
    selectOption(f.Option3, f.Option5, f.Option6);
    // The candidate's d' is typed in, so "d' automático" is cleared and the d' box
    // is in use again.
    f.Text3.Text = Str(s.dLinha);
    f.Check3.Value = 0;
    f.Text3.Enabled = true;
    f.Command17.Enabled = true;
    p.SolucaoNoForm = "s";
    p.calculadora.startFrom(s);
    p.Programa0();
}

// Ler02 outside the driver: a floating-point fault in its products is the same
// failure there as here.
void leEntrada(Program& p)
{
    std::feclearexcept(FE_ALL_EXCEPT);
    p.Ler02();
    if (std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW))
        throw CalcError("Erro de cálculo em Ler02: um valor lido não cabe nos números do programa. Dados: "
                        + p.resumoDosDados() + ".");
}

SolutionRow linha(const engine::Solution& s)
{
    return {s.weight, s.barsOnWidthFace, s.barsOnDepthFace, static_cast<double>(s.stirrupIndex), s.stirrupDiameter,
            s.dLinha, s.lambdaC1};
}

void buscaMelhorSolucao(Program& p)
{
    auto& f = p.Form1;

    p.MensagensDoCalculo.clear();
    p.Solucoes.clear();
    p.Ordenadas.clear();
    p.NSolucoes = 0;
    p.SolucaoAtual = 0;
    limpaLista(p.Form11);
    p.Form11.Rows[0].Option.Value = true;
    botoesDaLista(f, false);
    // A search stopped by the input shows nothing of the calculation before it.
    p.Desenho.reset();
    ++p.VersaoDoDesenho;
    p.Zera31();

    leEntrada(p);

    if (p.ErroEntrada != "s") {
        engine::SearchInput in = app::searchInputOf(p.projetoDoCalculo(), p.nMaxBase, p.nMaxAltura);
        // A section so large that the search would run for long asks first; the
        // engineer may lift the limit for this search.
        const double total = engine::countCandidates(in);
        in.candidateLimit = p.LimiteDaBusca;
        if (p.LimiteDaBusca > 0 && total > p.LimiteDaBusca && p.dialogs().askLargeSearch(total, p.LimiteDaBusca))
            in.candidateLimit = 0;
        in.progress = [&p](double feitos, double todos) { return p.dialogs().searchProgress(feitos, todos); };
        const engine::SearchResult r = [&] {
            BuscaEmCurso busca(p);
            return p.calculadora.search(in);
        }();
        if (r.beyondLimit || r.cancelled) {
            const std::string aviso =
                r.beyondLimit ? "A busca testaria " + Str(*r.beyondLimit) + " arranjos, mais que o limite de "
                                    + Str(p.LimiteDaBusca)
                                    + ": nada foi calculado. Reduza a seção ou aumente o limite "
                                      "(pilarix-cli --limite-busca N; 0 para nenhum)."
                              : "A busca foi interrompida depois de " + Str(static_cast<double>(r.candidates))
                                    + " de " + Str(total) + " arranjos: nenhuma solução foi guardada.";
            p.MensagensDoCalculo.push_back({DialogRecord::Kind::Notice, "aviso", aviso, {}, {}, {}, 0, {}, {}});
            p.dialogs().notice(aviso);
            p.Zera31();
            f.Text30.Text = "erro";
            f.Text30.BackColor = kRed;
            return;
        }
        if (r.candidates > 0 || r.failure) {
            // Every candidate ran as a silent pass of the window: the last one's
            // arrangement and results are what the window holds now.
            f.Image1Visible = false;
            p.Desenho.reset();
            ++p.VersaoDoDesenho;
            p.Zera31();
            p.nAltura = static_cast<std::int16_t>(r.lastBarsOnDepthFace);
            p.nBase = r.lastBarsOnWidthFace;
        }
        if (r.dLinhaText)
            p.reescreveDLinha(*r.dLinhaText);
        if (r.failure)
            throw CalcError(*r.failure);
        for (const auto& s : r.found)
            p.Solucoes.push_back(linha(s));
        p.NSolucoes = static_cast<double>(p.Solucoes.size());
    }

    if (p.NSolucoes != 0) {
        p.EscolheValores43();
        p.ValoresnoForm1144();
        p.SolucaoAtual = 1;
        selecionaLinha(p.Form11, 1);
        poeNaJanela(p, p.Ordenadas.front());
        botoesDaLista(f, true);
        return;
    }

    p.MensagensDoCalculo.push_back(
        {DialogRecord::Kind::Notice, "aviso", std::string(engine::kNoArrangement), {}, {}, {}, 0, {}, {}});
    p.dialogs().notice(std::string(engine::kNoArrangement));
    p.Zera31();
    f.Text30.Text = "erro";
    f.Text30.BackColor = kRed;
}

} // namespace

void Program::Command8_Click()
{
    ++CalculosFeitos;
    if (const auto problema = conferenciaDaEntrada(*this)) {
        MensagensDoCalculo.clear();
        LimpaSolucoes();
        recusaEntrada(*problema);
        return;
    }
    try {
        buscaMelhorSolucao(*this);
    } catch (const CalcError& e) {
        // A failure of the method ends the whole search; a list of what was found
        // before it would not be the list of this section.
        LimpaSolucoes();
        falhaDeCalculo(e.what());
    }
}

void Program::LimpaSolucoes()
{
    Solucoes.clear();
    Ordenadas.clear();
    NSolucoes = 0;
    SolucaoAtual = 0;
    limpaLista(Form11);
    botoesDaLista(Form1, false);
}

void Program::EscolheValores43()
{
    // Ascending by weight; of equal weights the one found first stays first (fewer
    // bars on the depth faces, then on the width faces, then the smaller stirrup).
    const auto n = std::min(Solucoes.size(), static_cast<std::size_t>(std::max(0.0, NSolucoes)));
    Ordenadas.assign(Solucoes.begin(), Solucoes.begin() + static_cast<std::ptrdiff_t>(n));
    std::stable_sort(Ordenadas.begin(), Ordenadas.end(),
                     [](const SolutionRow& a, const SolutionRow& b) { return a.peso < b.peso; });
}

void Program::ValoresnoForm1144()
{
    const int linha = linhaSelecionada(Form11);
    limpaLista(Form11);
    const auto n = std::min<std::size_t>(Ordenadas.size(), Form11Model::kRows);
    const auto mostradas = std::min(n, static_cast<std::size_t>(std::max(0.0, NSolucoes)));
    for (std::size_t i = 0; i < mostradas; ++i) {
        const SolutionRow& s = Ordenadas[i];
        auto& row = Form11.Rows[i];
        row.Option.Visible = true;
        if (!(s.peso < kSemSolucao))
            continue;
        row.Peso = Format(s.peso, "##0.00");
        row.nBase = Str(s.nBase);
        row.nAltura = Str(s.nAltura);
        row.DiamEstriboMm = Str(s.DiamEstribo * 10);
        row.Estribo = estriboValido(s.IndiceEstribo) ? std::string(engine::bar(static_cast<int>(s.IndiceEstribo)).shortText)
                                                     : Str(s.DiamEstribo * 10);
    }
    Form11.RowsShown = static_cast<int>(mostradas);
    if (linha != 0)
        Form11.Rows[static_cast<std::size_t>(linha - 1)].Option.Value = true;
}

void Program::Command11_Click()
{
    // Opens the list of the last search as it stands: the solution on show is the
    // selected row. Nothing is calculated, so neither the store nor the window's
    // results change.
    if (NSolucoes == 0 || Ordenadas.empty())
        return;
    ValoresnoForm1144();
    if (SolucaoAtual >= 1 && SolucaoAtual <= Form11.RowsShown)
        selecionaLinha(Form11, SolucaoAtual);
}

void Program::Command9_Click() { Form11BotaoMais(); }

void Program::Command10_Click() { Form11BotaoMenos(); }

void Program::Form11Escolhe()
{
    const int linha = linhaSelecionada(Form11);
    if (linha == 0 || linha > Form11.RowsShown || linha > NSolucoes
        || static_cast<std::size_t>(linha) > Ordenadas.size())
        return;
    SolucaoAtual = static_cast<std::int16_t>(linha);
    poeNaJanela(*this, Ordenadas[static_cast<std::size_t>(linha) - 1]);
}

void Program::Form11BotaoMais()
{
    // The last solution stored may lie beyond the 40 rows shown: then the end is the
    // last row shown.
    if (NSolucoes >= 1 && NSolucoes <= Form11Model::kRows
        && Form11.Rows[static_cast<std::size_t>(NSolucoes) - 1].Option.Value)
        return;
    const int linha = linhaSelecionada(Form11);
    if (linha == 0 || linha + 1 > Form11.RowsShown)
        return;
    selecionaLinha(Form11, linha + 1);
    Form11Escolhe();
}

void Program::Form11BotaoMenos()
{
    if (Form11.Rows[0].Option.Value)
        return;
    const int linha = linhaSelecionada(Form11);
    if (linha == 0)
        return;
    selecionaLinha(Form11, linha - 1);
    Form11Escolhe();
}

} // namespace pilarix
