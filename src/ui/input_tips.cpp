#include "ui/input_tips.h"

#include "ui/form_binding.h"

#include <QLineEdit>
#include <QWidget>

#include <utility>

namespace pilarix::ui {

void aplicaDicas(QWidget* centro, Form1Model& f, const std::array<QLineEdit*, 8>& bitolas)
{
    // Every input says what it is, its unit and its limits.
    const std::pair<Controle::Alvo, const char*> dasEntradas[] = {
        {&f.Text1, "Base b da seção: a largura das faces com as barras de \"Base\". Em cm, inteiro; "
                   "o mínimo é 12 cm (um valor menor é corrigido para 12)."},
        {&f.Text2, "Altura h da seção, na direção do momento Md. Em cm, inteiro; o mínimo é 12 cm."},
        {&f.Text23, "Comprimento do pilar, em cm: dá o peso do aço."},
        {&f.Text31, "Passo dos botões - e + da base, em cm (vazio: os botões não mudam a base)."},
        {&f.Text32, "Passo dos botões - e + da altura, em cm (vazio: os botões não mudam a altura)."},
        {&f.Text4, "Número de barras em cada face de largura b, cantos incluídos (2 no mínimo). Mais barras do "
                   "que cabem, a 5 cm entre eixos, são corrigidas para o máximo."},
        {&f.Text5, "Número de barras em cada face de altura h, cantos incluídos (2 no mínimo). Mais barras do "
                   "que cabem, a 5 cm entre eixos, são corrigidas para o máximo."},
        {&f.Text3, "d': distância da face ao centro das barras, em cm. Vazio ou pequeno demais, o cálculo "
                   "pergunta pelo cobrimento e o corrige."},
        {&f.Check3, "Marcado: d' é calculado a partir do cobrimento (começa em 3 cm e segue as correções do "
                    "cobrimento); a caixa d' mostra o valor encontrado."},
        {&f.Text16, "Nd: força normal de cálculo, compressão positiva (tração com o sinal de menos), na "
                    "unidade ao lado."},
        {&f.Combo4, "Unidade de Nd."},
        {&f.Text17, "Md: momento fletor de cálculo, na unidade ao lado (sem sinal)."},
        {&f.Combo5, "Unidade de Md."},
        {&f.Text18, "Fck: resistência característica do concreto à compressão, na unidade ao lado. A norma "
                    "abrange de 20 a 50 MPa; fora disso o cálculo avisa."},
        {&f.Combo6, "Unidade de Fck."},
        {&f.Text20, "Es: módulo de elasticidade do aço, na unidade ao lado (usual: 21000 KN/cm2); maior que zero."},
        {&f.Combo7, "Unidade de Es."},
        {&f.Text21, "γc: coeficiente de minoração da resistência do concreto (usual: 1.4); maior que zero."},
        {&f.Text22, "γs: coeficiente de minoração da resistência do aço (usual: 1.15); maior que zero."},
        {&f.Combo1, "Categoria do aço das barras longitudinais."},
        {&f.Option1, "Tolerância de execução Δc = 10 mm, somada ao cobrimento mínimo da classe."},
        {&f.Option2, "Tolerância de execução Δc = 5 mm (controle rígido), somada ao cobrimento mínimo da classe."},
        {&f.Combo2, "Classe de agressividade ambiental, de I a IV: dá o cobrimento nominal."},
        {&f.Check1, "Marcado: as correções do cobrimento e de d' são feitas sem perguntar."},
        {&f.Check2, "Marcado: o cálculo escolhe a menor bitola que atende à área de aço. Desmarcado: um clique "
                    "numa bitola a fixa para o cálculo."},
        {&f.Option3, "Estribo pré-definido: o diâmetro da lista ao lado."},
        {&f.Combo3, "Diâmetro do estribo pré-definido."},
        {&f.EstriboDiametro, "Com \"Definir manualmente\": o diâmetro do estribo. Com o espaçamento, o cálculo usa "
                             "este estribo sem perguntar e a verificação diz se ele fere alguma regra; vazio, o "
                             "estribo é escolhido durante o cálculo."},
        {&f.EstriboEspacamento, "Com \"Definir manualmente\": o espaçamento do estribo em cm (maior que 0 e no "
                                "máximo 100). Vazio, o estribo é escolhido durante o cálculo."},
        {&f.Option5, "O estribo de menor consumo de aço por metro."},
        {&f.Option6, "O cálculo mostra as opções de estribo e pergunta qual usar."},
        {&f.Check5, "Marcado: os estribos são do mesmo aço das barras longitudinais."},
        {&f.Option7[1], "Gancho em ângulo reto (90°)."},
        {&f.Option7[0], "Gancho a 45° ou semicircular."},
        {&f.Text6, "Escala do desenho exportado em SVG e PNG, em pixels por centímetro da seção; maior que zero."},
    };
    for (const auto& [controle, dica] : dasEntradas) {
        // An empty name would find any widget.
        const QString nome = nomeDoWidget(f, controle);
        if (auto* w = nome.isEmpty() ? nullptr : centro->findChild<QWidget*>(nome))
            w->setToolTip(QString::fromUtf8(dica));
    }
    // The buttons, which the table of controls does not hold, by their own names.
    const std::pair<const char*, const char*> dosBotoes[] = {
        {"Command17", "Estima d' a partir do estribo, da barra e do cobrimento."},
        {"Command1", "Calcula o pilar com os valores da janela (Enter numa caixa faz o mesmo)."},
        {"Command8", "Procura o arranjo de barras e estribo mais leve que passa em todas as verificações."},
        {"Command9", "Próxima solução"},
        {"Command10", "Solução anterior"},
        {"Command11", "Lista as soluções da última busca, da mais leve à mais pesada."},
        {"Command7", "Põe na janela os valores de \"Padrão.txt\" e limpa os resultados (Ctrl+Z desfaz)."},
        {"Command6", "Fecha o programa; antes, pergunta por alterações não salvas."},
        {"Command13", "Diminui a base pelo passo ao lado e calcula."},
        {"Command16", "Aumenta a base pelo passo ao lado e calcula."},
        {"Command14", "Diminui a altura pelo passo ao lado e calcula."},
        {"Command15", "Aumenta a altura pelo passo ao lado e calcula."},
        {"Command3", "Uma barra a menos em cada face da base (2 no mínimo) e calcula."},
        {"Command2", "Uma barra a mais em cada face da base e calcula."},
        {"Command5", "Uma barra a menos em cada face da altura (2 no mínimo) e calcula."},
        {"Command4", "Uma barra a mais em cada face da altura e calcula."},
    };
    for (const auto& [nome, dica] : dosBotoes)
        if (auto* w = centro->findChild<QWidget*>(QString::fromUtf8(nome)))
            w->setToolTip(QString::fromUtf8(dica));
    for (auto* e : bitolas)
        e->setToolTip(QStringLiteral("%1 mm. Em azul, a bitola do último cálculo. Com \"Automático\" desmarcado, "
                                     "um clique fixa esta bitola para o cálculo.")
                          .arg(e->text()));
}

} // namespace pilarix::ui
