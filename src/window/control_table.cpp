#include "window/control_table.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include <cstddef>
#include <cstdlib>

namespace pilarix {

namespace {

using Tipo = Controle::Tipo;
using Alvo = Controle::Alvo;
using NoArquivo = Controle::NoArquivo;
using F = Form1Model;
using O = Form8Model;

unsigned bit(Alcance a) { return 1u << static_cast<unsigned>(a); }
const unsigned P = bit(Alcance::Projeto), R = bit(Alcance::Resultado), B = bit(Alcance::Busca);

// The groups of option buttons: each button set clears the others of its group.
enum Grupo : int { kCobrimento = 1, kEstribo, kGancho };

template <auto membro>
Alvo form1(F& f)
{
    return &(f.*membro);
}
template <auto membro>
Alvo form8(O& f)
{
    return &(f.*membro);
}
template <auto membro>
Alvo emUso(F& f)
{
    return &(f.*membro).Enabled;
}
template <std::size_t i>
Alvo bitola(F& f)
{
    return &f.Text7[i];
}
// The hooks are found by caption, not by their place in the array, so that a name and
// a file's record mean the same hook whatever the order of the array: "Option7(0)" is
// the 45° hook, "Option7(1)" the right-angle one.
constexpr const char* kGanchos[] = {"&45     ou semi-circ.", "&90"};
template <std::size_t i>
Alvo gancho(F& f)
{
    for (auto& o : f.Option7)
        if (o.Caption == kGanchos[i])
            return &o;
    return &f.Option7[i];
}
template <auto campo>
std::string* daObra(Program& p)
{
    return &(p.Obra.*campo);
}

// One of the 39 records of every file, and how its messages name it.
NoArquivo registro(int n, const char* rotulo) { return {n, rotulo, nullptr}; }
// A record after the 39, in the order they are written.
NoArquivo depois(int ordem, const char* registro) { return {39 + ordem, nullptr, registro}; }

Controle linha(const char* nome, Tipo tipo, unsigned alcances, NoArquivo arquivo)
{
    return Controle{.nome = nome, .tipo = tipo, .alcances = alcances, .arquivo = arquivo};
}
Controle caixa(const char* nome, unsigned alcances, Alvo (*alvo)(F&), NoArquivo arquivo = {})
{
    Controle c = linha(nome, Tipo::Caixa, alcances, arquivo);
    c.noForm1 = alvo;
    return c;
}
Controle caixa(const char* nome, unsigned alcances, Alvo (*alvo)(O&), NoArquivo arquivo)
{
    Controle c = linha(nome, Tipo::Caixa, alcances, arquivo);
    c.noForm8 = alvo;
    return c;
}
// A result box: no input, no record.
Controle resultado(const char* nome, Alvo (*alvo)(F&)) { return caixa(nome, 0, alvo); }
Controle lista(const char* nome, unsigned alcances, Alvo (*alvo)(F&), const std::vector<std::string>& entradas,
               NoArquivo arquivo)
{
    Controle c = linha(nome, Tipo::Lista, alcances, arquivo);
    c.noForm1 = alvo;
    c.lista = &entradas;
    return c;
}
Controle lista(const char* nome, unsigned alcances, Alvo (*alvo)(O&), const std::vector<std::string>& entradas,
               NoArquivo arquivo)
{
    Controle c = linha(nome, Tipo::Lista, alcances, arquivo);
    c.noForm8 = alvo;
    c.lista = &entradas;
    return c;
}
Controle marca(const char* nome, unsigned alcances, Alvo (*alvo)(F&), NoArquivo arquivo)
{
    Controle c = linha(nome, Tipo::Marca, alcances, arquivo);
    c.noForm1 = alvo;
    return c;
}
// A button alone is no input of the window: its group is.
Controle opcao(const char* nome, Grupo grupo, Alvo (*alvo)(F&), NoArquivo arquivo)
{
    Controle c = linha(nome, Tipo::Opcao, 0, arquivo);
    c.noForm1 = alvo;
    c.grupo = grupo;
    return c;
}
// Named after its buttons once the table is whole: "Option1|Option2".
Controle grupo(Grupo g, unsigned alcances)
{
    Controle c = linha("", Tipo::Grupo, alcances, {});
    c.grupo = g;
    return c;
}
Controle habilitado(const char* nome, Alvo (*alvo)(F&), NoArquivo arquivo)
{
    Controle c = linha(nome, Tipo::Habilitado, 0, arquivo);
    c.noForm1 = alvo;
    return c;
}
Controle texto(const char* nome, unsigned alcances, std::string* (*campo)(Program&), NoArquivo arquivo)
{
    Controle c = linha(nome, Tipo::Texto, alcances, arquivo);
    c.noPrograma = campo;
    return c;
}
Controle composto(const char* nome, unsigned alcances, std::string (*le)(const Program&),
                  void (*poe)(Program&, const std::string&), NoArquivo arquivo)
{
    Controle c = linha(nome, Tipo::Composto, alcances, arquivo);
    c.le = le;
    c.poe = poe;
    return c;
}

std::vector<std::string> partes(const std::string& s, char separador)
{
    std::vector<std::string> p;
    for (std::size_t inicio = 0;;) {
        const auto fim = s.find(separador, inicio);
        p.push_back(s.substr(inicio, fim - inicio));
        if (fim == std::string::npos)
            return p;
        inicio = fim + 1;
    }
}

// The load cases as one text: the first case's name, then a line for each other case
// with its name and forces, and its end moments when it has any.
std::string casos(const Program& p)
{
    std::string s = p.NomeDoCaso1;
    for (const auto& c : p.OutrosCasos) {
        s += "\n" + c.nome + ";" + c.nd + ";" + c.md;
        if (!c.mdBase.empty() || !c.myTopo.empty() || !c.myBase.empty())
            s += ";" + c.mdBase + ";" + c.myTopo + ";" + c.myBase;
    }
    return s;
}

void poeCasos(Program& p, const std::string& s)
{
    const auto linhas = partes(s, '\n');
    p.NomeDoCaso1 = linhas.front();
    p.OutrosCasos.clear();
    for (std::size_t i = 1; i < linhas.size(); ++i) {
        auto campos = partes(linhas[i], ';');
        campos.resize(6);
        p.OutrosCasos.push_back({campos[0], campos[1], campos[2], campos[3], campos[4], campos[5]});
    }
}

// The catalogue index of the fixed bar, 0 for none.
std::string bitolaFixa(const Program& p) { return std::to_string(p.BitolaFixa); }
void poeBitolaFixa(Program& p, const std::string& v) { p.BitolaFixa = std::atoi(v.c_str()); }

std::vector<Controle> tabela()
{
    std::vector<Controle> t{
        // "Dimensões"
        caixa("Text1", P | R | B, form1<&F::Text1>, registro(2, "Text1, base")),
        caixa("Text2", P | R | B, form1<&F::Text2>, registro(3, "Text2, altura")),
        caixa("Text23", P | R | B, form1<&F::Text23>, registro(1, "Text23, comprimento")),
        caixa("Text31", P, form1<&F::Text31>, registro(4, "Text31, passo da base")),
        caixa("Text32", P, form1<&F::Text32>, registro(5, "Text32, passo da altura")),
        // "Arranjo"
        caixa("Text4", P | R, form1<&F::Text4>, registro(6, "Text4, barras nas faces da base")),
        caixa("Text5", P | R, form1<&F::Text5>, registro(7, "Text5, barras nas faces da altura")),
        caixa("Text3", P | R, form1<&F::Text3>, registro(8, "Text3, d'")),
        habilitado("Text3.Enabled", emUso<&F::Text3>, registro(9, "Text3 habilitado")),
        habilitado("Command17.Enabled", emUso<&F::Command17>, registro(10, "Command17 (estimrar d') habilitado")),
        marca("Check3", P | R, form1<&F::Check3>, depois(3, "d' automático")),
        // "Esforços e Resistências"
        caixa("Text16", P | R | B, form1<&F::Text16>, registro(12, "Text16, Nd")),
        lista("Combo4", P | R | B, form1<&F::Combo4>, lists::forca, registro(18, "Combo4, unidade de Nd")),
        caixa("Text17", P | R | B, form1<&F::Text17>, registro(13, "Text17, Md")),
        lista("Combo5", P | R | B, form1<&F::Combo5>, lists::momento, registro(19, "Combo5, unidade de Md")),
        caixa("Text18", P | R | B, form1<&F::Text18>, registro(14, "Text18, Fck")),
        lista("Combo6", P | R | B, form1<&F::Combo6>, lists::tensao, registro(20, "Combo6, unidade de Fck")),
        caixa("Text20", P | R | B, form1<&F::Text20>, registro(15, "Text20, Es")),
        lista("Combo7", P | R | B, form1<&F::Combo7>, lists::tensao, registro(22, "Combo7, unidade de Es")),
        caixa("Text21", P | R | B, form1<&F::Text21>, registro(16, "Text21, coeficiente do concreto")),
        caixa("Text22", P | R | B, form1<&F::Text22>, registro(17, "Text22, coeficiente do aço")),
        lista("Combo1", P | R | B, form1<&F::Combo1>, lists::aco, registro(21, "Combo1, aço")),
        // "Cobrimento"
        opcao("Option1", kCobrimento, form1<&F::Option1>, registro(31, "Option1, dc = 10mm")),
        opcao("Option2", kCobrimento, form1<&F::Option2>, registro(32, "Option2, dc = 5mm")),
        grupo(kCobrimento, P | R | B),
        lista("Combo2", P | R | B, form1<&F::Combo2>, lists::agressividade,
              registro(30, "Combo2, classe de agressividade")),
        marca("Check1", P | R, form1<&F::Check1>, registro(11, "Check1, corrigir o cobrimento sem perguntar")),
        // "Bitola (mm)": the eight bars are shown, not typed
        marca("Check2", P | R | B, form1<&F::Check2>, registro(37, "Check2, bitola automática")),
        composto("Bitola fixa", P | R | B, bitolaFixa, poeBitolaFixa, depois(2, "Bitola fixa")),
        resultado("Text7(0)", bitola<0>),
        resultado("Text7(1)", bitola<1>),
        resultado("Text7(2)", bitola<2>),
        resultado("Text7(3)", bitola<3>),
        resultado("Text7(4)", bitola<4>),
        resultado("Text7(5)", bitola<5>),
        resultado("Text7(6)", bitola<6>),
        resultado("Text7(7)", bitola<7>),
        // "Estribos" and "Ganchos"
        opcao("Option3", kEstribo, form1<&F::Option3>, registro(23, "Option3, estribo pré-definido")),
        opcao("Option5", kEstribo, form1<&F::Option5>, registro(25, "Option5, estribo mais econômico")),
        opcao("Option6", kEstribo, form1<&F::Option6>, registro(26, "Option6, estribo definido manualmente")),
        grupo(kEstribo, P | R),
        lista("Combo3", P | R, form1<&F::Combo3>, lists::estribo, registro(27, "Combo3, estribo pré-definido")),
        lista("EstriboDiametro", P | R, form1<&F::EstriboDiametro>, lists::estriboDigitado,
              depois(11, "EstriboDiametro")),
        caixa("EstriboEspacamento", P | R, form1<&F::EstriboEspacamento>, depois(10, "EstriboEspacamento")),
        marca("Check5", P | R | B, form1<&F::Check5>, registro(24, "Check5, mesmo tipo de aço")),
        opcao("Option7(0)", kGancho, gancho<0>, registro(29, "Option7, gancho &45 ou semi-circ.")),
        opcao("Option7(1)", kGancho, gancho<1>, registro(28, "Option7, gancho &90")),
        grupo(kGancho, P | R),
        caixa("Text6", P, form1<&F::Text6>, registro(35, "Text6, escala")),
        habilitado("Text6.Enabled", emUso<&F::Text6>, registro(36, "Text6 habilitado")),
        // ABNT NBR 6118:2014
        lista("Norma", P | R | B, form1<&F::Norma>, lists::norma, depois(4, "Norma")),
        lista("SegundaOrdem", P | R | B, form1<&F::SegundaOrdem>, lists::segundaOrdem, depois(12, "SegundaOrdem")),
        caixa("MdBase", P | R | B, form1<&F::MdBase>, depois(5, "MdBase")),
        caixa("MyTopo", P | R | B, form1<&F::MyTopo>, depois(6, "MyTopo")),
        caixa("MyBase", P | R | B, form1<&F::MyBase>, depois(7, "MyBase")),
        caixa("LeH", P | R | B, form1<&F::LeH>, depois(8, "LeH")),
        caixa("LeB", P | R | B, form1<&F::LeB>, depois(9, "LeB")),
        // "Outros valores"
        lista("Form8.Combo1", P | R | B, form8<&O::Combo1>, lists::estribo,
              registro(38, "Outros valores: diâmetro máximo dos estribos")),
        lista("Form8.Combo3", P | R | B, form8<&O::Combo3>, lists::longitudinal,
              registro(39, "Outros valores: diâmetro máximo das barras longitudinais")),
        caixa("Form8.Text2", P | R | B, form8<&O::Text2>, registro(33, "Outros valores: diâmetro máximo do agregado")),
        caixa("Form8.Text1", P | R | B, form8<&O::Text1>, registro(34, "Outros valores: precisão")),
        // Every load case is calculated and verified, and the search keeps only the
        // arrangements that carry them all.
        composto("Casos", P | R | B, casos, poeCasos, depois(1, "Caso")),
        // The work, the client, the column's name, the engineer and the revision: the
        // project's, not the result's.
        texto("Obra", P, daObra<&DadosDaObra::obra>, depois(13, "Obra")),
        texto("Cliente", P, daObra<&DadosDaObra::cliente>, depois(14, "Cliente")),
        texto("Pilar", P, daObra<&DadosDaObra::pilar>, depois(15, "Pilar")),
        texto("Engenheiro", P, daObra<&DadosDaObra::engenheiro>, depois(16, "Engenheiro")),
        texto("Revisao", P, daObra<&DadosDaObra::revisao>, depois(17, "Revisão")),
        // The results
        resultado("Text8", form1<&F::Text8>),
        resultado("Text9", form1<&F::Text9>),
        resultado("Text10", form1<&F::Text10>),
        resultado("Text11", form1<&F::Text11>),
        resultado("Text12", form1<&F::Text12>),
        resultado("Text13", form1<&F::Text13>),
        resultado("Text14", form1<&F::Text14>),
        resultado("Text15", form1<&F::Text15>),
        resultado("Text19", form1<&F::Text19>),
        resultado("Text25", form1<&F::Text25>),
        resultado("Text26", form1<&F::Text26>),
        resultado("Text27", form1<&F::Text27>),
        resultado("Text28", form1<&F::Text28>),
        resultado("Text29", form1<&F::Text29>),
        resultado("Text30", form1<&F::Text30>),
    };
    for (auto& g : t)
        if (g.tipo == Tipo::Grupo)
            for (const auto& o : t)
                if (o.tipo == Tipo::Opcao && o.grupo == g.grupo)
                    g.nome += (g.nome.empty() ? "" : "|") + o.nome;
    return t;
}

std::string verdade(bool b) { return b ? "True" : "False"; }

template <typename... Casos>
struct Visita : Casos... {
    using Casos::operator()...;
};
template <typename... Casos>
Visita(Casos...) -> Visita<Casos...>;

} // namespace

const std::vector<Controle>& controles()
{
    static const std::vector<Controle> t = tabela();
    return t;
}

const Controle* controle(std::string_view nome)
{
    for (const auto& c : controles())
        if (c.nome == nome)
            return &c;
    return nullptr;
}

bool Controle::em(Alcance a) const { return (alcances & bit(a)) != 0; }

std::vector<const Controle*> Controle::opcoesDoGrupo() const
{
    std::vector<const Controle*> v;
    for (const auto& c : controles())
        if (c.tipo == Tipo::Opcao && c.grupo == grupo)
            v.push_back(&c);
    return v;
}

std::string Controle::valor(const Forms& f) const
{
    auto& formas = const_cast<Forms&>(f);
    if (tipo == Tipo::Grupo) {
        for (const Controle* o : opcoesDoGrupo())
            if (std::get<OptionButton*>(o->alvo(formas))->Value)
                return o->nome;
        return {};
    }
    return std::visit(Visita{[](TextBox* c) { return c->Text; }, [](ComboBox* c) { return c->Text; },
                             [](CheckBox* c) { return std::to_string(c->Value); },
                             [](OptionButton* c) { return verdade(c->Value); }, [](bool* b) { return verdade(*b); }},
                      alvo(formas));
}

std::string Controle::valor(const Program& p) const
{
    if (tipo == Tipo::Texto)
        return *noPrograma(const_cast<Program&>(p));
    if (tipo == Tipo::Composto)
        return le(p);
    return valor(static_cast<const Forms&>(p));
}

void Controle::atribui(Forms& f, const std::string& v) const
{
    if (tipo == Tipo::Grupo) {
        for (const Controle* o : opcoesDoGrupo())
            std::get<OptionButton*>(o->alvo(f))->Value = o->nome == v;
        return;
    }
    if (tipo == Tipo::Opcao && v == "True")
        for (const Controle* o : opcoesDoGrupo())
            std::get<OptionButton*>(o->alvo(f))->Value = false;
    std::visit(Visita{[&](TextBox* c) { c->Text = v; }, [&](ComboBox* c) { c->Text = v; },
                      [&](CheckBox* c) { c->Value = v == "1" ? 1 : v == "2" ? 2 : 0; },
                      [&](OptionButton* c) { c->Value = v == "True"; }, [&](bool* b) { *b = v == "True"; }},
               alvo(f));
}

void Controle::atribui(Program& p, const std::string& v) const
{
    if (tipo == Tipo::Texto)
        *noPrograma(p) = v;
    else if (tipo == Tipo::Composto)
        poe(p, v);
    else
        atribui(static_cast<Forms&>(p), v);
}

namespace {

// Only the rows of the controls on a form: a Texto or a Composto has no address there.
template <typename Form>
std::string_view nomeNoEndereco(Form& f, Alvo (*Controle::*noForm)(Form&), const Alvo& controle)
{
    for (const auto& c : controles())
        if (c.*noForm && (c.*noForm)(f) == controle)
            return c.nome;
    return {};
}

} // namespace

std::string_view nomeDoControle(const Form1Model& f, Alvo controle)
{
    return nomeNoEndereco(const_cast<Form1Model&>(f), &Controle::noForm1, controle);
}

std::string_view nomeDoControle(const Form8Model& f, Alvo controle)
{
    return nomeNoEndereco(const_cast<Form8Model&>(f), &Controle::noForm8, controle);
}

std::string_view nomeNoForm(std::string_view nome)
{
    constexpr std::string_view form8 = "Form8.";
    if (nome.starts_with(form8))
        nome.remove_prefix(form8.size());
    return nome;
}

namespace {

// The number of a box the program numbers, "Text7(3)" as 7 and 3, "Text16" as 16 and
// -1; none for any other name.
std::optional<std::pair<int, int>> numeroDaCaixa(std::string_view nome)
{
    constexpr std::string_view prefixo = "Text";
    if (nome.substr(0, prefixo.size()) != prefixo)
        return std::nullopt;
    nome.remove_prefix(prefixo.size());
    int n = 0, i = -1;
    auto [fim, erro] = std::from_chars(nome.data(), nome.data() + nome.size(), n);
    if (erro != std::errc() || fim == nome.data())
        return std::nullopt;
    const std::string_view resto(fim, static_cast<std::size_t>(nome.data() + nome.size() - fim));
    if (!resto.empty() && (resto.front() != '(' || resto.back() != ')'
                           || std::from_chars(resto.data() + 1, resto.data() + resto.size() - 1, i).ec != std::errc()))
        return std::nullopt;
    return std::pair{n, i};
}

} // namespace

std::vector<std::pair<std::string, const TextBox*>> textBoxesOf(const Form1Model& form)
{
    auto& f = const_cast<Form1Model&>(form);
    std::vector<std::pair<std::pair<int, int>, const Controle*>> numeradas;
    for (const auto& c : controles())
        if (const auto n = numeroDaCaixa(c.nome); n && c.tipo == Controle::Tipo::Caixa && c.noForm1)
            numeradas.emplace_back(*n, &c);
    // numeric order: Text1, Text2, ..., Text7(0..7), Text8, ...
    std::stable_sort(numeradas.begin(), numeradas.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::pair<std::string, const TextBox*>> out;
    for (const auto& [numero, c] : numeradas)
        out.emplace_back(c->nome, std::get<TextBox*>(c->noForm1(f)));
    return out;
}

} // namespace pilarix
