// Pilarix Normal: the window, or with "--screenshot FILE.png [PROJECT] [--tela LxA]"
// a picture of it after one calculation.

#include "ui/main_window.h"
#include "ui/screenshot.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStyleFactory>
#include <QTranslator>

#include <iostream>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setOrganizationName(QStringLiteral("Pilarix"));
    QApplication::setApplicationName(QStringLiteral("Pilarix Normal"));
    // Qt's own dialogs and buttons (files, questions, context menus) in Portuguese.
    QTranslator qtbase;
    if (qtbase.load(QStringLiteral("qtbase_pt_BR"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&qtbase);
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));

    const QStringList args = QApplication::arguments();
    if (args.size() >= 2 && args.at(1) == QStringLiteral("--screenshot")) {
        QStringList resto = args.mid(2);
        QSize tela;
        if (const auto i = resto.indexOf(QStringLiteral("--tela")); i >= 0 && i + 1 < resto.size()) {
            const QStringList lados = resto.at(i + 1).split(QLatin1Char('x'));
            if (lados.size() == 2)
                tela = QSize(lados[0].toInt(), lados[1].toInt());
            resto.remove(i, 2);
        }
        if (resto.isEmpty() || resto.size() > 2 || (args.contains(QStringLiteral("--tela")) && !tela.isValid())) {
            std::cerr << "uso: pilarix [--screenshot ARQUIVO.png [PROJETO] [--tela LARGURAxALTURA]]\n";
            return 2;
        }
        return pilarix::ui::salvaImagemDaJanela(resto.at(0), resto.size() == 2 ? resto.at(1) : QString(), tela);
    }
    pilarix::ui::MainWindow janela;
    janela.inicia();
    janela.show();
    return app.exec();
}
