#pragma once
// The two columns of input frames in their scroll area. They stand side by side
// while the drawing keeps a useful width beside them, one above the other on a
// narrow screen (or a large scaling); they scroll where the screen is short.

class QBoxLayout;
class QScrollArea;
class QWidget;

namespace pilarix::ui {

class InputColumns {
public:
    InputColumns(QWidget* entradas, QWidget* opcoes);

    // The area to place in the window; the window owns it once placed.
    QScrollArea* rolagem() const { return rolagem_; }
    // `livre`: the window's width less the results' column.
    void dispoe(int livre);

private:
    QWidget* entradas_;
    QWidget* opcoes_;
    QBoxLayout* colunas_;
    QScrollArea* rolagem_;
};

} // namespace pilarix::ui
