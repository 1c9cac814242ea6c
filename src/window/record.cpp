// The record of the calculation on show, made from what the window's model holds:
// the project as the calculation read it, the method's results, the verdict of the
// "Erros" box, the dialogs and the search's list. Every front reads this, never the
// model, so that none can show a figure the others do not.

#include "window/program.h"

#include "window/control_table.h"

namespace pilarix {

namespace {

std::vector<app::TypedBox> boxesAsTyped(const Form1Model& f)
{
    std::vector<app::TypedBox> out{
        {"Base b", f.Text1.Text, "cm"},
        {"Altura h", f.Text2.Text, "cm"},
        {"Comprimento", f.Text23.Text, "cm"},
        {"Barras nas faces de largura b", f.Text4.Text, {}},
        {"Barras nas faces de altura h", f.Text5.Text, {}},
    };
    // With d' found from the cover the box is out of use: the option says it all.
    if (f.Check3.ticked())
        out.push_back({"d′", app::withoutAccessKey(f.Check3.Caption), {}});
    else
        out.push_back({"d′", f.Text3.Text, "cm"});
    out.insert(out.end(), {
                              {"Nd", f.Text16.Text, f.Combo4.Text},
                              {"Md", f.Text17.Text, f.Combo5.Text},
                              {"fck", f.Text18.Text, f.Combo6.Text},
                              {"Es", f.Text20.Text, f.Combo7.Text},
                              {"γc", f.Text21.Text, {}},
                              {"γs", f.Text22.Text, {}},
                              {"Aço", f.Combo1.Text, {}},
                              {"Classe de agressividade ambiental", f.Combo2.Text, {}},
                          });
    return out;
}

// Every text box of the main window, in the order of their numbers, as the table of
// controls names them.
std::vector<app::Box> boxesOf(const Form1Model& f)
{
    std::vector<app::Box> out;
    for (const auto& [nome, caixa] : textBoxesOf(f))
        out.push_back({nome, caixa->Text, caixa->BackColor == kDarkBlue});
    return out;
}

} // namespace

app::CalculationRecord Program::registroDoCalculo() const
{
    const auto& f = Form1;
    app::CalculationRecord r;
    r.number = CalculosFeitos;

    r.project = ProjetoCalculado;
    app::ProjectText& t = r.text;
    t.file = NomeArquivo;
    t.heading = {Obra.obra, Obra.cliente, Obra.pilar, Obra.engenheiro, Obra.revisao};
    t.ruleSet = lists::norma.at(static_cast<std::size_t>(ProjetoCalculado.rules));
    t.dLinhaAsTyped = DLinhaDigitado;
    t.asTyped = boxesAsTyped(f);
    t.words = {app::withoutAccessKey(f.Check3.Caption),   app::withoutAccessKey(f.Option1.Caption),
               app::withoutAccessKey(f.Option2.Caption),  app::withoutAccessKey(f.Option3.Caption),
               app::withoutAccessKey(f.Option5.Caption),  app::withoutAccessKey(f.Option6.Caption),
               app::withoutAccessKey(f.Check5.Caption)};
    r.reading = static_cast<const WindowReading&>(*this);

    r.method = metodo();
    r.result = Resultado;
    r.verification = Verificacao;
    r.result2014 = Resultado2014;
    r.cases = ResultadosDosCasos;
    r.drawing = Desenho;
    r.transcript = MensagensDoCalculo;
    r.corrections = CorrecoesDaLeitura;
    r.verdict = f.Text30.Text;
    r.boxes = boxesOf(f);

    r.solutions = Ordenadas;
    r.solutionsFound = NSolucoes;
    r.solutionShown = SolucaoAtual;
    return r;
}

} // namespace pilarix
