// The calculation driver: one complete design of the column from the window's
// values, in the interactive mode (Check3 clear) or the silent search mode
// (Check3 ticked) that the best-solution search uses.

#include "driver/program.h"

#include "base/number_text.h"
#include "base/calc_error.h"

#include <cfenv>

namespace pilarix {

namespace {
// The one message the driver recognises by its text: no catalogue bar is both large
// enough and within the user's largest bar, so nothing can be detailed.
constexpr const char* kBitolaInsuficiente =
    "Diâmetro das barras longitudinais devem ser superiores à maior bitola definida pelo usuário.";
} // namespace

void Program::MostraErro()
{
    Form2.Label1.Caption = MensagemErro;
    Form2.Label2.Caption = ItemNorma;
    dialogs().showError(Form2);
}

std::string Program::resumoDosDados() const
{
    return "b = " + Str(Base) + " cm, h = " + Str(Altura) + " cm, barras nas faces: " + Str(nBase) + " x "
           + Str(nAltura) + ", d' = " + Str(dLinha) + " cm, Nd = " + Str(Nd) + " kgf, Md = " + Str(Md)
           + " kgf.cm, fck = " + Str(Fck) + " kgf/cm2, precisão = " + Str(Precisao);
}

void Program::passoDaMarcha(long& passos, const char* etapa)
{
    if (++passos > kMarchCap)
        throw CalcError(std::string("A busca de ") + etapa + " não convergiu em " + std::to_string(kMarchCap)
                        + " passos (ν = " + Str(Ni) + ", μ = " + Str(Mi) + ", precisão = " + Str(Precisao)
                        + "). Verifique a precisão em Valores > Outros.");
}

void Program::passoNulo(double antes, double depois, const char* etapa)
{
    if (antes == depois)
        throw CalcError(std::string("A busca de ") + etapa
                        + " não encontrou o equilíbrio da seção: o passo ficou menor que a resolução dos números"
                        + " (ν = " + Str(Ni) + ", μ = " + Str(Mi) + ", δ = " + Str(Delta) + ", precisão = "
                        + Str(Precisao) + ").");
}

void Program::verificaPontoFlutuante(const char* etapa)
{
    const int raised = std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW);
    if (raised == 0)
        return;
    const char* what = (raised & FE_DIVBYZERO) ? "divisão por zero"
                       : (raised & FE_OVERFLOW) ? "estouro de capacidade"
                                                : "operação inválida (raiz de número negativo ou 0/0)";
    throw CalcError(std::string("Erro de cálculo em ") + etapa + ": " + what + ". Dados: " + resumoDosDados()
                    + ".");
}

void Program::passo(const char* etapa, void (Program::*stage)())
{
    std::feclearexcept(FE_ALL_EXCEPT);
    (this->*stage)();
    verificaPontoFlutuante(etapa);
}

void Program::falhaDeCalculo(const std::string& mensagem)
{
    MensagemErro = mensagem;
    ItemNorma.clear();
    FlagErro = "s";
    MostraErro();
    finalDeErro();
}

void Program::finalDeErro()
{
    Form1.Text30.Text = "erro";
    Form1.Text30.BackColor = kRed;
}

void Program::Programa0()
{
    if (BuscaEmCurso) {
        programa0Passes();
        return;
    }
    comMensagemDeErro([this] { programa0Passes(); });
}

void Program::programa0Passes()
{
    Recalcula = "n";
    Form1.Image1Visible = false;
    const bool busca = modoBusca();
    if (!busca) {
        passo("Ler02", &Program::Ler02);
        if (ErroEntrada == "s") {
            Form1.Picture.clear();
            Zera31();
            finalDeErro();
            return;
        }
    }

    for (int pass = 1;; ++pass) {
        if (pass > kPassCap)
            throw CalcError("A correção do cobrimento pediu um novo cálculo mais de " + std::to_string(kPassCap)
                            + " vezes sem chegar a um d' estável (d' = " + Str(dLinha) + " cm). Dados: "
                            + resumoDosDados() + ".");
        Form1.Picture.clear();
        Zera31();
        MensagemErro.clear();
        if (Recalcula != "s")
            FlagErro = "n";
        // Zone "O" needs no search and must give no steel, not a ratio left over
        // from an earlier calculation.
        Rho = 0;

        passo("dLinha01", &Program::dLinha01);
        std::feclearexcept(FE_ALL_EXCEPT);
        fcd = Fck / GamaC;
        SigCd = 0.85 * fcd;
        Ac = Altura * Base;
        MeiaAltura = Altura / 2;
        MeioD = 0.5;
        verificaPontoFlutuante("Programa0 (fcd, σcd)");
        passo("Aço04", &Program::Aço04);
        std::feclearexcept(FE_ALL_EXCEPT);
        Delta = Delta2 = DeltaD = dLinha / Altura;
        verificaPontoFlutuante("Programa0 (δ)");
        passo("SArran1R03", &Program::SArran1R03);
        passo("CeoficienteAdic25", &Program::CeoficienteAdic25);
        if (FlagErro == "sPparede") {
            finalDeErro();
            return;
        }

        std::feclearexcept(FE_ALL_EXCEPT);
        Ni = (Nd * GamaN) / (Ac * SigCd);
        Mi = (Md * GamaN) / (Altura * (Ac * SigCd));
        verificaPontoFlutuante("Programa0 (ν, μ)");
        passo("SNiCrit06", &Program::SNiCrit06);
        passo("SConstZ10", &Program::SConstZ10);
        passo("SMiACEC13", &Program::SMiACEC13);
        passo("SMiZero14", &Program::SMiZero14);
        passo("Szona15", &Program::Szona15);
        if (Ni == 0 && Mi == 0)
            Rho = 0;
        else
            passo("SRO16", &Program::SRO16);

        std::feclearexcept(FE_ALL_EXCEPT);
        AsNec = Ac * Rho;
        AsNecCopia = AsNec;
        AsBarraD = AsNec / NBarrasTotal;
        AsNecBarra = AsNec / NBarrasTotal;
        for (long i = 1; i <= nAltura; ++i)
            AsCam(i - 1) = AsNecBarra * NBarCam(i - 1);
        verificaPontoFlutuante("Programa0 (área por barra)");

        if (!busca) {
            passo("Bitolas22", &Program::Bitolas22);
            passo("AsReal23", &Program::AsReal23);
            if (MensagemErro == kBitolaInsuficiente) {
                Form1.CotasVisiveis = false;
                finalDeErro();
                return;
            }
            passo("Estribo28", &Program::Estribo28);
            passo("Cobrimento27", &Program::Cobrimento27);
            if (Recalcula == "s")
                continue;

            passo("AsMinMax24", &Program::AsMinMax24);
            passo("Espaçamento26", &Program::Espaçamento26);
            passo("EstriboSuplementarH29", &Program::EstriboSuplementarH29);
            passo("EstriboSuplementarV30", &Program::EstriboSuplementarV30);
            std::feclearexcept(FE_ALL_EXCEPT);
            Excesso = 100 * (AsReal - AsNec) / AsReal;
            verificaPontoFlutuante("Programa0 (excesso de aço)");
            passo("Peso29", &Program::Peso29);
            passo("Desenha35", &Program::Desenha35);
            passo("DesenhaSup36", &Program::DesenhaSup36);
            passo("Imprime37", &Program::Imprime37);
            if (FlagErro == "n") {
                Form1.Text30.Text = "Ok";
                Form1.Text30.BackColor = kWhite;
            } else {
                finalDeErro();
            }
            return;
        }

        passo("AsReal23", &Program::Form10AsReal23);
        if (FlagErro == "s")
            return;
        passo("Estribo28", &Program::Form10Estribo28);
        if (FlagErro == "s")
            return;
        passo("Cobrimento27", &Program::Form10Cobrimento27);
        if (Recalcula == "s")
            continue;

        passo("AsMinMax24", &Program::Form10AsMinMax24);
        if (FlagErro != "s")
            passo("Espaçamento26", &Program::Form10Espaçamento26);
        if (FlagErro != "s") {
            passo("EstriboSuplementarH29", &Program::EstriboSuplementarH29);
            passo("EstriboSuplementarV30", &Program::EstriboSuplementarV30);
            passo("Peso29", &Program::Peso29);
            passo("GuardaValores42", &Program::GuardaValores42);
        }
        return;
    }
}

// ---- "&Calcula" and the step buttons ----

void Program::Command1_Click() { Programa0(); }

namespace {
// A step button: changes one box by the step held in `passoCaixa` (1 without one),
// in the direction `sinal`, not going down from `minimo` or below, and writes the
// new value back as text. The calculation runs whatever the box held.
void passoDaCaixa(Program& p, TextBox& caixa, const TextBox* passoCaixa, double sinal, double minimo)
{
    p.comMensagemDeErro([&] {
        const double passo = sinal * (passoCaixa != nullptr ? Val(passoCaixa->Text) : 1);
        const double n = Val(caixa.Text);
        if (sinal > 0 || n > minimo)
            caixa.Text = Str(n + passo);
    });
    p.Programa0();
}
constexpr double kSemMinimo = -1e300;
} // namespace

// Bars per face go down only while there are more than two: a face always has its
// two corner bars.
void Program::Command2_Click() { passoDaCaixa(*this, Form1.Text4, nullptr, 1, 2); }
void Program::Command3_Click() { passoDaCaixa(*this, Form1.Text4, nullptr, -1, 2); }
void Program::Command4_Click() { passoDaCaixa(*this, Form1.Text5, nullptr, 1, 2); }
void Program::Command5_Click() { passoDaCaixa(*this, Form1.Text5, nullptr, -1, 2); }

void Program::Command16_Click() { passoDaCaixa(*this, Form1.Text1, &Form1.Text31, 1, kSemMinimo); }
void Program::Command13_Click() { passoDaCaixa(*this, Form1.Text1, &Form1.Text31, -1, kSemMinimo); }
void Program::Command15_Click() { passoDaCaixa(*this, Form1.Text2, &Form1.Text32, 1, kSemMinimo); }
void Program::Command14_Click() { passoDaCaixa(*this, Form1.Text2, &Form1.Text32, -1, kSemMinimo); }

void Program::SomaNd() { passoDaCaixa(*this, Form1.Text16, nullptr, 1, kSemMinimo); }

} // namespace pilarix
