#include "cli/cli.h"

#include <iostream>
#include <memory>

#ifdef PILARIX_DESENHO_QT
#include "render/drawing_export.h"

#include <QGuiApplication>
#endif

int main(int argc, char** argv)
{
    pilarix::DrawingWriter writer;
#ifdef PILARIX_DESENHO_QT
    // SVG and PNG are drawn by the window's painter, whose texts need a Qt
    // application: one is made, without a screen, only when a drawing is asked for.
    std::unique_ptr<QGuiApplication> app;
    writer = [&](const pilarix::engine::SectionGeometry& g, const std::string& path, double scale, std::string& error) {
        if (!app) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            static int qtArgc = 1;
            static char name[] = "pilarix-cli";
            static char* qtArgv[] = {name, nullptr};
            app = std::make_unique<QGuiApplication>(qtArgc, qtArgv);
        }
        return pilarix::render::exportDrawing(g, path, scale, error);
    };
#endif
    return pilarix::runCli(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr, writer);
}
