#pragma once
// "Pilarix Normal", the main window: a painter and editor of the form model. Before
// any handler of the program runs, the widgets' values are copied into the model;
// after it, every widget is refreshed from the model (texts, colours, visibility,
// the drawing). The calculation itself never sees a widget.

#include "window/program.h"
#include "ui/key_filters.h"

#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QAction;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;

namespace pilarix::ui {

class QtDialogs;
class SectionCanvas;
class OtherValuesDialog;
class DEstimateDialog;
class SolutionsDialog;
class InteractionDialog;

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    // Without a dialog port of its own the window answers with real dialogs.
    explicit MainWindow(DialogPort* dialogs = nullptr, QWidget* parent = nullptr);
    ~MainWindow() override;

    Program& program() { return *program_; }
    DialogPort& dialogos() { return *dialogos_; }

    // The start of the program: the default-values file is loaded into the window.
    void inicia();

    // Runs a handler of the program between the two copies: widgets to model before,
    // model to widgets after. A calculation that cannot go on ends in its message.
    void executa(const std::function<void()>& handler);

    void copiaParaModelo();
    void atualiza();

    SectionCanvas* desenho() const { return desenho_; }

public slots:
    void abreOutrosValores();
    void abreEstimativaDLinha();
    void abreSolucoes();
    void abreSobre();
    void exportaDesenho();
    void abreDiagrama();

private:
    void montaMenus();
    QWidget* montaEntradas();
    QWidget* montaOpcoes();
    QWidget* montaDesenho();
    QWidget* montaResultados();
    QWidget* montaBotoes();

    QLineEdit* caixa(TextBox& m, const QString& nome, Teclas regra, int largura);
    QLineEdit* resultado(TextBox& m, const QString& nome, int largura);
    QComboBox* lista(ComboBox& m, const QString& nome);
    QCheckBox* marca(CheckBox& m, const QString& nome, const QString& texto);
    QRadioButton* opcao(OptionButton& m, const QString& nome);
    QPushButton* botao(CommandButton& m, const QString& nome, std::function<void()> acao);
    QPushButton* passo(CommandButton& m, const QString& nome, void (Program::*handler)());
    QAction* acao(const QString& texto, const QString& nome, std::function<void()> f);
    void arquivo(void (Program::*handler)());
    void marcouDLinhaAutomatico();

    std::unique_ptr<QtDialogs> dialogosProprios_;
    DialogPort* dialogos_;
    std::unique_ptr<Program> program_;

    std::vector<std::pair<TextBox*, QLineEdit*>> caixas_;
    std::vector<std::pair<ComboBox*, QComboBox*>> listas_;
    std::vector<std::pair<CheckBox*, QCheckBox*>> marcas_;
    std::vector<std::pair<OptionButton*, QRadioButton*>> opcoes_;
    std::vector<std::pair<CommandButton*, QPushButton*>> botoes_;
    std::vector<std::vector<QRadioButton*>> grupos_;

    KeyFilter* filtroInteiro_;
    KeyFilter* filtroDecimal_;
    KeyFilter* filtroComSinal_;
    KeyFilter* filtroBitola_;
    KeyFilter* filtroNenhum_;

    SectionCanvas* desenho_ = nullptr;
    unsigned versaoDoDesenho_ = 0; // the drawing the canvas shows, so that a refresh keeps its zoom
    QPointer<OtherValuesDialog> outros_;
    QPointer<DEstimateDialog> estimativa_;
    QPointer<SolutionsDialog> solucoes_;
    QPointer<InteractionDialog> diagrama_;
    QLineEdit* utilizacao_ = nullptr;
    QLabel* avisoVerificacao_ = nullptr;
    void mostraVerificacao();
    bool ocupado_ = false;
};

} // namespace pilarix::ui
