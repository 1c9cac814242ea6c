// The record of the calculation on show, made from what the window's model holds:
// the project as the calculation read it, the method's results, the verdict of the
// "Erros" box, the dialogs and the search's list. Every front reads this, never the
// model, so that none can show a figure the others do not.

#include "window/program.h"

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

// Every text box of the main window, in the order of their numbers.
std::vector<app::Box> boxesOf(const Form1Model& f)
{
    const std::vector<std::pair<const char*, const TextBox*>> caixas{
        {"Text1", &f.Text1},   {"Text2", &f.Text2},   {"Text3", &f.Text3},   {"Text4", &f.Text4},
        {"Text5", &f.Text5},   {"Text6", &f.Text6},   {"Text8", &f.Text8},   {"Text9", &f.Text9},
        {"Text10", &f.Text10}, {"Text11", &f.Text11}, {"Text12", &f.Text12}, {"Text13", &f.Text13},
        {"Text14", &f.Text14}, {"Text15", &f.Text15}, {"Text16", &f.Text16}, {"Text17", &f.Text17},
        {"Text18", &f.Text18}, {"Text19", &f.Text19}, {"Text20", &f.Text20}, {"Text21", &f.Text21},
        {"Text22", &f.Text22}, {"Text23", &f.Text23}, {"Text25", &f.Text25}, {"Text26", &f.Text26},
        {"Text27", &f.Text27}, {"Text28", &f.Text28}, {"Text29", &f.Text29}, {"Text30", &f.Text30},
        {"Text31", &f.Text31}, {"Text32", &f.Text32},
    };
    std::vector<app::Box> out;
    for (const auto& [nome, caixa] : caixas) {
        out.push_back({nome, caixa->Text, false});
        // The bar list sits where its number falls: after Text6.
        if (std::string_view(nome) == "Text6")
            for (std::size_t i = 0; i < f.Text7.size(); ++i)
                out.push_back({"Text7(" + std::to_string(i) + ")", f.Text7[i].Text, f.Text7[i].BackColor == kDarkBlue});
    }
    return out;
}

} // namespace

app::CalculationRecord Program::registroDoCalculo() const
{
    const auto& f = Form1;
    app::CalculationRecord r;
    r.number = CalculosFeitos;

    app::ProjectInput& in = r.project;
    in.file = NomeArquivo;
    in.heading = {Obra.obra, Obra.cliente, Obra.pilar, Obra.engenheiro, Obra.revisao};
    in.forceUnit = f.Combo4.Text;
    in.momentUnit = f.Combo5.Text;
    in.strengthUnit = f.Combo6.Text;
    in.steelGrade = f.Combo1.Text;
    in.ruleSet = f.Norma.Text;
    in.rules2014 = norma2014();
    in.secondOrder = f.SegundaOrdem.Text;
    in.column = Entrada;
    in.dLinhaAsTyped = DLinhaDigitado;
    in.asTyped = boxesAsTyped(f);
    in.words = {app::withoutAccessKey(f.Check3.Caption),   app::withoutAccessKey(f.Option1.Caption),
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
