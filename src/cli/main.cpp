#include "cli/cli.h"

#include <iostream>
#include <memory>

#ifdef PILARIX_DESENHO_QT
#include "render/drawing_export.h"
#include "render/report_pdf.h"

#include <QGuiApplication>

namespace {

QtMessageHandler qtDefaultHandler = nullptr;

// The command line's standard error carries its own messages, which scripts read.
// Qt's note that a session without a desktop has no runtime folder (it takes one
// under /tmp) says nothing about the run, so it is left out; every other Qt message
// goes through as Qt would print it.
void quietAboutTheRuntimeFolder(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtWarningMsg && message.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR")))
        return;
    if (qtDefaultHandler)
        qtDefaultHandler(type, context, message);
    else
        std::cerr << message.toStdString() << '\n';
}

} // namespace
#endif

int main(int argc, char** argv)
{
    pilarix::DrawingWriter writer;
    pilarix::ReportWriter memorial;
#ifdef PILARIX_DESENHO_QT
    // SVG, PNG and the report's PDF are drawn by Qt's painter, whose texts need a Qt
    // application: one is made, without a screen, only when one of them is asked for.
    std::unique_ptr<QGuiApplication> app;
    const auto ensureApp = [&app] {
        if (!app) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            qtDefaultHandler = qInstallMessageHandler(quietAboutTheRuntimeFolder);
            static int qtArgc = 1;
            static char name[] = "pilarix-cli";
            static char* qtArgv[] = {name, nullptr};
            app = std::make_unique<QGuiApplication>(qtArgc, qtArgv);
        }
    };
    writer = [&](const pilarix::engine::SectionGeometry& g, const std::string& path, double scale, std::string& error) {
        ensureApp();
        return pilarix::render::exportDrawing(g, path, scale, error);
    };
    memorial = [&](const pilarix::app::CalculationRecord& record, const std::string& path, std::string& error) {
        ensureApp();
        return pilarix::render::writeReport(record, path, pilarix::render::currentStamp(), error);
    };
#endif
    return pilarix::runCli(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr, writer, memorial);
}
