// Pilarix Normal: the window, or with "--screenshot FILE.png [PROJECT]" a picture of
// it after one calculation.

#include "ui/main_window.h"
#include "ui/screenshot.h"

#include <QApplication>
#include <QStyleFactory>

#include <iostream>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QStringList args = QApplication::arguments();
    if (args.size() >= 2 && args.at(1) == QStringLiteral("--screenshot")) {
        if (args.size() < 3 || args.size() > 4) {
            std::cerr << "uso: pilarix [--screenshot ARQUIVO.png [PROJETO]]\n";
            return 2;
        }
        return pilarix::ui::salvaImagemDaJanela(args.at(2), args.size() == 4 ? args.at(3) : QString());
    }
    pilarix::ui::MainWindow janela;
    janela.inicia();
    janela.show();
    return app.exec();
}
