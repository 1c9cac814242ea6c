#pragma once
// The undo history of the main window's input: each edit is kept as the changes of
// the input's values since the edit before it, named as the "Editar" menu says it
// ("Desfazer Base (cm)"); undone or redone, the values go back into the model.

#include "window/program.h"

#include <QObject>
#include <QString>

#include <functional>
#include <string>
#include <utility>
#include <vector>

class QMainWindow;
class QUndoStack;

namespace pilarix::ui {

class FormBinding;

class EditHistory : public QObject {
public:
    // `desfeito` runs after an undo or a redo has put values back into the model;
    // the window's widgets, found by name, give an edit its name.
    EditHistory(Program& program, const FormBinding& formulario, QMainWindow* janela, std::function<void()> desfeito);

    QUndoStack* pilha() const { return pilha_; }
    // The input as it stands is where the next edit starts from.
    void lembraEntrada();
    // The input changed since it was last remembered: one step of undo, when anything changed.
    void registra(const QString& descricao, bool digitacao);

private:
    Program& program_;
    const FormBinding& formulario_;
    QMainWindow* janela_;
    std::function<void()> desfeito_;
    QUndoStack* pilha_;
    std::vector<std::pair<std::string, std::string>> valoresAtuais_; // the input before the next edit
};

} // namespace pilarix::ui
