#include "ui/project_data_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace pilarix::ui {

namespace {

QLineEdit* caixa(const char* nome, const std::string& texto, QWidget* pai)
{
    auto* e = new QLineEdit(QString::fromStdString(texto), pai);
    e->setObjectName(QString::fromLatin1(nome));
    e->setMinimumWidth(320);
    // One line of the report's heading; a project file keeps any text of that size.
    e->setMaxLength(200);
    return e;
}

std::string texto(const QLineEdit* e) { return e->text().trimmed().toStdString(); }

} // namespace

ProjectDataDialog::ProjectDataDialog(const DadosDaObra& d, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmDadosDaObra"));
    setWindowTitle(QStringLiteral("Dados da obra"));
    obra_ = caixa("txtObra", d.obra, this);
    cliente_ = caixa("txtCliente", d.cliente, this);
    pilar_ = caixa("txtPilar", d.pilar, this);
    engenheiro_ = caixa("txtEngenheiro", d.engenheiro, this);
    revisao_ = caixa("txtRevisao", d.revisao, this);

    auto* campos = new QFormLayout;
    campos->addRow(QStringLiteral("&Obra:"), obra_);
    campos->addRow(QStringLiteral("&Cliente:"), cliente_);
    campos->addRow(QStringLiteral("&Pilar:"), pilar_);
    campos->addRow(QStringLiteral("&Engenheiro:"), engenheiro_);
    campos->addRow(QStringLiteral("&Revisão:"), revisao_);

    auto* botoes = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    botoes->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Cancelar"));
    connect(botoes, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(botoes, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* raiz = new QVBoxLayout(this);
    raiz->addLayout(campos);
    raiz->addWidget(botoes);
}

DadosDaObra ProjectDataDialog::dados() const
{
    return {texto(obra_), texto(cliente_), texto(pilar_), texto(engenheiro_), texto(revisao_)};
}

bool editProjectData(DadosDaObra& dados, QWidget* parent)
{
    ProjectDataDialog d(dados, parent);
    if (d.exec() != QDialog::Accepted)
        return false;
    const DadosDaObra novos = d.dados();
    const bool mudou = novos.obra != dados.obra || novos.cliente != dados.cliente || novos.pilar != dados.pilar
                       || novos.engenheiro != dados.engenheiro || novos.revisao != dados.revisao;
    dados = novos;
    return mudou;
}

} // namespace pilarix::ui
