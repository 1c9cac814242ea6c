// The calculation driver of the window: one complete design of the column from the
// window's values, through the engine, in the interactive pass (d' typed or found
// from the cover); and the step buttons. The silent pass belongs to the search.

#include "window/program.h"

#include "base/number_text.h"
#include "engine/catalogue.h"
#include "engine/column.h"
#include "engine/failure.h"
#include "window/window_input.h"
#include "window/window_questions.h"

#include <cfenv>
#include <optional>
#include <utility>

namespace pilarix {

namespace {

engine::StirrupMode modoDoEstribo(const Form1Model& f)
{
    if (f.Option5.Value)
        return engine::StirrupMode::Economic;
    if (f.Option3.Value)
        return engine::StirrupMode::Predefined;
    return engine::StirrupMode::Manual;
}

// The stirrup typed with "Definir manualmente": diameter and spacing, cm; none when
// the option is another or either box is empty.
std::optional<std::pair<double, double>> estriboDigitado(const Form1Model& f)
{
    if (!f.Option6.Value || f.EstriboDiametro.Text.empty() || !numeroCompleto(f.EstriboEspacamento.Text))
        return std::nullopt;
    for (std::size_t i = 0; i < lists::estribo.size(); ++i)
        if (f.EstriboDiametro.Text == lists::estribo[i])
            return std::pair{engine::bar(static_cast<int>(i) + 1).diameter, Val(f.EstriboEspacamento.Text)};
    return std::nullopt;
}

int estriboPreDefinido(const std::string& texto)
{
    for (std::size_t i = 0; i < lists::estribo.size(); ++i)
        if (texto == lists::estribo[i])
            return static_cast<int>(i) + 1;
    return 1;
}

engine::ExposureClass classe(const std::string& texto)
{
    if (texto == "I")
        return engine::ExposureClass::I;
    if (texto == "III")
        return engine::ExposureClass::III;
    if (texto == "IV")
        return engine::ExposureClass::IV;
    return engine::ExposureClass::II;
}

} // namespace

void Program::MostraErro() { MostraMensagem(metodo().MensagemErro, metodo().ItemNorma); }

void Program::MostraMensagem(const std::string& mensagem, const std::string& item)
{
    Form2.Label1.Caption = mensagem;
    Form2.Label2.Caption = item;
    MensagensDoCalculo.push_back(
        {DialogRecord::Kind::Error, Form2.Caption, Form2.Label1.Caption, Form2.Label2.Caption, {}, {}, 0, {}, {}});
    dialogs().showError(Form2);
}

std::string Program::resumoDosDados() const
{
    return engine::describe({Base, Altura, nBase, static_cast<double>(nAltura), metodo().dLinha, Nd, Md, Fck, Precisao});
}

void Program::falhaDeCalculo(const std::string& mensagem)
{
    metodo().MensagemErro = mensagem;
    metodo().ItemNorma.clear();
    metodo().FlagErro = engine::ErrorFlag::Failed;
    MostraErro();
    finalDeErro();
}

void Program::recusaEntrada(const std::string& mensagem)
{
    Desenho.reset();
    ++VersaoDoDesenho;
    Zera31();
    metodo().MensagemErro = mensagem;
    metodo().ItemNorma.clear();
    MostraErro();
    finalDeErro();
}

void Program::finalDeErro()
{
    Form1.Text30.Text = "erro";
    Form1.Text30.BackColor = kRed;
}

engine::ColumnInput Program::entradaDoCalculo() const
{
    const auto& f = Form1;
    engine::ColumnInput in;
    in.base = Base;
    in.depth = Altura;
    in.length = Comprimento;
    in.barsOnWidthFace = nBase;
    in.barsOnDepthFace = nAltura;
    in.dLinha.automatic = f.Check3.ticked();
    in.dLinha.typed = in.dLinha.automatic ? 0 : Val(f.Text3.Text);
    in.Nd = Nd;
    in.Md = Md;
    in.fck = Fck;
    in.Es = Es;
    in.gammaC = GamaC;
    in.gammaS = GamaS;
    in.steel = engine::steelGradeFromText(f.Combo1.Text).value_or(engine::SteelGrade::CA50A);
    in.precision = Precisao;
    in.aggregate = DiamAgregado;
    in.maxBarIndex = IndiceBitolaMax;
    // "Automático" ticked lets the calculation choose; clear, the bar clicked is used.
    in.fixedBarIndex = f.Check2.ticked() ? 0 : BitolaFixa;
    in.maxStirrupIndex = IndiceEstriboMax;
    // Δc by the tolerance chosen; with neither chosen (a file may say so) it stays
    // as the last calculation took it.
    in.deltaC = f.Option1.Value ? 1 : f.Option2.Value ? 0.5 : metodo().DeltaC;
    in.exposure = classe(f.Combo2.Text);
    in.correctCoverWithoutAsking = f.Check1.ticked();
    in.stirrupMode = modoDoEstribo(f);
    in.predefinedStirrup = estriboPreDefinido(f.Combo3.Text);
    in.stirrupsOfBarSteel = f.Check5.ticked();
    if (const auto digitado = estriboDigitado(f))
        in.typedStirrup = engine::ColumnInput::TypedStirrup{digitado->first, digitado->second};
    in.hook = f.Option7[0].Value ? engine::Hook::Angle45 : engine::Hook::RightAngle;
    return in;
}

void Program::Programa0()
{
    comMensagemDeErro([this] { programa0Passes(); });
}

void Program::programa0Passes()
{
    ++CalculosFeitos;
    MensagensDoCalculo.clear();
    metodo().Recalcula = engine::Recalculation::No;
    Form1.Image1Visible = false;
    // Whatever stops this calculation, Ler02 included, nothing of the one before
    // stays on show.
    Desenho.reset();
    Zera31();

    // Input outside what a column can be is refused before anything is read or
    // corrected, in the window and on the command line alike.
    if (const auto problema = conferenciaDaEntrada(*this)) {
        recusaEntrada(*problema);
        return;
    }
    std::feclearexcept(FE_ALL_EXCEPT);
    Ler02();
    engine::checkFloatingPoint("Ler02", {Base, Altura, nBase, static_cast<double>(nAltura), metodo().dLinha, Nd, Md,
                                         Fck, Precisao});
    const bool erroDeEntrada = ErroEntrada == "s";
    Desenho.reset();
    ++VersaoDoDesenho;
    Zera31();
    if (erroDeEntrada) {
        finalDeErro();
        return;
    }
    passeInterativo();
}

void Program::passeInterativo()
{
    PerguntasDaJanela perguntas(*this);
    ProjetoCalculado = projetoDoCalculo();
    const app::Calculation calculo = calculadora.calculate(ProjetoCalculado, perguntas);
    Resultado = calculo.result;
    Verificacao = calculo.verification;
    Resultado2014 = calculo.result2014;
    ResultadosDosCasos = calculo.cases;
    if (!Resultado) {
        // Refused by a rule of 2014 (γn, λ > 90): nothing was designed.
        finalDeErro();
        return;
    }
    const engine::ColumnResult& r = *Resultado;
    if (r.dLinhaText)
        reescreveDLinha(*r.dLinhaText);
    if (r.failure) {
        falhaDeCalculo(*r.failure);
        return;
    }
    if (!r.designed) {
        finalDeErro();
        return;
    }
    if (!r.detailed) {
        // No catalogue bar is both large enough and within the largest allowed bar:
        // nothing can be detailed.
        Form1.CotasVisiveis = false;
        finalDeErro();
        return;
    }
    Desenho = r.geometry;
    ++VersaoDoDesenho;
    Form1.CotasVisiveis = true;
    std::feclearexcept(FE_ALL_EXCEPT);
    Imprime37();
    engine::checkFloatingPoint("Imprime37", {Base, Altura, nBase, static_cast<double>(nAltura), metodo().dLinha, Nd, Md,
                                             Fck, Precisao});
    // "Ok" only where the column earns it: the method's checks, the detailed section
    // under every case and the final arrangement as built.
    if (calculo.earnsOk(metodo())) {
        Form1.Text30.Text = "Ok";
        Form1.Text30.BackColor = kWhite;
    } else {
        finalDeErro();
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
