#pragma once
// "Pilarix Normal", the main window: a painter and editor of the form model. Before
// any handler of the program runs, the widgets' values are copied into the model;
// after it, every widget is refreshed from the model (texts, colours, visibility,
// the drawing). The calculation itself never sees a widget.
//
// Around the program's own behaviour the window keeps what a desktop user relies
// on: the result on show is marked out of date as soon as an input it was made from
// changes; the messages of the last calculation stay listed beside the drawing; the
// input is checked before it is read (an empty box is named, not read as 0); the
// project's name and its unsaved changes are in the title, with a question before
// they are lost; edits can be undone; the frames fit a small screen.

#include "window/program.h"
#include "ui/key_filters.h"

#include <QMainWindow>
#include <QPointer>
#include <QString>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class QAction;
class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QTextBrowser;
class QUndoStack;

namespace pilarix::ui {

class EditHistory;
class FileActions;
class FormBinding;
class InputColumns;
class RecentProjects;
class QtDialogs;
class SectionCanvas;
class WindowDialogs;
class Norma2014Panel;
class Norma2014Results;
class MomentContourDialog;

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

    // Whether a handler changes the input as the user's own edit (undone by Ctrl+Z:
    // a step button, the d' estimate accepted, "Outros valores", the bar clicked,
    // "Valores padrão") or as the program's work (a calculation's corrections, the
    // search, a file loaded), which is not undone.
    enum class Edicao { Programa, Usuario };

    // Runs a handler of the program between the two copies: widgets to model before,
    // model to widgets after. A calculation that cannot go on ends in its message.
    void executa(const std::function<void()>& handler, Edicao edicao = Edicao::Programa,
                 const QString& descricao = QString());

    void copiaParaModelo();
    void atualiza();

    SectionCanvas* desenho() const { return desenho_; }
    QTextBrowser* mensagens() const { return mensagens_; }
    QUndoStack* pilhaDesfazer() const;
    // The result on show was made from other input than the window now holds.
    bool desatualizado() const { return desatualizado_; }
    // The input differs from the project as last saved or opened.
    bool modificado() const;
    // The project file the window holds ("" before one is opened or saved).
    const QString& arquivoAtual() const { return arquivoAtual_; }

    // Calculates as "&Calcula" does, once the input has been checked.
    void calcula();
    // The window's own file commands: each asks before unsaved changes are lost.
    void novo();
    void abre();
    void abreArquivo(const QString& nome);
    bool salva();
    bool salvaComo();

    // The recent projects of the "Arquivo" menu, most recent first.
    QStringList arquivosRecentes() const;

public slots:
    void abreOutrosValores();
    void abreEstimativaDLinha();
    void abreSolucoes();
    void abreSobre();
    void abreAjuda();
    void exportaDesenho();
    void abreDiagrama();
    void abreCasos();
    // "Diagrama Mx–My" under ABNT NBR 6118:2014 (main_window_2014.cpp).
    void abreDiagramaMxMy();
    // Ctrl+P: the calculation report.
    void imprimeMemorial();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void montaMenus();
    QWidget* montaEntradas();
    QWidget* montaOpcoes();
    QWidget* montaDesenho();
    QWidget* montaMensagens();
    QWidget* montaResultados();
    QWidget* montaBotoes();
    void montaOrdemDeTab();
    void montaDicas();
    // ABNT NBR 6118:2014 (main_window_2014.cpp): the rule set's row and frame (the
    // frame is placed by montaOpcoes), the
    // results frame, γc proposed with the rule set, and their refresh.
    void montaNorma2014(QBoxLayout* entradas);
    QWidget* montaEsbeltez();
    void propoeGamaC(int indiceDaNorma);
    void mostra2014();

    QPushButton* passo(CommandButton& m, const QString& nome, void (Program::*handler)(),
                       const TextBox* passoCaixa = nullptr);
    QAction* acao(const QString& texto, const QString& nome, std::function<void()> f);
    void arquivo(void (Program::*handler)());
    void marcouDLinhaAutomatico();

    // The input is checked by the window before a calculation reads it; false (with
    // the message shown) when it cannot be calculated.
    bool entradaConfere();
    bool calculaConferido(const std::function<void()>& handler, Edicao edicao = Edicao::Programa);
    void valoresPadrao();
    void dizEstriboMantido();
    void escolheBitola(int i);
    void recusouTecla(QWidget* caixa, const QString& motivo);
    void mostraNaBarra(const QString& texto);

    // An input widget changed: the edit is kept for undo, and the result, the list
    // and the title are brought up to date with it.
    void entradaEditada(bool digitacao);
    void reavalia();
    void atualizaTitulo();
    void mostraMensagens();
    void mostraVerificacao();
    void desfeito(); // after an undo or a redo has put values back into the model

    // Before input not saved is replaced: true when it may go (saved or discarded).
    bool podeDescartar(const QString& acao);
    void dispoeColunas();

    // The file commands and the other forms work on the window as its own handlers do.
    friend class FileActions;
    friend class WindowDialogs;
    std::unique_ptr<FileActions> arquivos_;
    std::unique_ptr<WindowDialogs> formularios_;
    std::unique_ptr<QtDialogs> dialogosProprios_;
    DialogPort* dialogos_;
    std::unique_ptr<Program> program_;
    // The record of the calculation on show, which every panel reads; made afresh
    // from the model whenever the window shows it (leRegistro).
    app::CalculationRecord registro_;
    void leRegistro();

    FormBinding* formulario_ = nullptr; // the widgets bound to the form model, both ways
    std::array<QLineEdit*, 8> bitolas_{};

    std::unique_ptr<InputColumns> colunas_;
    QScrollArea* rolagemResultados_ = nullptr;

    SectionCanvas* desenho_ = nullptr;
    unsigned versaoDoDesenho_ = 0; // the drawing the canvas shows, so that a refresh keeps its zoom
    QTextBrowser* mensagens_ = nullptr;
    Norma2014Panel* norma2014_ = nullptr;
    Norma2014Results* esbeltez_ = nullptr;
    QPointer<MomentContourDialog> diagramaMxMy_;
    QLineEdit* utilizacao_ = nullptr;
    // The stirrup typed with "Definir manualmente", in use only with that option.
    QComboBox* estriboDiametro_ = nullptr;
    QLineEdit* estriboEspacamento_ = nullptr;
    QLabel* avisoVerificacao_ = nullptr;
    QLabel* casoDeterminante_ = nullptr;
    QLabel* posicaoNaLista_ = nullptr;
    QWidget* veredito_ = nullptr; // "Verificação" and "Erros", never scrolled away
    QLabel* avisoDesatualizado_ = nullptr;
    RecentProjects* recentes_ = nullptr;
    EditHistory* historia_ = nullptr;

    bool ocupado_ = false;  // a handler of the program is running
    bool pintando_ = false; // the widgets are being set from the model
    bool desatualizado_ = false;
    bool buscando_ = false; // "Calcula &melhor solução" is running
    unsigned calculosVistos_ = 0;
    std::string fotoResultado_; // the input the result on show was calculated from
    std::string fotoBusca_;     // the input the list of the search was found for
    std::string fotoSalva_;     // the input as the project was last saved or opened
    QString arquivoAtual_;
};

} // namespace pilarix::ui
