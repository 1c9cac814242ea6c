#include "ui/solutions_dialog.h"

#include "base/number_text.h"
#include "ui/interaction_plot.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace pilarix::ui {

SolutionsDialog::SolutionsDialog(Form11Model& form, std::function<void()> escolhe, QWidget* parent)
    : QDialog(parent), form_(form), escolhe_(std::move(escolhe))
{
    setObjectName(QStringLiteral("Form11"));
    setModal(true);
    setWindowTitle(QString::fromStdString(form_.Caption));

    auto* conteudo = new QWidget;
    auto* grade = new QGridLayout(conteudo);
    grade->setHorizontalSpacing(6);
    grade->setVerticalSpacing(2);
    const char* cabecalhos[kColunas] = {"Barra (mm)", "Barras", "As (cm2)", "Utilização", "Na base", "Na altura",
                                        "Estribo", "Aço long. (kg)", "Aço total (kg)"};
    const char* dicas[kColunas] = {
        "Diâmetro da barra longitudinal", "Número total de barras da seção", "Área de aço efetiva",
        "Utilização da seção detalhada sob o caso mais desfavorável (100 % no limite)",
        "Barras em cada face de largura b", "Barras em cada face de altura h", "Estribo e espaçamento",
        "Peso das barras longitudinais: a ordem da lista",
        "Barras longitudinais e estribos principais (um a cada espaçamento, mais um; sem os suplementares)"};
    grade->addWidget(new QLabel(QStringLiteral("Nº")), 0, 0);
    for (int c = 0; c < kColunas; ++c) {
        auto* l = new QLabel(QString::fromUtf8(cabecalhos[c]));
        l->setAlignment(Qt::AlignCenter);
        l->setToolTip(QString::fromUtf8(dicas[c]));
        grade->addWidget(l, 0, c + 1);
    }
    grupo_ = new QButtonGroup(this);
    for (int i = 0; i < Form11Model::kRows; ++i) {
        auto& l = linhas_[static_cast<std::size_t>(i)];
        l.opcao = new QRadioButton;
        l.opcao->setObjectName(QStringLiteral("Option1(%1)").arg(i));
        grupo_->addButton(l.opcao, i);
        grade->addWidget(l.opcao, i + 1, 0);
        for (int c = 0; c < kColunas; ++c) {
            auto* e = new QLineEdit;
            e->setReadOnly(true);
            e->setFocusPolicy(Qt::NoFocus);
            e->setAlignment(Qt::AlignRight);
            e->setFixedWidth(c == kEstribo ? 84 : 68);
            l.caixas[static_cast<std::size_t>(c)] = e;
            grade->addWidget(e, i + 1, c + 1);
        }
    }
    grade->setRowStretch(Form11Model::kRows + 1, 1);
    connect(grupo_, &QButtonGroup::idClicked, this, &SolutionsDialog::escolheu);

    auto* rolagem = new QScrollArea(this);
    rolagem->setWidget(conteudo);
    rolagem->setWidgetResizable(true);
    rolagem->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rolagem_ = rolagem;
    conteudo_ = conteudo;
    rolagem->setMinimumHeight(360);

    vazio_ = new QLabel(QStringLiteral("Nenhuma solução guardada."), this);

    auto* voltar = new QPushButton(QStringLiteral("&Voltar"), this);
    voltar->setObjectName(QStringLiteral("Command1"));
    connect(voltar, &QPushButton::clicked, this, &QDialog::accept);
    auto* botoes = new QHBoxLayout;
    botoes->addWidget(vazio_);
    botoes->addStretch();
    botoes->addWidget(voltar);

    auto* raiz = new QVBoxLayout(this);
    raiz->addWidget(rolagem, 1);
    raiz->addLayout(botoes);
    atualiza();
}

void SolutionsDialog::showEvent(QShowEvent* event)
{
    // The rows keep their full width; only the height scrolls.
    conteudo_->adjustSize();
    rolagem_->setMinimumWidth(conteudo_->sizeHint().width() + rolagem_->verticalScrollBar()->sizeHint().width()
                              + 2 * rolagem_->frameWidth());
    QDialog::showEvent(event);
}

void SolutionsDialog::atualiza()
{
    atualizando_ = true;
    grupo_->setExclusive(false);
    for (int i = 0; i < Form11Model::kRows; ++i) {
        const auto& r = form_.Rows[static_cast<std::size_t>(i)];
        auto& l = linhas_[static_cast<std::size_t>(i)];
        const bool mostra = i < form_.RowsShown && r.Option.Visible;
        l.opcao->setText(r.Option.Caption.empty() ? QString::number(i + 1) : QString::fromStdString(r.Option.Caption));
        l.opcao->setEnabled(r.Option.Enabled);
        l.opcao->setChecked(r.Option.Value);
        l.opcao->setVisible(mostra);
        const auto* d = static_cast<std::size_t>(i) < detalhes_.size() && detalhes_[static_cast<std::size_t>(i)].calculado
                            ? &detalhes_[static_cast<std::size_t>(i)]
                            : nullptr;
        const auto qs = [](const std::string& t) { return QString::fromStdString(t); };
        std::array<QString, kColunas> textos;
        textos[kNaBase] = qs(r.nBase);
        textos[kNaAltura] = qs(r.nAltura);
        textos[kPesoLongitudinal] = qs(r.Peso);
        textos[kEstribo] = r.DiamEstriboMm.empty() ? QString() : QStringLiteral("ø %1").arg(qs(r.DiamEstriboMm));
        if (d && mostra && !r.Peso.empty()) {
            textos[kBarra] = qs(Format(d->diametroBarra * 10, "##0.0"));
            textos[kBarras] = QString::number(d->barras);
            textos[kArea] = qs(Format(d->area, "##0.00"));
            textos[kUtilizacao] = utilisationText(d->utilizacao);
            textos[kEstribo] = QStringLiteral("ø %1 c/%2").arg(qs(Str(d->diametroEstribo * 10)), qs(Str(d->espacamentoEstribo)));
            textos[kPesoTotal] = qs(Format(d->pesoTotal, "##0.00"));
        }
        for (std::size_t c = 0; c < kColunas; ++c) {
            l.caixas[c]->setText(textos[c]);
            l.caixas[c]->setVisible(mostra);
        }
    }
    grupo_->setExclusive(true);
    vazio_->setVisible(form_.RowsShown == 0);
    atualizando_ = false;
}

void SolutionsDialog::poeDetalhes(std::vector<DetalheDaSolucao> detalhes)
{
    detalhes_ = std::move(detalhes);
    atualiza();
}

void SolutionsDialog::escolheu(int linha)
{
    if (atualizando_)
        return;
    for (int i = 0; i < Form11Model::kRows; ++i)
        form_.Rows[static_cast<std::size_t>(i)].Option.Value = i == linha;
    if (escolhe_)
        escolhe_();
    atualiza();
}

} // namespace pilarix::ui
