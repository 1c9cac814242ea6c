#include "ui/edit_history.h"

#include "ui/form_binding.h"
#include "ui/input_edit.h"
#include "window/window_input.h"

#include <QAbstractButton>
#include <QMainWindow>
#include <QUndoStack>

namespace pilarix::ui {

EditHistory::EditHistory(Program& program, const FormBinding& formulario, QMainWindow* janela,
                         std::function<void()> desfeito)
    : QObject(janela), program_(program), formulario_(formulario), janela_(janela), desfeito_(std::move(desfeito)),
      pilha_(new QUndoStack(this))
{
}

void EditHistory::lembraEntrada() { valoresAtuais_ = valoresDaEntrada(program_, Alcance::Projeto); }

void EditHistory::registra(const QString& descricao, bool digitacao)
{
    auto agora = valoresDaEntrada(program_, Alcance::Projeto);
    std::vector<EdicaoDaEntrada::Mudanca> mudancas;
    for (std::size_t i = 0; i < agora.size() && i < valoresAtuais_.size(); ++i)
        if (agora[i].second != valoresAtuais_[i].second)
            mudancas.push_back({agora[i].first, valoresAtuais_[i].second, agora[i].second});
    valoresAtuais_ = std::move(agora);
    if (mudancas.empty())
        return;
    // The edit is named as the menu says it: "Desfazer Base (cm)".
    QString texto = descricao;
    if (texto.isEmpty() && mudancas.size() == 1) {
        const QString nome = QString::fromStdString(mudancas.front().nome).section(QLatin1Char('|'), 0, 0);
        auto* w = janela_->centralWidget()->findChild<QWidget*>(nome);
        if (const QString* rotulo = w ? formulario_.rotuloDe(w) : nullptr)
            texto = *rotulo;
        else if (auto* b = qobject_cast<QAbstractButton*>(w); b && !b->text().isEmpty())
            texto = b->text().remove(QLatin1Char('&')).simplified();
        else
            texto = nome;
    }
    if (texto.isEmpty())
        texto = QStringLiteral("edição");
    pilha_->push(new EdicaoDaEntrada(std::move(mudancas), digitacao, texto,
                                     [this](const std::vector<std::pair<std::string, std::string>>& v) {
                                         for (const auto& [nome, valor] : v)
                                             restauraEntrada(program_, nome, valor);
                                         desfeito_();
                                     }));
}

} // namespace pilarix::ui
