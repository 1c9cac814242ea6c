// Bar spacing, nominal and effective cover, and the weight of the longitudinal steel.

#include "driver/program.h"

#include "base/number_text.h"

namespace pilarix {

namespace {

constexpr const char* kItemEspacamento = "Item 18.4.2.2 do Projeto de revisão da NB1 / 2001";
constexpr const char* kItemAgregado = "Item 7.4.7.6 do Projeto de revisão da NB1 / 2001";
constexpr const char* kItemCobrimento = "Item 7.4.7 ";
constexpr const char* kItemCobrimentoBarra = "Item 7.4.7.5";

constexpr const char* kBotaoCobrimentoMinimo = "&1 - Utilizar cobrimento mínimo";
constexpr const char* kBotaoMultiploDeMeio = "&1 - Calcular cobrimento nominal múltiplo de 0,5";

// Covers are compared as the window shows them, to four decimals, so that a cover
// recomputed from the same numbers never fails by a last-bit difference.
double r4(double x) { return Int(x * 10000 + 0.5) / 10000; }

// Asks the "Cobrimento" question and runs the button pressed. The first button's
// caption is changed only when the caller names one.
void perguntaCobrimento(Program& p, const std::string& mensagem, const char* item, const char* botao1)
{
    p.Form4.Label2.Caption = mensagem;
    p.Form4.Label3.Caption = item;
    if (botao1 != nullptr)
        p.Form4.Command2.Caption = botao1;
    if (p.dialogs().askCover(p.Form4) == 1)
        p.Form4Command2_Click();
    else
        p.Form4Command1_Click();
}

// NBR 6118, 7.4.7.6: the nominal cover is the minimum of the aggressiveness class
// plus the execution tolerance Δc.
void coberturaNominal(Program& p)
{
    if (p.Form1.Option1.Value)
        p.DeltaC = 1;
    else if (p.Form1.Option2.Value)
        p.DeltaC = 0.5;
    const std::string& classe = p.Form1.Combo2.Text;
    if (classe == "I")
        p.CobNominal = 1.5 + p.DeltaC;
    else if (classe == "II")
        p.CobNominal = 2 + p.DeltaC;
    else if (classe == "III")
        p.CobNominal = 3 + p.DeltaC;
    else if (classe == "IV")
        p.CobNominal = 4 + p.DeltaC;
}

// The window asks before correcting; the search (silent) and a ticked Check1
// correct at once, as the first button would.
void cobrimento(Program& p, bool silencioso)
{
    if (p.Recalcula != "s") {
        if (silencioso) {
            coberturaNominal(p);
            if (p.DiamAgregado > 1.2 * p.CobNominal)
                p.CalccNAgr();
        } else {
            p.CobNominal40();
        }
    }
    p.Recalcula = "n";

    const bool corrige = silencioso || p.Form1.Check1.ticked();
    p.CobEfetivo = p.dLinha - p.DiamEstribo - p.DiamLong / 2;
    if (r4(p.CobNominal) > r4(p.CobEfetivo)) {
        if (corrige)
            p.CalcdLinha();
        else
            perguntaCobrimento(p,
                               "Cobrimento efetivo = " + Str(p.CobEfetivo)
                                   + " cm menor que o combrimento nominal = " + Str(p.CobNominal) + " cm.",
                               kItemCobrimento, kBotaoCobrimentoMinimo);
    }
    if (r4(p.CobEfetivo + p.DiamEstribo) < r4(p.DiamLong)) {
        if (corrige)
            p.CalcdLinhaFi();
        else
            perguntaCobrimento(p,
                               "Cobrimento mínimo das barras longitudinais = " + Str(p.CobEfetivo + p.DiamEstribo)
                                   + " cm menor que o mínimo = " + Str(p.DiamLong)
                                   + " cm (diâmetro da barra logitudinal)",
                               kItemCobrimentoBarra, nullptr);
    }

    p.Ganchos41();
    p.BaseEstribo = p.Base - 2 * p.CobEfetivo;
    p.AlturaEstribo = p.Altura - 2 * p.CobEfetivo;
    p.ComprEstribo = 2 * (p.BaseEstribo + p.AlturaEstribo) + p.ComprGancho;
}

// NBR 6118, 18.4.2.2: free spacing of at least 4 φl (2.4 times the aggregate, the
// 1.2 rule doubled so that it still holds at splices) and axis spacing of at most
// twice the smaller side and 40 cm. Each failed check is told by `falha`; none
// stops the others.
template <typename Falha>
void espacamento(Program& p, Falha&& falha)
{
    p.EspLivreH = (p.Base - 2 * p.dLinha) / (p.nBase - 1) - p.DiamLong;
    p.EspLivreV = (p.Altura - 2 * p.dLinha) / (p.nAltura - 1) - p.DiamLong;
    p.EspEixoH = (p.Base - 2 * p.dLinha) / (p.nBase - 1);
    p.EspEixoV = (p.Altura - 2 * p.dLinha) / (p.nAltura - 1);

    const double a = 2 * 1.2 * p.DiamAgregado;
    const double f = 4 * p.DiamLong;
    if (f < a) {
        p.EspLivreMin = a;
        p.TextoLimite = " 2,4 vezes o diâmetro máximo do agragado, fora das emendas";
    } else {
        p.EspLivreMin = f;
        p.TextoLimite = " 4 vezes o diâmetro da barra longitudinal";
    }
    if (p.EspLivreH < p.EspLivreMin)
        falha("Espaçamento livre entre barras horizontais = " + Str(r2(p.EspLivreH)) + "cm menor que "
              + p.TextoLimite + " = " + Str(r2(p.EspLivreMin)) + "cm");
    if (p.EspLivreV < p.EspLivreMin)
        falha("Espaçamento livre entre barras verticais = " + Str(r2(p.EspLivreV)) + "cm menor que "
              + p.TextoLimite + " = " + Str(r2(p.EspLivreMin)) + "cm");

    if (2 * p.MenorDim < 40) {
        p.EspEixoMax = 2 * p.MenorDim;
        p.TextoLimite = " 2 vezes a menor dimensão do trecho considerado";
    } else {
        p.EspEixoMax = 40;
        p.TextoLimite = "máximo permitido";
    }
    if (p.EspEixoH > p.EspEixoMax)
        falha("Espaçamento entre eixos das barras horizontais = " + Str(r2(p.EspEixoH)) + "cm maior que "
              + p.TextoLimite + " = " + Str(r2(p.EspEixoMax)) + "cm");
    if (p.EspEixoV > p.EspEixoMax)
        falha("Espaçamento entre eixos das barras verticais = " + Str(r2(p.EspEixoV)) + "cm maior que "
              + p.TextoLimite + " = " + Str(r2(p.EspEixoMax)) + "cm");
}

} // namespace

void Program::Espaçamento26()
{
    espacamento(*this, [this](const std::string& mensagem) {
        FlagErro = "s";
        MensagemErro = mensagem;
        ItemNorma = kItemEspacamento;
        if (!modoBusca())
            MostraErro();
    });
}

void Program::Form10Espaçamento26()
{
    espacamento(*this, [this](const std::string&) { FlagErro = "s"; });
}

void Program::CobNominal40()
{
    coberturaNominal(*this);
    if (DiamAgregado > 1.2 * CobNominal)
        perguntaCobrimento(*this,
                           "Cobrimento nominal = " + Str(CobNominal) + " cm, < " + Str(r2(DiamAgregado / 1.2))
                               + " cm (dimensão máxima do argagado graúdo / 1.2)",
                           kItemAgregado, kBotaoMultiploDeMeio);
}

void Program::Cobrimento27() { cobrimento(*this, false); }

void Program::Form10Cobrimento27() { cobrimento(*this, true); }

void Program::Peso29()
{
    // Bars of PesoLinearLong kg/m over the column length in cm.
    PesoLong = NBarrasTotal * PesoLinearLong * Comprimento / 100;
}

} // namespace pilarix
