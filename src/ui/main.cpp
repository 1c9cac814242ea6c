// Pilarix Normal: the window, opening the project given (a double click on it), or
// with "--screenshot FILE.png [PROJECT] [--tela LxA]" a picture of it after one
// calculation.

#include "ui/arguments.h"
#include "ui/main_window.h"
#include "ui/screenshot.h"

#include "ui/screen_fit.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStyleFactory>
#include <QTimer>
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
    // No dialog taller than the screen it shows on.
    pilarix::ui::CabeNaTela cabeNaTela;
    app.installEventFilter(&cabeNaTela);

    const pilarix::ui::Argumentos args = pilarix::ui::leArgumentos(QApplication::arguments().mid(1));
    if (!args.valido) {
        std::cerr << pilarix::ui::kUsoDaJanela << "\n";
        return 2;
    }
    if (!args.imagem.isEmpty())
        return pilarix::ui::salvaImagemDaJanela(args.imagem, args.projeto, args.tela, args.dialogo);
    pilarix::ui::MainWindow janela;
    janela.inicia();
    janela.show();
    // Opened once the window is on screen, so that a message about the file has it
    // behind.
    if (!args.projeto.isEmpty())
        QTimer::singleShot(0, &janela, [&janela, &args] { janela.abreArquivo(args.projeto); });
    return app.exec();
}
