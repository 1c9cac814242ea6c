#pragma once
// What "pilarix" is asked for on its command line:
//   pilarix [PROJETO]
//   pilarix --screenshot ARQUIVO.png [PROJETO] [--tela LARGURAxALTURA] [--dialogo diagrama|casos|mxmy]

#include <QSize>
#include <QString>
#include <QStringList>

namespace pilarix::ui {

struct Argumentos {
    QString projeto; // the project to open (or to picture); empty for none
    QString imagem;  // --screenshot: a picture of the window instead of the window
    QSize tela;      // --tela: the screen the picture fills
    QString dialogo; // --dialogo: a picture of that dialog, opened from its menu, instead of the window
    bool valido = true;
};

extern const char* const kUsoDaJanela;

// The arguments after the program's name, as QApplication leaves them.
Argumentos leArgumentos(const QStringList& args);

} // namespace pilarix::ui
