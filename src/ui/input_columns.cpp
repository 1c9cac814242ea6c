#include "ui/input_columns.h"

#include <QBoxLayout>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace pilarix::ui {

InputColumns::InputColumns(QWidget* entradas, QWidget* opcoes) : entradas_(entradas), opcoes_(opcoes)
{
    auto* dentro = new QWidget;
    colunas_ = new QBoxLayout(QBoxLayout::LeftToRight, dentro);
    colunas_->setContentsMargins(0, 0, 0, 0);
    colunas_->setSpacing(8);
    colunas_->addWidget(entradas_, 0, Qt::AlignTop);
    colunas_->addWidget(opcoes_, 0, Qt::AlignTop);
    rolagem_ = new QScrollArea;
    rolagem_->setObjectName(QStringLiteral("rolagemEntradas"));
    rolagem_->setWidget(dentro);
    rolagem_->setWidgetResizable(true);
    rolagem_->setFrameShape(QFrame::NoFrame);
    rolagem_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void InputColumns::dispoe(int livre)
{
    const int barra = rolagem_->verticalScrollBar()->sizeHint().width();
    const int duas = entradas_->minimumWidth() + opcoes_->minimumWidth() + colunas_->spacing();
    const int uma = std::max(entradas_->minimumWidth(), opcoes_->minimumWidth());
    const int resto = livre - 40;
    const bool lado = resto - (duas + barra) >= 360;
    colunas_->setDirection(lado ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    rolagem_->setFixedWidth((lado ? duas : uma) + barra + 2);
}

} // namespace pilarix::ui
