#pragma once
// The binding of the main window's widgets to the controls of the form model, both
// ways: each widget is made with its control, its key filter, its check and the
// label a message gives it; the widgets' values are copied into the model before a
// handler of the program runs, and painted from it after. A widget of a control the
// table of controls holds (window/control_table.h) takes its object name from there;
// only a button, which the table does not hold, is named where it is made.

#include "window/control_table.h"
#include "window/program.h"
#include "ui/key_filters.h"

#include <QObject>
#include <QString>

#include <functional>
#include <map>
#include <utility>
#include <vector>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;

namespace pilarix::ui {

class BoxCheck;

// A widget's object name: the name the table of controls gives its control on the
// main window ("Text16", "Option7(1)"), or on the dialog "Outros valores" ("Text1"
// for the table's "Form8.Text1"); empty for a control the table does not hold.
QString nomeDoWidget(const Form1Model& f, Controle::Alvo controle);
QString nomeDoWidget(const Form8Model& f, Controle::Alvo controle);

class FormBinding : public QObject {
public:
    struct Callbacks {
        std::function<void(bool digitacao)> editou;              // an input widget changed
        std::function<void()> enter;                             // Enter in an input box
        std::function<void(QWidget*, const QString&)> recusou;  // a key or a paste refused
        std::function<void(const QString&)> avisa;              // a box's text the program cannot read
    };
    // `form`: the main window's controls, which the widgets are made for.
    FormBinding(Form1Model& form, Callbacks callbacks, QObject* parent);

    QLineEdit* caixa(TextBox& m, Teclas regra, int largura, const QString& rotulo);
    QLineEdit* resultado(TextBox& m, int largura);
    QComboBox* lista(ComboBox& m, const QString& rotulo);
    QCheckBox* marca(CheckBox& m, const QString& texto);
    QRadioButton* opcao(OptionButton& m);
    QPushButton* botao(CommandButton& m, const QString& nome, std::function<void()> acao);
    // Buttons of one frame: at most one of them is chosen.
    void agrupa(std::vector<QRadioButton*> grupo) { grupos_.push_back(std::move(grupo)); }
    // A box of the window's own, bound to no control: it takes no keys and has a name.
    void somenteLeitura(QLineEdit* e, const QString& rotulo);

    // The name a message gives an input, or null for a widget without one.
    const QString* rotuloDe(const QWidget* w) const;
    BoxCheck& conferidas() { return *conferidas_; }

    void copiaParaModelo();
    // The boxes (a result out of date faded), then the lists, ticks, options and buttons.
    // The result boxes take their texts from the record of the calculation on show.
    void pintaCaixas(bool desatualizado, const app::CalculationRecord& registro);
    void pintaOutros();

private:
    Form1Model& form_;
    Callbacks callbacks_;
    KeyFilter* filtroInteiro_;
    KeyFilter* filtroDecimal_;
    KeyFilter* filtroComSinal_;
    KeyFilter* filtroBitola_;
    KeyFilter* filtroNenhum_;
    BoxCheck* conferidas_; // every numeric box's text, refused whole while the program cannot read it

    std::vector<std::pair<TextBox*, QLineEdit*>> caixas_;
    std::vector<std::pair<ComboBox*, QComboBox*>> listas_;
    std::vector<std::pair<CheckBox*, QCheckBox*>> marcas_;
    std::vector<std::pair<OptionButton*, QRadioButton*>> opcoes_;
    std::vector<std::pair<CommandButton*, QPushButton*>> botoes_;
    std::vector<std::vector<QRadioButton*>> grupos_;
    std::map<const QWidget*, QString> rotulos_;
};

} // namespace pilarix::ui
