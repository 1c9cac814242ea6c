// The SVG and PNG of a section: what a reader of the files finds in them, not what
// the painter meant to put there.

#include "render/drawing_export.h"
#include "ui/drawing_samples.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

using namespace pilarix;

namespace {

struct SvgCircle {
    double cx, cy, r;
};

// Every circle of the file, <circle> or <ellipse> with equal radii.
std::vector<SvgCircle> svgCircles(const QString& path, QRect& viewBox)
{
    QFile f(path);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&f);
    std::vector<SvgCircle> r;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto a = xml.attributes();
        if (xml.name() == u"svg") {
            const auto v = a.value(QLatin1String("viewBox")).split(u' ');
            if (v.size() == 4)
                viewBox = QRect(v[0].toInt(), v[1].toInt(), v[2].toInt(), v[3].toInt());
        } else if (xml.name() == u"circle") {
            r.push_back({a.value(QLatin1String("cx")).toDouble(), a.value(QLatin1String("cy")).toDouble(), a.value(QLatin1String("r")).toDouble()});
        } else if (xml.name() == u"ellipse") {
            const double rx = a.value(QLatin1String("rx")).toDouble(), ry = a.value(QLatin1String("ry")).toDouble();
            EXPECT_DOUBLE_EQ(rx, ry);
            r.push_back({a.value(QLatin1String("cx")).toDouble(), a.value(QLatin1String("cy")).toDouble(), rx});
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return r;
}

std::vector<double> distinct(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    std::vector<double> r;
    for (double x : v)
        if (r.empty() || x - r.back() > 1e-6)
            r.push_back(x);
    return r;
}

bool dark(QRgb c) { return qGray(c) < 96; }

} // namespace

TEST(DrawingExport, SvgHoldsEachBarAsACircleOfItsDiameterAtTheScale)
{
    QTemporaryDir dir;
    for (const auto& sample : test::sampleColumns()) {
        for (double scale : {4.0, 12.5}) {
            SCOPED_TRACE(std::string(sample.name) + " a " + std::to_string(scale));
            const auto& d = sample.detail;
            const auto g = engine::sectionGeometry(d);
            const QString path = dir.filePath(QStringLiteral("pilar.svg"));
            std::string error;
            ASSERT_TRUE(render::exportSvg(g, path.toStdString(), scale, error)) << error;
            EXPECT_TRUE(QSvgRenderer(path).isValid());

            QRect viewBox;
            const auto circles = svgCircles(path, viewBox);
            EXPECT_EQ(viewBox, QRect(QPoint(0, 0), render::exportSize(g, scale)));
            ASSERT_EQ(static_cast<int>(circles.size()), d.totalBars);
            for (const auto& c : circles)
                EXPECT_NEAR(c.r, d.barDiameter / 2 * scale, 1e-3);

            // Columns of bars d' in from the faces and equally spaced, y down.
            std::vector<double> xs, ys;
            for (const auto& c : circles) {
                xs.push_back(c.cx);
                ys.push_back(c.cy);
            }
            const auto cols = distinct(xs), rows = distinct(ys);
            ASSERT_EQ(cols.size(), static_cast<std::size_t>(d.barsOnWidthFace));
            ASSERT_EQ(rows.size(), static_cast<std::size_t>(d.barsOnDepthFace));
            for (std::size_t i = 1; i < cols.size(); ++i)
                EXPECT_NEAR(cols[i] - cols[i - 1], (d.width - 2 * d.dLinha) / (d.barsOnWidthFace - 1) * scale, 1e-3);
            for (std::size_t j = 1; j < rows.size(); ++j)
                EXPECT_NEAR(rows[j] - rows[j - 1], (d.depth - 2 * d.dLinha) / (d.barsOnDepthFace - 1) * scale, 1e-3);
        }
    }
}

TEST(DrawingExport, PngIsTheExtentAtTheScaleWithTheSectionInsideItsMargin)
{
    QTemporaryDir dir;
    const auto g = engine::sectionGeometry(test::sampleColumns()[0].detail);
    // The rule for the default column by hand: extent 47.6 x 66.9 cm (the longest
    // label 36 characters of 0.65 x 2 cm from x = 0, the dimension line overshooting
    // 0.8 cm to the left; from the depth's extension line at 50.8 cm down to the
    // last label's descent at -16.1 cm).
    EXPECT_EQ(render::exportSize(g, 10), QSize(476 + 32, 669 + 32));
    EXPECT_EQ(render::exportSize(g, 2.5), QSize(119 + 32, 168 + 32));

    for (double scale : {5.0, 10.0, 16.0}) {
        SCOPED_TRACE(scale);
        const QString path = dir.filePath(QStringLiteral("pilar.png"));
        std::string error;
        ASSERT_TRUE(render::exportPng(g, path.toStdString(), scale, error)) << error;
        const QImage png(path);
        ASSERT_FALSE(png.isNull());
        EXPECT_EQ(png.size(), render::exportSize(g, scale));
        EXPECT_EQ(png.dotsPerMeterX(), std::lround(scale * 100));

        // The concrete's 20 cm measured on the row through the middle of the
        // section: from the first dark pixel to the last one left of the depth's
        // dimension.
        const int y = png.height() / 3;
        int left = -1, right = -1;
        for (int x = 0; x < png.width() && right < 0; ++x) {
            if (dark(png.pixel(x, y)) && left < 0)
                left = x;
            else if (left >= 0 && x > left + 5 && dark(png.pixel(x, y))) {
                int last = x; // the outline is a line a few pixels wide; the bars are further in
                while (last + 1 < png.width() && dark(png.pixel(last + 1, y)))
                    ++last;
                if (std::abs((last + x) / 2.0 - left - 20 * scale) < 3)
                    right = last;
            }
        }
        ASSERT_GE(left, 0);
        EXPECT_GE(right, 0) << "no right face 20 cm from the left one";

        // Nothing drawn in the margin: not a line, not a letter of a label.
        const int inset = render::kExportMargin - 4;
        for (int yy = 0; yy < png.height(); ++yy) {
            for (int xx = 0; xx < png.width(); ++xx) {
                if (xx < inset || yy < inset || xx >= png.width() - inset || yy >= png.height() - inset) {
                    ASSERT_EQ(png.pixel(xx, yy), qRgb(255, 255, 255)) << xx << ", " << yy;
                }
            }
        }
    }
}

TEST(DrawingExport, TheSuffixChoosesTheFormatInAnyCase)
{
    QTemporaryDir dir;
    const auto g = engine::sectionGeometry(test::sampleColumns()[0].detail);
    struct Case {
        const char* name;
        const char* start; // the file's first bytes
    };
    for (const Case& k : {Case{"a.DXF", "999"}, Case{"b.Svg", "<?xml"}, Case{"c.PNG", "\x89PNG"}}) {
        const std::string path = dir.filePath(QString::fromLatin1(k.name)).toStdString();
        std::string error;
        ASSERT_TRUE(render::exportDrawing(g, path, 8, error)) << k.name << ": " << error;
        QFile f(QString::fromStdString(path));
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        EXPECT_TRUE(f.read(8).startsWith(k.start)) << k.name;
    }
    std::string error;
    const std::string pdf = dir.filePath(QStringLiteral("d.pdf")).toStdString();
    EXPECT_FALSE(render::exportDrawing(g, pdf, 8, error));
    EXPECT_NE(error.find("\"" + pdf + "\""), std::string::npos) << error;
    EXPECT_NE(error.find(".dxf, .svg ou .png"), std::string::npos) << error;
    EXPECT_FALSE(QFile::exists(QString::fromStdString(pdf)));
}

TEST(DrawingExport, UnwritablePlacesAndMistakenScalesGiveAMessageAndNoFile)
{
    QTemporaryDir dir;
    const auto g = engine::sectionGeometry(test::sampleColumns()[0].detail);
    const std::string folder = dir.path().toStdString();
    for (const char* suffix : {".svg", ".png"}) {
        struct Case {
            std::string path, reason;
        };
        const std::string subfolder = folder + "/pasta" + suffix;
        QDir().mkpath(QString::fromStdString(subfolder));
        for (const Case& k : {Case{subfolder, "é uma pasta"}, Case{folder + "/falta/pilar" + suffix, "não existe"}}) {
            SCOPED_TRACE(k.path);
            std::string error;
            EXPECT_FALSE(render::exportDrawing(g, k.path, 10, error));
            EXPECT_NE(error.find("\"" + k.path + "\""), std::string::npos) << error;
            EXPECT_NE(error.find(k.reason), std::string::npos) << error;
        }
        const std::string path = folder + "/pilar" + suffix;
        for (double scale : {0.0, -3.0, std::nan(""), std::numeric_limits<double>::infinity(), 1e6}) {
            SCOPED_TRACE(scale);
            std::string error;
            EXPECT_FALSE(render::exportDrawing(g, path, scale, error));
            EXPECT_NE(error.find("escala"), std::string::npos) << error;
            EXPECT_FALSE(QFile::exists(QString::fromStdString(path)));
        }
        std::string error;
        EXPECT_FALSE(render::exportDrawing(engine::SectionGeometry{}, path, 10, error));
        EXPECT_FALSE(error.empty());
    }
    EXPECT_TRUE(QDir(dir.path()).entryList(QDir::Files).isEmpty());
}
