#pragma once
// "Soluções": the stored arrangements, lightest first, each with its bar, the count,
// As, the utilisation, the bars per face, the stirrup with its spacing, and the steel
// without and with the stirrups. Choosing a row puts that arrangement into the main
// window and recalculates it there.

#include "window/forms.h"
#include "window/solution_details.h"

#include <vector>

#include <QDialog>

#include <array>
#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QButtonGroup;
class QScrollArea;

namespace pilarix::ui {

class SolutionsDialog : public QDialog {
    Q_OBJECT
public:
    // `escolhe` runs when the user picks a row (0-based); the model already has
    // that row's option selected.
    SolutionsDialog(Form11Model& form, std::function<void()> escolhe, QWidget* parent = nullptr);

    // Repaints the rows from the model.
    void atualiza();
    // The figures of each row worked out again (window/solution_details.h).
    void poeDetalhes(std::vector<DetalheDaSolucao> detalhes);

    enum Coluna { kBarra, kBarras, kArea, kUtilizacao, kNaBase, kNaAltura, kEstribo, kPesoLongitudinal, kPesoTotal,
                  kColunas };

    QRadioButton* opcao(int linha) const { return linhas_[static_cast<std::size_t>(linha)].opcao; }
    QLineEdit* caixa(int linha, int coluna) const
    {
        return linhas_[static_cast<std::size_t>(linha)].caixas[static_cast<std::size_t>(coluna)];
    }

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct Linha {
        QRadioButton* opcao = nullptr;
        std::array<QLineEdit*, kColunas> caixas{};
    };
    void escolheu(int linha);

    Form11Model& form_;
    std::function<void()> escolhe_;
    std::array<Linha, Form11Model::kRows> linhas_;
    QButtonGroup* grupo_;
    QLabel* vazio_;
    QScrollArea* rolagem_ = nullptr;
    QWidget* conteudo_ = nullptr;
    bool atualizando_ = false;
    std::vector<DetalheDaSolucao> detalhes_;
};

} // namespace pilarix::ui
