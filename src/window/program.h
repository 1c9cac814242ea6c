#pragma once
// The program's window, without a toolkit: the form model, reading the window into
// the values of a calculation (Ler02, with its corrections and messages), the
// buttons and the driver's modes, the dialogs, and the result boxes. The
// calculation itself is the engine's (src/engine): Programa0 reads the window,
// hands the engine a ColumnInput and writes back what it returns. Window-level
// routines keep the names the program gives them; docs/routines.md traces the
// method's routines to the engine.

#include "engine/geometry.h"
#include "engine/memory.h"
#include "engine/method_state.h"
#include "engine/search.h"
#include "engine/load_cases.h"
#include "engine/column2014.h"
#include "engine/verification.h"
#include "window/dialog_port.h"
#include "app/calculation_record.h"
#include "app/calculator.h"
#include "app/dialog_record.h"
#include "window/forms.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace pilarix {

// A load case beyond the first, as the cases table holds it: its forces as typed, in
// the units of Nd and Md of the main window.
struct CasoDeCarga {
    CasoDeCarga() = default;
    CasoDeCarga(std::string nome_, std::string nd_, std::string md_, std::string mdBase_ = {},
                std::string myTopo_ = {}, std::string myBase_ = {})
        : nome(std::move(nome_)), nd(std::move(nd_)), md(std::move(md_)), mdBase(std::move(mdBase_)),
          myTopo(std::move(myTopo_)), myBase(std::move(myBase_))
    {
    }
    std::string nome, nd, md;
    // Under ABNT NBR 6118:2014: the moment of the base in the direction of h and those
    // of both ends in the direction of b, as typed in Md's unit (empty: none).
    std::string mdBase, myTopo, myBase;
};

// The work a column belongs to, printed at the head of the calculation report and
// saved with the project after the 39 records ("Obra;...", files/project_file.cpp).
struct DadosDaObra {
    std::string obra, cliente, pilar, engenheiro, revisao;
};

class Program : public WindowReading, public Forms {
public:
    explicit Program(DialogPort& dialogs) : dialogs_(&dialogs) {}
    Program(const Program&) = default;
    Program& operator=(const Program&) = default;

    DialogPort& dialogs() { return *dialogs_; }
    void setDialogs(DialogPort& dialogs) { dialogs_ = &dialogs; }

    // The method's variables as the calculations of this window left them, and what
    // the method carries from one calculation to the next.
    app::Calculator calculadora;
    engine::MethodState& metodo() { return calculadora.state; }
    const engine::MethodState& metodo() const { return calculadora.state; }
    // The drawing of the section of the last detailed calculation.
    std::optional<engine::SectionGeometry> Desenho;
    unsigned VersaoDoDesenho = 0; // counts the changes of Desenho
    // The last interactive calculation: the project it ran on (kept for the record and
    // the search's details), what it found, and the detailed section checked by strain
    // compatibility. The results are cleared with the result boxes.
    app::Project ProjetoCalculado;
    std::optional<engine::ColumnResult> Resultado;
    std::optional<engine::Verification> Verificacao;
    // Under ABNT NBR 6118:2014: γn, both directions of every case, their areas and
    // utilisations (the detail is Resultado).
    std::optional<engine::Column2014Result> Resultado2014;
    // 2023 is 2014 with ηc in the concrete's stress above C40.
    bool norma2014() const { return Form1.Norma.Text == lists::norma[1] || norma2023(); }
    bool norma2023() const { return Form1.Norma.Text == lists::norma[2]; }
    // The load cases with their end moments in both directions, and the slenderness
    // inputs, as Ler02 read the window (window/read_project.cpp).
    std::vector<engine::Case2014> casos2014() const;
    engine::Slenderness2014Input esbeltez2014() const;
    // Every message and question of the last calculation, in order, with the answer
    // given: the error dialogs, the cover question, the stirrup choice, the notices.
    std::vector<DialogRecord> MensagensDoCalculo;

    // The pass a calculation runs: the interactive pass of "&Calcula" (reads the
    // window, asks, shows every message and the results) or the silent pass of the
    // best-solution search (shows nothing, keeps the arrangements that pass). The
    // silent pass is the search's own state, never a box of the window: "d'
    // automático f(cobrimento)" ticked only means that d' comes from the cover.
    enum class Passe { Interativo, Silencioso };
    Passe passeDoCalculo() const { return buscaEmCurso_ ? Passe::Silencioso : Passe::Interativo; }

    // ---- driver (window/programa.cpp) ----
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

    // The values of a calculation as the window holds them after Ler02.
    engine::ColumnInput entradaDoCalculo() const;
    // The project as the calculator takes it: the rule set, the column, every load
    // case in the program's units and the slenderness inputs (window/read_project.cpp).
    app::Project projetoDoCalculo() const;

    // ---- input (window/read_input.cpp) ----
    void Ler02();
    // What the last Ler02 rewrote in the boxes (a side raised to 12 cm, a bar count
    // that does not fit), said to the user beside the corrected box.
    std::vector<std::string> CorrecoesDaLeitura;
    void Unidades30();
    void UltimoDiametroLongitudunal();
    void UltimoDiametroEstribo();
    void Form8Command1_Click(); // "&Voltar" of "Outros valores"

    // ---- result boxes (window/results.cpp) ----
    void Zera31();
    void Imprime37();
    // Nothing calculated on show: the result boxes, the drawing, the check, the
    // messages of the last calculation and the list of the search are cleared.
    void LimpaResultados();
    // Counts the calculations run (of "&Calcula", the step buttons and the search),
    // so that the window knows when what it shows was calculated.
    unsigned CalculosFeitos = 0;
    // The most arrangements "Calcula melhor solução" tries without asking (0: no
    // limit): about a second of this machine's work.
    double LimiteDaBusca = 200000;

    // ---- best-solution search (window/solutions.cpp) ----
    double NSolucoes = 0;
    std::int16_t SolucaoAtual = 0;
    std::string SolucaoNoForm; // "s" once a stored solution has been put into the window
    std::vector<SolutionRow> Solucoes;  // in the order of discovery
    std::vector<SolutionRow> Ordenadas; // ascending by weight, stable

    void Command8_Click();  // "Calcula &melhor solução"
    // The list of the search no longer belongs to the window's input: it is emptied
    // and its buttons hidden.
    void LimpaSolucoes();
    void EscolheValores43();
    void ValoresnoForm1144();
    void Command11_Click(); // "&Outras soluções"
    void Command9_Click();  // next solution
    void Command10_Click(); // previous solution
    void Form11Escolhe();
    void Form11BotaoMais();
    void Form11BotaoMenos();

    // ---- load cases and the fixed bar (saved after the 39 records of a project) ----
    // The main window's Nd and Md are the first case; these are the others.
    std::string NomeDoCaso1 = "1";
    std::vector<CasoDeCarga> OutrosCasos;
    // The longitudinal bar clicked in "Bitola" with "Automático" clear (catalogue
    // index 4 to 11); 0 when none is fixed.
    int BitolaFixa = 0;
    // d' as the box held it before a calculation rewrote it (the cover correction,
    // "d' automático"), and what the calculation wrote: a project saved after the
    // calculation keeps the first, so that, loaded, it calculates from where this
    // calculation started (files/project_file.cpp).
    std::optional<std::string> DLinhaDigitado;
    std::string DLinhaReescrito;
    void reescreveDLinha(const std::string& texto);
    // Every case of the last calculation with several (empty with one case).
    std::vector<CaseOutcome> ResultadosDosCasos;

    // ---- project files (files/project_file.cpp) ----
    DadosDaObra Obra; // "Arquivo > Dados da obra..."
    std::string NomeArquivo;
    std::string ErroArquivo; // why the last file could not be read or written; empty when it could
    void Grava32();
    void Carrega33();
    void Form_Load();
    void Command7_Click();            // "Valores &padrão"
    void mnuItemCarregpadr_Click();   // "Carre&gar valores padrões"
    void mnuItemSaveDefault_Click();  // "Salvar valores como &padrão"
    void mnuItemload_Click();         // "&Abrir arquivo..."
    void mnuItemSave_Click();         // "&Salvar como..."

    // ---- d' estimate (window/d_estimate.cpp) ----
    double dLinhaEstimada = 0;
    void Form5Calcula();
    void Form5Aceita();

    // ---- the record of the calculation on show (window/record.cpp) ----
    // What every front reads: the report, the JSON, the text of the command line,
    // the window's panels and the drawing.
    app::CalculationRecord registroDoCalculo() const;

    // ---- shared machinery ----
    // Puts MensagemErro and ItemNorma into "Mensagem de erro" and shows it.
    void MostraErro();
    // The "Mensagem de erro" dialog with a text and a clause of its own.
    void MostraMensagem(const std::string& mensagem, const std::string& item);
    // The window's entry points run through this: a CalcError is shown as a
    // message, the "Erros" box reads "erro" and the input is kept.
    template <typename F>
    void comMensagemDeErro(F&& body);
    void falhaDeCalculo(const std::string& mensagem);
    // The values that identify a calculation, for messages about one that failed.
    std::string resumoDosDados() const;

private:
    void programa0Passes();
    void passeInterativo();
    void finalDeErro();
    // An input refused before the calculation: the message, no result, "erro".
    void recusaEntrada(const std::string& mensagem);

    DialogPort* dialogs_;
    bool buscaEmCurso_ = false;
    friend class BuscaEmCurso;
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
