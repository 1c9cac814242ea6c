#pragma once
// The program: the calculation state, the forms it reads and rewrites, and every
// stage, named as the method names them. Stages take no arguments and return
// nothing; the driver Programa0 runs them in order. The front (window or command
// line) supplies the dialogs through DialogPort.

#include "state/calc_state.h"
#include "state/dialog_port.h"
#include "state/forms.h"

#include <string>

namespace pilarix {

class Program : public CalcState, public Forms {
public:
    explicit Program(DialogPort& dialogs) : dialogs_(&dialogs) {}
    Program(const Program&) = default;
    Program& operator=(const Program&) = default;

    DialogPort& dialogs() { return *dialogs_; }
    void setDialogs(DialogPort& dialogs) { dialogs_ = &dialogs; }

    // Caps on the work of one calculation. A converging march needs a few hundred
    // steps and a repeated pass ends after two or three; past these the method has
    // lost its way and the calculation stops with a message.
    static constexpr long kMarchCap = 100000;
    static constexpr int kPassCap = 100;

    // True while "Calcula &melhor solução" runs its candidates: a failure of the
    // method then ends the whole search (the same data would fail every candidate)
    // instead of being reported once per candidate.
    bool BuscaEmCurso = false;

    // ---- driver (driver/programa.cpp) ----
    void Programa0();
    void Command1_Click();  // "&Calcula"
    void Command2_Click();  // + bars on the width faces
    void Command3_Click();  // - bars on the width faces
    void Command4_Click();  // + bars on the depth faces
    void Command5_Click();  // - bars on the depth faces
    void Command16_Click(); // + base
    void Command13_Click(); // - base
    void Command15_Click(); // + depth
    void Command14_Click(); // - depth
    void SomaNd();          // + 1 on the axial force

    // ---- input (input/read_input.cpp, input/units.cpp) ----
    void Ler02();
    void Unidades30();
    void UltimoDiametroLongitudunal();
    void UltimoDiametroEstribo();
    void Form8Command1_Click(); // "&Voltar" of "Outros valores"

    // ---- materials (design/materials.cpp) ----
    void Aço04();
    void SigSd05();

    // ---- section parameters and bar layers (design/section.cpp) ----
    void dLinha01();
    void SArran1R03();

    // ---- strain field (design/strain_field.cpp) ----
    void SEpSig11();
    void SBxTeta07();
    void SEta08();
    void SEtalin09();
    void SKapa12();
    void SEc1Bx18();

    // ---- zones and their bounds (design/zones.cpp) ----
    void SConstZ10();
    void Szona15();
    void SNiCrit06();
    void SMiACEC13();
    void SMiZero14();

    // ---- reinforcement ratio (design/reinforcement_ratio.cpp) ----
    void SRO16();
    void Critico21();
    void SProc_BK19();
    void SProc_AK20();
    void SProc_BC17();

    // ---- bar choice (detailing/bar_choice.cpp) ----
    void Bitolas22();
    void AsReal23();
    void Form10AsReal23();

    // ---- steel limits and wall columns (detailing/steel_limits.cpp) ----
    void CeoficienteAdic25();
    void AsMinMax24();
    void Taxaminima45();
    void Form10AsMinMax24();

    // ---- stirrups and hooks (detailing/stirrups.cpp) ----
    void Estribo28();
    void Form10Estribo28();
    void Ganchos41();
    void Form7Command1_Click(); // OK of "Escolha dos estribos"
    void Form7MelhorSolução();
    void Form7zera();

    // ---- cover dialog (detailing/cover_dialog.cpp) ----
    void Form4Command2_Click(); // the first button
    void Form4Command1_Click(); // "&2 - Ignorar"
    void CalcdLinha();
    void CalcdLinhaFi();
    void CalccNAgr();

    // ---- spacing, cover and weight (detailing/spacing_cover_weight.cpp) ----
    void Espaçamento26();
    void Form10Espaçamento26();
    void CobNominal40();
    void Cobrimento27();
    void Form10Cobrimento27();
    void Peso29();

    // ---- supplementary stirrups (detailing/supplementary_stirrups.cpp) ----
    void EstriboSuplementarH29();
    void EstriboSuplementarV30();

    // ---- result boxes (driver/results.cpp) ----
    void Zera31();
    void Imprime37();

    // ---- section drawing (detailing/section_drawing.cpp) ----
    void Desenha35();
    void DesenhaSup36();

    // ---- best-solution search (detailing/solution_search.cpp) ----
    void Command8_Click();  // "Calcula &melhor solução"
    void GuardaValores42();
    void EscolheValores43();
    void ValoresnoForm1144();
    void Command11_Click(); // "&Outras soluções"
    void Command9_Click();  // next solution
    void Command10_Click(); // previous solution
    void Form11Escolhe();
    void Form11BotaoMais();
    void Form11BotaoMenos();

    // ---- project files (files/project_file.cpp) ----
    void Grava32();
    void Carrega33();
    void Form_Load();
    void Command7_Click();            // "Valores &padrão"
    void mnuItemCarregpadr_Click();   // "Carre&gar valores padrões"
    void mnuItemSaveDefault_Click();  // "Salvar valores como &padrão"
    void mnuItemload_Click();         // "&Abrir arquivo..."
    void mnuItemSave_Click();         // "&Salvar como..."

    // ---- d' estimate (detailing/d_estimate.cpp) ----
    void Form5Calcula();
    void Form5Aceita();

    // ---- shared machinery ----
    // Puts MensagemErro and ItemNorma into "Mensagem de erro" and shows it.
    void MostraErro();
    // True while the driver runs the silent search pass (Check3 ticked).
    bool modoBusca() const { return Form1.Check3.ticked(); }
    // Counts one step of a march; past kMarchCap, or when the step can no longer
    // move the variable, the calculation stops with a message naming the stage.
    void passoDaMarcha(long& passos, const char* etapa);
    void passoNulo(double antes, double depois, const char* etapa);
    // The window's entry points run through this: a CalcError is shown as a
    // message, the "Erros" box reads "erro" and the input is kept.
    template <typename F>
    void comMensagemDeErro(F&& body);
    void falhaDeCalculo(const std::string& mensagem);
    // The values that identify a calculation, for messages about one that failed.
    std::string resumoDosDados() const;

private:
    void passo(const char* etapa, void (Program::*stage)());
    void verificaPontoFlutuante(const char* etapa);
    void finalDeErro();
    void programa0Passes();

    DialogPort* dialogs_;
};

} // namespace pilarix

#include "base/calc_error.h"

namespace pilarix {
template <typename F>
void Program::comMensagemDeErro(F&& body)
{
    try {
        body();
    } catch (const CalcError& e) {
        falhaDeCalculo(e.what());
    }
}
} // namespace pilarix
