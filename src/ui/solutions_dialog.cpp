#include "ui/solutions_dialog.h"

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
    const char* cabecalhos[] = {"Aço (Kg)", "Barras na base", "Barras na altura", "Estribo (mm)", "Estribo"};
    grade->addWidget(new QLabel(QStringLiteral("Nº")), 0, 0);
    for (int c = 0; c < 5; ++c) {
        auto* l = new QLabel(QString::fromUtf8(cabecalhos[c]));
        l->setAlignment(Qt::AlignCenter);
        grade->addWidget(l, 0, c + 1);
    }
    grupo_ = new QButtonGroup(this);
    for (int i = 0; i < Form11Model::kRows; ++i) {
        auto& l = linhas_[static_cast<std::size_t>(i)];
        l.opcao = new QRadioButton;
        l.opcao->setObjectName(QStringLiteral("Option1(%1)").arg(i));
        grupo_->addButton(l.opcao, i);
        grade->addWidget(l.opcao, i + 1, 0);
        for (int c = 0; c < 5; ++c) {
            auto* e = new QLineEdit;
            e->setReadOnly(true);
            e->setFocusPolicy(Qt::NoFocus);
            e->setAlignment(Qt::AlignRight);
            e->setFixedWidth(80);
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
        const std::string* textos[] = {&r.Peso, &r.nBase, &r.nAltura, &r.DiamEstriboMm, &r.Estribo};
        for (std::size_t c = 0; c < 5; ++c) {
            l.caixas[c]->setText(QString::fromStdString(*textos[c]));
            l.caixas[c]->setVisible(mostra);
        }
    }
    grupo_->setExclusive(true);
    vazio_->setVisible(form_.RowsShown == 0);
    atualizando_ = false;
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
