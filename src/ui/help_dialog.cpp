#include "ui/help_dialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace pilarix::ui {

namespace {
const char* const kAjuda = R"(
<h2>Pilarix Normal</h2>
<p>Dimensionamento e detalhamento de um pilar retangular de concreto armado sob força normal e
momento em torno de um eixo (NBR 6118), com armadura simétrica nas quatro faces.</p>

<h3>Quadros de entrada</h3>
<ul>
<li><b>Dimensões</b>: base b e altura h da seção e o comprimento do pilar, em cm. O menor lado
aceito é 12 cm: um valor menor é corrigido e a barra de estado diz a correção. Os botões
<b>-</b> e <b>+</b> mudam o lado pelo <i>passo</i> ao lado e calculam.</li>
<li><b>Arranjo</b>: barras em cada face da base e da altura, cantos incluídos (barras que não
cabem, a 5 cm entre eixos, são corrigidas), e d', a distância da face ao centro das barras, em
cm. Com <i>d' automático</i> marcado, d' vem do cobrimento e a caixa mostra o valor achado.</li>
<li><b>Esforços e Resistências</b>: Nd (compressão positiva; tração com sinal de menos), Md,
Fck e Es, cada um na unidade da lista ao lado; γc e γs, coeficientes de minoração; o aço.</li>
<li><b>Cobrimento</b>: a tolerância de execução Δc e a classe de agressividade ambiental. Marcado
<i>Corrigir o cobrimento sem perguntar</i>, as correções são feitas sem a pergunta.</li>
<li><b>Bitola (mm)</b>: as barras do catálogo; em azul, a do último cálculo. Com
<i>Automático</i> marcado o cálculo escolhe a bitola; desmarcado, um clique numa bitola a fixa
(com moldura laranja) e todas as verificações valem para ela.</li>
<li><b>Estribos</b> e <b>Ganchos</b>: como o estribo é escolhido e o tipo de gancho.</li>
<li><b>Valores &gt; Outros</b>: precisão das soluções iterativas (maior que 0 e no máximo 0.01),
diâmetro máximo do agregado (vazio quando não é dado) e os maiores diâmetros de barra e de
estribo permitidos. Esc cancela as mudanças.</li>
</ul>

<h3>Números</h3>
<p>Digite números com vírgula ou ponto decimal: a vírgula é gravada como ponto. Uma tecla que a
caixa não aceita dá um bipe e a barra de estado diz o que ela aceita. Uma caixa obrigatória
vazia é apontada antes do cálculo. Unidades internas: cm, kgf, kgf·cm, kgf/cm²
(1 MPa = 10 kgf/cm², 1 kN = 100 kgf).</p>

<h3>Resultados</h3>
<p>Área de aço mínima, teórica e efetiva (total e por barra), peso do aço longitudinal,
cobrimentos, estribo, zona de solicitação e βx = x/h, a <b>utilização</b> da seção detalhada por
compatibilidade de deformações (<i>Diagrama...</i> mostra a curva N–M) e o quadro <b>Erros</b>:
"Ok" ou "erro". O quadro <b>Mensagens</b> lista cada mensagem do último cálculo, com o item da
norma e a resposta dada às perguntas. Quando uma entrada muda depois do cálculo, os resultados e
o desenho ficam acinzentados até o próximo cálculo.</p>

<h3>Botões</h3>
<ul>
<li><b>Calcula</b> (ou Enter numa caixa): calcula com os valores da janela.</li>
<li><b>Calcula melhor solução</b>: procura o arranjo mais leve que passa em todas as
verificações; <b>&lt;</b> e <b>&gt;</b> percorrem as soluções e <b>Outras soluções</b> lista
as 40 mais leves. A lista é limpa quando a seção, as barras, os esforços ou os materiais
mudam.</li>
<li><b>Valores padrão</b>: os valores de "Padrão.txt" (Ctrl+Z desfaz).</li>
</ul>

<h3>Teclas</h3>
<p>Ctrl+N novo, Ctrl+O abrir, Ctrl+S salvar, Ctrl+Shift+S salvar como, Ctrl+P memorial de
cálculo, Ctrl+Z desfazer, Ctrl+Y refazer, F1 esta ajuda. Tab passa de caixa em caixa. O título
mostra o nome do projeto e um * quando há alterações não salvas.</p>
)";
} // namespace

HelpDialog::HelpDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAjuda"));
    setWindowTitle(QStringLiteral("Ajuda do Pilarix"));
    texto_ = new QTextBrowser(this);
    texto_->setObjectName(QStringLiteral("textoAjuda"));
    texto_->setHtml(QString::fromUtf8(kAjuda));
    auto* botoes = new QDialogButtonBox(this);
    auto* fechar = botoes->addButton(QStringLiteral("&Fechar"), QDialogButtonBox::RejectRole);
    fechar->setObjectName(QStringLiteral("cmdFechar"));
    connect(botoes, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* raiz = new QVBoxLayout(this);
    raiz->addWidget(texto_);
    raiz->addWidget(botoes);
}

} // namespace pilarix::ui
