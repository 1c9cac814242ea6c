// The SVG and PNG of a section: what a reader of the files finds in them, not what
// the painter meant to put there.

#include "render/drawing_export.h"
#include "render/section_painter.h"
#include "support/drawing_samples.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

using namespace pilarix;

namespace {

const engine::SectionGeometry kDefault = engine::sectionGeometry(test::sampleColumns()[0].detail);

// The viewBox and every circle (<circle>, or <ellipse> of equal radii) of the file.
struct Svg {
    QRect viewBox;
    std::vector<double> radii;
    std::set<double> xs, ys; // distinct centres
};

Svg readSvg(const QString& path)
{
    QFile f(path);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&f);
    Svg svg;
    const auto number = [&](const char* name) { return xml.attributes().value(QLatin1String(name)).toDouble(); };
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"svg") {
            const auto v = xml.attributes().value(QLatin1String("viewBox")).split(u' ');
            svg.viewBox = QRect(v.value(0).toInt(), v.value(1).toInt(), v.value(2).toInt(), v.value(3).toInt());
        } else if (xml.name() == u"circle" || xml.name() == u"ellipse") {
            const bool circle = xml.name() == u"circle";
            EXPECT_TRUE(circle || number("rx") == number("ry"));
            svg.radii.push_back(number(circle ? "r" : "rx"));
            svg.xs.insert(std::round(number("cx") * 1000) / 1000);
            svg.ys.insert(std::round(number("cy") * 1000) / 1000);
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return svg;
}

// The distinct centres are the bars' columns (or rows), equally spaced.
void expectSpaced(const std::set<double>& at, int count, double spacing)
{
    ASSERT_EQ(at.size(), static_cast<std::size_t>(count));
    for (auto a = at.begin(), b = std::next(a); b != at.end(); ++a, ++b)
        EXPECT_NEAR(*b - *a, spacing, 2e-3);
}

} // namespace

TEST(DrawingExport, SvgHoldsEachBarAsACircleOfItsDiameterAtTheScale)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("pilar.svg"));
    for (const auto& [name, d] : test::sampleColumns()) {
        for (double scale : {4.0, 12.5}) {
            SCOPED_TRACE(std::string(name) + " a " + std::to_string(scale));
            const auto g = engine::sectionGeometry(d);
            std::string error;
            ASSERT_TRUE(render::exportSvg(g, path.toStdString(), scale, error)) << error;
            EXPECT_TRUE(QSvgRenderer(path).isValid());
            const Svg svg = readSvg(path);
            EXPECT_EQ(svg.viewBox, QRect(QPoint(0, 0), render::exportSize(g, scale)));
            ASSERT_EQ(static_cast<int>(svg.radii.size()), d.totalBars);
            for (double r : svg.radii)
                EXPECT_NEAR(r, d.barDiameter / 2 * scale, 1e-3);
            expectSpaced(svg.xs, static_cast<int>(d.barsOnWidthFace),
                         (d.width - 2 * d.dLinha) / (d.barsOnWidthFace - 1) * scale);
            expectSpaced(svg.ys, d.barsOnDepthFace, (d.depth - 2 * d.dLinha) / (d.barsOnDepthFace - 1) * scale);
        }
    }
}

TEST(DrawingExport, PngIsTheExtentAtTheScaleWithTheSectionInsideItsMargin)
{
    // The rule for the default column by hand: an extent of 47.6 x 66.9 cm, from the
    // width's dimension line overshooting 0.8 cm left to the longest label's 36
    // characters of 0.65 x 2 cm, from the depth's extension line at 50.8 cm down to
    // the last label's descent at -16.1 cm; 16 px of margin all round.
    EXPECT_EQ(render::exportSize(kDefault, 10), QSize(476 + 32, 669 + 32));
    EXPECT_EQ(render::exportSize(kDefault, 2.5), QSize(119 + 32, 168 + 32));

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("pilar.png"));
    for (double scale : {5.0, 16.0}) {
        SCOPED_TRACE(scale);
        std::string error;
        ASSERT_TRUE(render::exportPng(kDefault, path.toStdString(), scale, error)) << error;
        const QImage png(path);
        EXPECT_EQ(png.size(), render::exportSize(kDefault, scale));
        EXPECT_EQ(png.dotsPerMeterX(), std::lround(scale * 100));

        // Both faces of the concrete drawn 20 cm apart at mid-depth, white between.
        const auto view = render::placedView(kDefault, scale, render::kExportMargin);
        const auto pixel = [&](double x) { return qGray(png.pixel(view.toDevice({x, 25}).toPoint())); };
        EXPECT_LT(pixel(0), 96);
        EXPECT_LT(pixel(20), 96);
        EXPECT_EQ(pixel(10), 255);

        // Nothing drawn in the margin: not a line, not a letter of a label.
        const QRect inside = png.rect().adjusted(12, 12, -12, -12);
        for (int y = 0; y < png.height(); ++y)
            for (int x = 0; x < png.width(); ++x)
                if (!inside.contains(x, y) && png.pixel(x, y) != qRgb(255, 255, 255))
                    FAIL() << "ink in the margin at " << x << ", " << y;
    }
}

TEST(DrawingExport, TheSuffixChoosesTheFormatInAnyCase)
{
    QTemporaryDir dir;
    for (const auto& [name, start] : {std::pair{"a.DXF", "999"}, {"b.Svg", "<?xml"}, {"c.PNG", "\x89PNG"}}) {
        const QString path = dir.filePath(QString::fromLatin1(name));
        std::string error;
        ASSERT_TRUE(render::exportDrawing(kDefault, path.toStdString(), 8, error)) << name << ": " << error;
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        EXPECT_TRUE(f.read(8).startsWith(start)) << name;
    }
    std::string error;
    const std::string pdf = dir.filePath(QStringLiteral("d.pdf")).toStdString();
    EXPECT_FALSE(render::exportDrawing(kDefault, pdf, 8, error));
    EXPECT_NE(error.find("\"" + pdf + "\" não tem uma extensão de desenho conhecida: use .dxf, .svg ou .png"),
              std::string::npos)
        << error;
}

TEST(DrawingExport, UnwritablePlacesAndMistakenScalesGiveAMessageAndNoFile)
{
    QTemporaryDir dir;
    const std::string folder = dir.path().toStdString();
    for (const std::string suffix : {".svg", ".png"}) {
        QDir().mkpath(QString::fromStdString(folder + "/pasta" + suffix));
        const std::string path = folder + "/pilar" + suffix;
        struct Case {
            std::string path, says;
            double scale;
        };
        const double nan = std::nan(""), inf = std::numeric_limits<double>::infinity();
        const Case cases[] = {
            {folder + "/pasta" + suffix, "\"" + folder + "/pasta" + suffix + "\": o caminho é uma pasta", 10},
            {folder + "/falta/pilar" + suffix, "\"" + folder + "/falta/pilar" + suffix + "\": a pasta", 10},
            {path, "escala", 0}, {path, "escala", -3}, {path, "escala", nan}, {path, "escala", inf},
            {path, "escala de 1000000 pixels", 1e6},
        };
        for (const Case& k : cases) {
            std::string error;
            EXPECT_FALSE(render::exportDrawing(kDefault, k.path, k.scale, error)) << k.path << " " << k.scale;
            EXPECT_NE(error.find(k.says), std::string::npos) << error;
        }
        std::string error;
        EXPECT_FALSE(render::exportDrawing(engine::SectionGeometry{}, path, 10, error));
        EXPECT_FALSE(error.empty());
    }
    EXPECT_TRUE(QDir(dir.path()).entryList(QDir::Files).isEmpty());
}
