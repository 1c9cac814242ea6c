#include "ui/cases_dialog.h"

#include "base/number_text.h"
#include "ui/interaction_plot.h"
#include "ui/key_filters.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <cmath>

namespace pilarix::ui {

namespace {
// The moments of the base and of the direction of b are ABNT NBR 6118:2014's: their
// columns are hidden under the 2001 rule set.
enum Coluna { kNome, kNd, kMd, kMdBase, kMyTopo, kMyBase, kZona, kBetaX, kAsNec, kUtilizacao, kColunas };

bool momento2014(int coluna) { return coluna == kMdBase || coluna == kMyTopo || coluna == kMyBase; }

QString qs(const std::string& s) { return QString::fromStdString(s); }

QTableWidgetItem* resultado(const QString& texto)
{
    auto* item = new QTableWidgetItem(texto);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}
} // namespace

QString numeroNormalizado(const QString& texto)
{
    const QString t = numeroColado(texto);
    return IsNumber(t.toStdString()) ? t : QString();
}

CasesDialog::CasesDialog(Program& program, std::function<void()> alterou, QWidget* parent)
    : QDialog(parent), p_(program), alterou_(std::move(alterou))
{
    setObjectName(QStringLiteral("frmCasos"));
    setWindowTitle(QStringLiteral("Combinações de esforços"));
    auto* v = new QVBoxLayout(this);
    auto* nota = new QLabel(QStringLiteral(
        "A primeira linha é o Nd e o Md da janela principal. Com dois casos ou mais, \"Calcula\" dimensiona cada caso, "
        "detalha o que pede mais aço e verifica a seção detalhada para todos."));
    nota->setWordWrap(true);
    v->addWidget(nota);

    tabela_ = new QTableWidget(0, kColunas);
    tabela_->setObjectName(QStringLiteral("tblCasos"));
    tabela_->verticalHeader()->setVisible(false);
    tabela_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    tabela_->setSelectionBehavior(QAbstractItemView::SelectRows);
    v->addWidget(tabela_, 1);
    connect(tabela_, &QTableWidget::cellChanged, this, &CasesDialog::editou);

    aviso_ = new QLabel;
    aviso_->setObjectName(QStringLiteral("lblAvisoCasos"));
    aviso_->setWordWrap(true);
    aviso_->setStyleSheet(QStringLiteral("color: rgb(205, 30, 30);"));
    v->addWidget(aviso_);

    auto* botoes = new QHBoxLayout;
    auto* adicionar = new QPushButton(QStringLiteral("&Adicionar"));
    auto* remover = new QPushButton(QStringLiteral("&Remover"));
    auto* colar = new QPushButton(QStringLiteral("C&olar da planilha"));
    auto* fechar = new QPushButton(QStringLiteral("&Fechar"));
    adicionar->setObjectName(QStringLiteral("cmdAdicionarCaso"));
    remover->setObjectName(QStringLiteral("cmdRemoverCaso"));
    colar->setObjectName(QStringLiteral("cmdColarCasos"));
    colar->setToolTip(QStringLiteral("Linhas copiadas de uma planilha: nome, Nd e Md separados por tabulação "
                                     "(vírgula ou ponto decimal)"));
    for (auto* b : {adicionar, remover, colar, fechar})
        b->setAutoDefault(false);
    connect(adicionar, &QPushButton::clicked, this, &CasesDialog::adiciona);
    connect(remover, &QPushButton::clicked, this, &CasesDialog::remove);
    connect(colar, &QPushButton::clicked, this, &CasesDialog::colaDaAreaDeTransferencia);
    connect(fechar, &QPushButton::clicked, this, &QDialog::close);
    botoes->addWidget(adicionar);
    botoes->addWidget(remover);
    botoes->addWidget(colar);
    botoes->addStretch();
    botoes->addWidget(fechar);
    v->addLayout(botoes);
    resize(720, 360);
}

void CasesDialog::carrega(bool desatualizados)
{
    desatualizados_ = desatualizados;
    carregando_ = true;
    const auto& f = p_.Form1;
    const bool norma2014 = p_.norma2014();
    const QString um = qs(f.Combo5.Text);
    tabela_->setHorizontalHeaderLabels(
        {QStringLiteral("Nome"), QStringLiteral("Nd (%1)").arg(qs(f.Combo4.Text)),
         norma2014 ? QStringLiteral("Md topo\n(%1)").arg(um) : QStringLiteral("Md (%1)").arg(um),
         QStringLiteral("Md base"), QStringLiteral("My topo"), QStringLiteral("My base"), QStringLiteral("Zona"),
         QStringLiteral("βx"), QStringLiteral("As,nec (cm2)"), QStringLiteral("Utilização")});
    for (int c = kMdBase; c <= kMyBase; ++c)
        tabela_->setColumnHidden(c, !norma2014);
    // Three more columns need the room to read their headings.
    if (norma2014 && width() < 960)
        resize(960, height());
    tabela_->setRowCount(static_cast<int>(p_.OutrosCasos.size()) + 1);
    const auto linha = [&](int i, const CasoDeCarga& c) {
        tabela_->setItem(i, kNome, new QTableWidgetItem(qs(c.nome)));
        tabela_->setItem(i, kNd, new QTableWidgetItem(qs(c.nd)));
        tabela_->setItem(i, kMd, new QTableWidgetItem(qs(c.md)));
        tabela_->setItem(i, kMdBase, new QTableWidgetItem(qs(c.mdBase)));
        tabela_->setItem(i, kMyTopo, new QTableWidgetItem(qs(c.myTopo)));
        tabela_->setItem(i, kMyBase, new QTableWidgetItem(qs(c.myBase)));
        for (int k = kZona; k < kColunas; ++k)
            tabela_->setItem(i, k, resultado(QString()));
    };
    linha(0, {p_.NomeDoCaso1, f.Text16.Text, f.Text17.Text, f.MdBase.Text, f.MyTopo.Text, f.MyBase.Text});
    for (std::size_t i = 0; i < p_.OutrosCasos.size(); ++i)
        linha(static_cast<int>(i) + 1, p_.OutrosCasos[i]);
    // The results of the last calculation with these cases.
    // After an edit they stay, greyed, on the rows they were calculated for.
    const auto& r = p_.ResultadosDosCasos;
    if (r.size() >= 2) {
        for (int i = 0; i < std::min(tabela_->rowCount(), static_cast<int>(r.size())); ++i) {
            const auto& c = r[static_cast<std::size_t>(i)];
            tabela_->item(i, kZona)->setText(QString::number(static_cast<int>(c.zone)) + QStringLiteral(" (")
                                              + QString::fromLatin1(engine::zoneLetter(c.zone)) + QStringLiteral(")"));
            tabela_->item(i, kBetaX)->setText(qs(Format(c.betaX, "##0.000")));
            tabela_->item(i, kAsNec)->setText(qs(Format(c.asNec, "##0.00")));
            tabela_->item(i, kUtilizacao)->setText(utilisationText(c.utilisation));
            const bool falha = !(c.utilisation <= 1);
            for (int col = 0; col < kColunas; ++col) {
                auto* item = tabela_->item(i, col);
                QFont fonte = item->font();
                fonte.setBold(c.governing);
                item->setFont(fonte);
                if (desatualizados_ && col >= kZona)
                    item->setForeground(QColor(150, 150, 150));
                else if (falha)
                    item->setForeground(QColor(205, 30, 30));
            }
            if (c.governing)
                tabela_->item(i, kNome)->setToolTip(QStringLiteral("Caso determinante: o que pede mais aço"));
        }
    }
    carregando_ = false;
}

void CasesDialog::avisa(const QString& texto) { aviso_->setText(texto); }

void CasesDialog::mudou()
{
    // The window marks its results out of date and shows the table again.
    if (alterou_)
        alterou_();
    carrega(desatualizados_);
}

void CasesDialog::editou(int linha, int coluna)
{
    if (carregando_)
        return;
    auto* item = tabela_->item(linha, coluna);
    if (!item)
        return;
    if (momento2014(coluna) && item->text().trimmed().isEmpty()) {
        // An empty end moment is none, as in the main window.
        carregando_ = true;
        item->setText(QString());
        carregando_ = false;
    } else if (coluna == kNd || coluna == kMd || momento2014(coluna)) {
        const QString n = numeroNormalizado(item->text());
        if (n.isEmpty()) {
            avisa(QStringLiteral("Linha %1: \"%2\" não é um número (use vírgula ou ponto decimal).")
                      .arg(linha + 1)
                      .arg(item->text()));
            carrega();
            return;
        }
        carregando_ = true;
        item->setText(n);
        carregando_ = false;
    } else if (coluna == kNome) {
        // The name goes into the project file, where a comma or a semicolon would split it.
        const QString nome = item->text().trimmed();
        if (nome.isEmpty() || nome.contains(QLatin1Char(',')) || nome.contains(QLatin1Char(';'))) {
            avisa(QStringLiteral("Linha %1: o nome do caso não pode ficar vazio nem ter vírgula ou ponto e vírgula.")
                      .arg(linha + 1));
            carrega();
            return;
        }
    }
    avisa(QString());
    guarda();
}

void CasesDialog::guarda()
{
    auto texto = [&](int i, int c) { return tabela_->item(i, c) ? tabela_->item(i, c)->text().toStdString() : ""; };
    p_.NomeDoCaso1 = texto(0, kNome);
    p_.Form1.Text16.Text = texto(0, kNd);
    p_.Form1.Text17.Text = texto(0, kMd);
    p_.Form1.MdBase.Text = texto(0, kMdBase);
    p_.Form1.MyTopo.Text = texto(0, kMyTopo);
    p_.Form1.MyBase.Text = texto(0, kMyBase);
    p_.OutrosCasos.clear();
    for (int i = 1; i < tabela_->rowCount(); ++i)
        p_.OutrosCasos.push_back({texto(i, kNome), texto(i, kNd), texto(i, kMd), texto(i, kMdBase), texto(i, kMyTopo),
                                  texto(i, kMyBase)});
    // The results stay, greyed by the window, until the next calculation.
    mudou();
}

void CasesDialog::adiciona()
{
    const auto n = p_.OutrosCasos.size() + 2;
    const auto& f = p_.Form1;
    if (p_.norma2014())
        p_.OutrosCasos.push_back({std::to_string(n), f.Text16.Text, f.Text17.Text, f.MdBase.Text, f.MyTopo.Text,
                                  f.MyBase.Text});
    else
        p_.OutrosCasos.push_back({std::to_string(n), f.Text16.Text, f.Text17.Text});
    mudou();
    // The cursor in the new row's name, ready to be typed over.
    tabela_->setCurrentCell(tabela_->rowCount() - 1, kNome);
    tabela_->setFocus();
    tabela_->editItem(tabela_->item(tabela_->rowCount() - 1, kNome));
}

void CasesDialog::remove()
{
    const int linha = tabela_->currentRow();
    if (linha <= 0) {
        avisa(QStringLiteral("O primeiro caso é o Nd e o Md da janela principal: altere-o, não o remova."));
        return;
    }
    p_.OutrosCasos.erase(p_.OutrosCasos.begin() + (linha - 1));
    avisa(QString());
    mudou();
}

bool CasesDialog::cola(const QString& texto)
{
    std::vector<CasoDeCarga> novos;
    const QStringList linhas = texto.split(QLatin1Char('\n'));
    bool primeira = true, salteiCabecalho = false;
    for (int i = 0; i < linhas.size(); ++i) {
        const QString l = linhas[i].trimmed();
        if (l.isEmpty())
            continue;
        // A spreadsheet's block often starts with its headings ("Caso  Nd  Md"):
        // a first row whose forces are no numbers at all is one of them.
        const bool cabecalho = primeira && [&] {
            const QStringList c = l.split(QLatin1Char('\t'));
            for (int k = c.size() >= 3 ? 1 : 0; k < c.size(); ++k)
                if (!numeroNormalizado(c[k]).isEmpty())
                    return false;
            return c.size() >= 2;
        }();
        primeira = false;
        if (cabecalho) {
            salteiCabecalho = true;
            continue;
        }
        QStringList campos = l.split(QLatin1Char('\t'));
        if (campos.size() == 2)
            campos.prepend(QString::number(p_.OutrosCasos.size() + novos.size() + 2));
        // Under 2014 a row may go on with Md at the base, My at the top and at the
        // base; a cell left empty is no moment.
        const bool extras = p_.norma2014() && campos.size() > 3 && campos.size() <= 6;
        QStringList momentos;
        bool momentosOk = true;
        for (int k = 3; extras && k < 6; ++k) {
            const QString c = k < campos.size() ? campos[k].trimmed() : QString();
            const QString n = c.isEmpty() ? QString() : numeroNormalizado(c);
            momentosOk = momentosOk && (c.isEmpty() || !n.isEmpty());
            momentos << n;
        }
        const bool formato = campos.size() == 3 || extras;
        const QString nd = formato ? numeroNormalizado(campos[1]) : QString();
        const QString md = formato ? numeroNormalizado(campos[2]) : QString();
        const QString nome = formato ? campos[0].trimmed() : QString();
        if (nd.isEmpty() || md.isEmpty() || !momentosOk || nome.isEmpty() || nome.contains(QLatin1Char(','))
            || nome.contains(QLatin1Char(';'))) {
            avisa(QStringLiteral("Linha %1 colada não é um caso (nome, Nd e Md separados por tabulação): \"%2\". "
                                 "Nada foi colado.")
                      .arg(i + 1)
                      .arg(l));
            return false;
        }
        if (extras)
            novos.push_back({nome.toStdString(), nd.toStdString(), md.toStdString(), momentos[0].toStdString(),
                             momentos[1].toStdString(), momentos[2].toStdString()});
        else
            novos.push_back({nome.toStdString(), nd.toStdString(), md.toStdString()});
    }
    if (novos.empty()) {
        avisa(QStringLiteral("Não há casos para colar."));
        return false;
    }
    p_.OutrosCasos.insert(p_.OutrosCasos.end(), novos.begin(), novos.end());
    avisa(salteiCabecalho ? QStringLiteral("A primeira linha colada (títulos) foi deixada de lado.") : QString());
    mudou();
    return true;
}

void CasesDialog::colaDaAreaDeTransferencia() { cola(QApplication::clipboard()->text()); }

void CasesDialog::keyPressEvent(QKeyEvent* event)
{
    // Ctrl+V over the table pastes a spreadsheet's block as new cases; a cell being
    // edited takes Ctrl+V itself, and the key does not come here.
    if (event->matches(QKeySequence::Paste)) {
        colaDaAreaDeTransferencia();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace pilarix::ui
