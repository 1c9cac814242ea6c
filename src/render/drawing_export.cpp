#include "render/drawing_export.h"

#include "base/number_text.h"
#include "export/drawing_layout.h"
#include "export/dxf_writer.h"
#include "export/save_failure.h"
#include "files/safe_write.h"
#include "render/section_painter.h"
#include "render/whole_file.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>
#include <filesystem>

namespace pilarix::render {

namespace {

// The size by the rule, in doubles: a mistaken scale must be caught before it
// becomes an int.
QSizeF exactSize(const engine::SectionGeometry& g, double scale)
{
    const exporting::Extent e = exporting::drawingExtent(g);
    return {std::ceil(e.width() * scale) + 2 * kExportMargin, std::ceil(e.height() * scale) + 2 * kExportMargin};
}

std::string suffixOf(const std::string& path)
{
    std::string s = std::filesystem::path(path).extension().string();
    for (char& c : s)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return s;
}

// What stands before any drawing: something to draw, a sensible scale, fonts, and
// a place to write.
bool ready(const engine::SectionGeometry& g, const std::string& path, double scale, QSize& size, std::string& error)
{
    if (!exporting::checkDrawable(g, error))
        return false;
    if (!(std::isfinite(scale) && scale > 0)) {
        error = "A escala do desenho deve ser um número positivo de pixels por centímetro.";
        return false;
    }
    const QSizeF exact = exactSize(g, scale);
    if (!(exact.width() <= kMaxExportSide && exact.height() <= kMaxExportSide)) {
        error = "Na escala de " + Str(scale) + " pixels por centímetro o desenho passaria de "
                + std::to_string(kMaxExportSide) + " pixels de lado; use uma escala menor.";
        return false;
    }
    size = exportSize(g, scale);
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        error = "O desenho em SVG ou PNG precisa da parte gráfica do Qt (QGuiApplication), que o programa não "
                "iniciou.";
        return false;
    }
    if (path.empty()) {
        error = exporting::missingFileName();
        return false;
    }
    if (const int obstacle = exporting::obstacleToSaving(path)) {
        error = exporting::saveFailure(path, obstacle);
        return false;
    }
    if (const std::string why = files::notARegularFile(path); !why.empty()) {
        error = exporting::saveFailure(path, why);
        return false;
    }
    return true;
}

void paintOnSheet(QPainter& p, const engine::SectionGeometry& g, QSize size, double scale)
{
    p.fillRect(QRect(QPoint(0, 0), size), Qt::white);
    paintSection(p, g, placedView(g, scale, kExportMargin));
}

} // namespace

QSize exportSize(const engine::SectionGeometry& g, double scale)
{
    const QSizeF exact = exactSize(g, scale);
    const auto side = [](double s) { return static_cast<int>(std::clamp(s, 0.0, double(kMaxExportSide) + 1)); };
    return {side(exact.width()), side(exact.height())};
}

bool exportSvg(const engine::SectionGeometry& g, const std::string& path, double scale, std::string& error)
{
    QSize size;
    if (!ready(g, path, scale, size, error))
        return false;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setSize(size);
    svg.setViewBox(QRect(QPoint(0, 0), size));
    svg.setResolution(96); // the CSS pixel: a browser shows the drawing at its pixel size
    svg.setTitle(QStringLiteral("Seção do pilar"));
    QPainter p;
    if (!p.begin(&svg)) {
        error = exporting::saveFailure(path, "o desenho em SVG não pôde ser gerado");
        return false;
    }
    paintOnSheet(p, g, size, scale);
    p.end();
    return saveWholeFile(buffer.data(), path, error);
}

bool exportPng(const engine::SectionGeometry& g, const std::string& path, double scale, std::string& error)
{
    QSize size;
    if (!ready(g, path, scale, size, error))
        return false;
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull()) {
        error = exporting::saveFailure(path, "não há memória para uma imagem de " + std::to_string(size.width())
                                                 + " x " + std::to_string(size.height()) + " pixels");
        return false;
    }
    const int dotsPerMetre = static_cast<int>(std::lround(scale * 100));
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    {
        QPainter p(&image);
        paintOnSheet(p, g, size, scale);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) {
        error = exporting::saveFailure(path, "a imagem PNG não pôde ser gerada");
        return false;
    }
    return saveWholeFile(buffer.data(), path, error);
}

engine::SectionGeometry stampedUnverified(const engine::SectionGeometry& g, const std::string& reason)
{
    engine::SectionGeometry stamped = g;
    // The labels' height, as the geometry gives it (at least 1.5 cm).
    double text = 1.5;
    for (const auto& l : g.labels)
        text = std::max(text, l.height);
    stamped.labels.push_back({{0, g.depth + 1.5 * text}, 1.3 * text, "NÃO VERIFICADO: " + reason});
    return stamped;
}

bool exportDrawing(const engine::SectionGeometry& g, const std::string& path, double scale, std::string& error)
{
    if (path.empty()) {
        error = exporting::missingFileName();
        return false;
    }
    const std::string suffix = suffixOf(path);
    if (suffix == ".dxf")
        return exporting::writeDxf(g, path, error);
    if (suffix == ".svg")
        return exportSvg(g, path, scale, error);
    if (suffix == ".png")
        return exportPng(g, path, scale, error);
    error = "O arquivo \"" + path + "\" não tem uma extensão de desenho conhecida: use .dxf, .svg ou .png.";
    return false;
}

} // namespace pilarix::render
