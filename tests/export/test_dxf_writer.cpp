// The section's DXF read back as a CAD program reads it: with dxflib's own reader
// for the entities and, where Debian's ezdxf is at hand, with its audit, which must
// find nothing to report or repair.

#include "export/dxf_writer.h"

#include <dl_creationadapter.h>
#include <dl_dxf.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

using namespace pilarix;
namespace fs = std::filesystem;

namespace {

class TempDir {
public:
    TempDir()
        : path_(fs::temp_directory_path()
                / ("pilarix_dxf_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()) + "_"
                   + std::to_string(::getpid())))
    {
        fs::remove_all(path_);
        fs::create_directories(path_);
    }
    ~TempDir() { fs::remove_all(path_); }
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    const fs::path path_;
};

struct Circle {
    std::string layer;
    double x, y, r;
};
struct Polyline {
    std::string layer;
    bool closed;
    std::vector<engine::Point> points;
};
struct Text {
    std::string layer, text;
    double x, y, height;
};

// What a CAD program finds in the file.
struct Reader : DL_CreationAdapter {
    std::map<std::string, int> layers; // name and colour
    std::vector<Circle> circles;
    std::vector<Polyline> polylines;
    std::vector<DL_LineData> lines;
    std::vector<std::string> lineLayers;
    std::vector<Text> texts;
    std::map<std::string, int> ints;

    using DL_CreationAdapter::setVariableInt;
    void addLayer(const DL_LayerData& d) override { layers[d.name] = attributes.getColor(); }
    void addCircle(const DL_CircleData& d) override { circles.push_back({attributes.getLayer(), d.cx, d.cy, d.radius}); }
    void addPolyline(const DL_PolylineData& d) override
    {
        polylines.push_back({attributes.getLayer(), (d.flags & 1) != 0, {}});
    }
    void addVertex(const DL_VertexData& d) override { polylines.back().points.push_back({d.x, d.y}); }
    void addLine(const DL_LineData& d) override
    {
        lines.push_back(d);
        lineLayers.push_back(attributes.getLayer());
    }
    void addText(const DL_TextData& d) override
    {
        texts.push_back({attributes.getLayer(), d.text, d.ipx, d.ipy, d.height});
    }
    void setVariableInt(const std::string& key, int value, int) override { ints[key] = value; }

    template <class T> static std::vector<T> on(const std::vector<T>& all, const std::string& layer)
    {
        std::vector<T> r;
        std::copy_if(all.begin(), all.end(), std::back_inserter(r), [&](const T& e) { return e.layer == layer; });
        return r;
    }
};

// The file's Windows-1252 texts as the geometry's UTF-8 (the labels hold only
// ASCII and Latin-1 letters).
std::string fromLatin1(const std::string& s)
{
    std::string r;
    for (char ch : s) {
        const auto c = static_cast<unsigned char>(ch);
        if (c < 0x80)
            r += ch;
        else {
            r += static_cast<char>(0xC0 | (c >> 6));
            r += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return r;
}

Reader read(const std::string& path)
{
    Reader r;
    DL_Dxf dxf;
    EXPECT_TRUE(dxf.in(path, &r)) << path;
    return r;
}

struct Column {
    const char* name;
    double b, h, dLinha, bar, stirrup, cover;
    int nb, nh;
    engine::Hook hook;
    std::vector<bool> tiesAcrossWidth, tiesAcrossDepth;
    int ties;
};

const std::vector<Column> kColumns = {
    {"20x50, 2 x 4 de 12.5", 20, 50, 4.125, 1.25, 0.5, 3, 2, 4, engine::Hook::Angle45, {}, {}, 0},
    {"30x60 com estribos suplementares", 30, 60, 4.3, 1.6, 0.63, 3, 3, 5, engine::Hook::Angle45,
     {false, true, false}, {false, false, true, false, false}, 2},
    {"25x25 com ganchos a 90°", 25, 25, 3.5, 1.0, 0.5, 2.5, 3, 3, engine::Hook::RightAngle, {}, {}, 0},
};

engine::SectionGeometry geometryOf(const Column& c)
{
    engine::DetailedSection d;
    d.width = c.b;
    d.depth = c.h;
    d.dLinha = c.dLinha;
    d.barsOnWidthFace = c.nb;
    d.barsOnDepthFace = c.nh;
    d.totalBars = 2 * (c.nb + c.nh) - 4;
    d.barDiameter = c.bar;
    d.stirrupDiameter = c.stirrup;
    d.stirrupSpacing = 15;
    d.cover = c.cover;
    d.hook = c.hook;
    d.tiesAcrossWidth = c.tiesAcrossWidth;
    d.tiesAcrossDepth = c.tiesAcrossDepth;
    return engine::sectionGeometry(d);
}

// Where the bars must be: d' from the faces, equally spaced between the corners.
std::vector<engine::Point> expectedCentres(const Column& c)
{
    std::vector<engine::Point> r;
    const double sx = (c.b - 2 * c.dLinha) / (c.nb - 1), sy = (c.h - 2 * c.dLinha) / (c.nh - 1);
    for (int i = 0; i < c.nb; ++i)
        for (double y : {c.dLinha, c.h - c.dLinha})
            r.push_back({c.dLinha + i * sx, y});
    for (int j = 1; j < c.nh - 1; ++j)
        for (double x : {c.dLinha, c.b - c.dLinha})
            r.push_back({x, c.dLinha + j * sy});
    return r;
}

bool isRectangle(const Polyline& p, double x1, double y1, double x2, double y2)
{
    if (!p.closed || p.points.size() != 4)
        return false;
    std::vector<engine::Point> want = {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}};
    return std::all_of(want.begin(), want.end(), [&](engine::Point w) {
        return std::any_of(p.points.begin(), p.points.end(),
                           [&](engine::Point q) { return std::abs(q.x - w.x) < 1e-9 && std::abs(q.y - w.y) < 1e-9; });
    });
}

} // namespace

TEST(DxfWriter, BarsOutlineStirrupAndTiesComeBackAtRealSize)
{
    TempDir dir;
    for (const Column& c : kColumns) {
        SCOPED_TRACE(c.name);
        const std::string path = dir.file("pilar.dxf");
        std::string error;
        ASSERT_TRUE(exporting::writeDxf(geometryOf(c), path, error)) << error;
        EXPECT_EQ(std::distance(fs::directory_iterator(dir.path_), fs::directory_iterator()), 1)
            << "the file written beside is put in place";
        const Reader r = read(path);

        EXPECT_EQ(r.ints.at("$INSUNITS"), 5);
        const std::map<std::string, int> layers = {{"CONCRETO", 7}, {"ARMADURA_LONGITUDINAL", 1}, {"ESTRIBO", 3},
                                                   {"ESTRIBO_SUPLEMENTAR", 4}, {"COTAS", 8}, {"TEXTOS", 2}};
        for (const auto& [name, colour] : layers) {
            ASSERT_TRUE(r.layers.count(name)) << name;
            EXPECT_EQ(r.layers.at(name), colour) << name;
        }

        // Every bar once, at its place, of its own diameter.
        const auto bars = Reader::on(r.circles, "ARMADURA_LONGITUDINAL");
        EXPECT_EQ(bars.size(), r.circles.size()) << "circles only on the bar layer";
        const auto centres = expectedCentres(c);
        ASSERT_EQ(bars.size(), centres.size());
        for (const auto& want : centres) {
            const auto n = std::count_if(bars.begin(), bars.end(), [&](const Circle& k) {
                return std::abs(k.x - want.x) < 1e-9 && std::abs(k.y - want.y) < 1e-9;
            });
            EXPECT_EQ(n, 1) << "bar at " << want.x << ", " << want.y;
        }
        for (const auto& k : bars)
            EXPECT_DOUBLE_EQ(k.r, c.bar / 2);

        const auto outline = Reader::on(r.polylines, "CONCRETO");
        ASSERT_EQ(outline.size(), 1u);
        EXPECT_TRUE(isRectangle(outline[0], 0, 0, c.b, c.h));

        // The stirrup's faces at the cover and one stirrup diameter in, two hooks.
        const auto stirrup = Reader::on(r.polylines, "ESTRIBO");
        ASSERT_EQ(stirrup.size(), 4u);
        EXPECT_TRUE(isRectangle(stirrup[0], c.cover, c.cover, c.b - c.cover, c.h - c.cover));
        const double in = c.cover + c.stirrup;
        EXPECT_TRUE(isRectangle(stirrup[1], in, in, c.b - in, c.h - in));
        for (std::size_t i = 2; i < 4; ++i) {
            EXPECT_FALSE(stirrup[i].closed);
            for (const auto& p : stirrup[i].points) { // the hooks stay inside the stirrup
                EXPECT_GT(p.x, c.cover);
                EXPECT_LT(p.y, c.h - c.cover);
            }
        }
        // A supplementary stirrup runs from bar to bar across the section.
        const auto ties = Reader::on(r.polylines, "ESTRIBO_SUPLEMENTAR");
        ASSERT_EQ(static_cast<int>(ties.size()), c.ties);
        for (const auto& t : ties) {
            ASSERT_EQ(t.points.size(), 4u);
            const double run = std::hypot(t.points[2].x - t.points[1].x, t.points[2].y - t.points[1].y);
            EXPECT_TRUE(std::abs(run - (c.b - 2 * c.dLinha)) < 1e-9 || std::abs(run - (c.h - 2 * c.dLinha)) < 1e-9)
                << run;
        }
    }
}

TEST(DxfWriter, DimensionsAndLabelsReadAsTheGeometrySaysThem)
{
    TempDir dir;
    for (const Column& c : kColumns) {
        SCOPED_TRACE(c.name);
        const auto g = geometryOf(c);
        const std::string path = dir.file("pilar.dxf");
        std::string error;
        ASSERT_TRUE(exporting::writeDxf(g, path, error)) << error;
        const Reader r = read(path);

        const auto labels = Reader::on(r.texts, "TEXTOS");
        ASSERT_EQ(labels.size(), g.labels.size());
        for (std::size_t i = 0; i < labels.size(); ++i) {
            EXPECT_EQ(fromLatin1(labels[i].text), g.labels[i].text);
            EXPECT_DOUBLE_EQ(labels[i].x, g.labels[i].position.x);
            EXPECT_DOUBLE_EQ(labels[i].y, g.labels[i].position.y);
            EXPECT_DOUBLE_EQ(labels[i].height, g.labels[i].height);
        }

        // The width measured under the section, the depth to its right, each by a
        // line parallel to the face spanning it whole, its value beside it.
        const auto values = Reader::on(r.texts, "COTAS");
        ASSERT_EQ(values.size(), 2u);
        std::ostringstream b, h;
        b << c.b;
        h << c.h;
        EXPECT_EQ(values[0].text, b.str());
        EXPECT_EQ(values[1].text, h.str());
        const double offset = g.dimensions.at(0).offset;
        bool widthLine = false, depthLine = false;
        for (std::size_t i = 0; i < r.lines.size(); ++i) {
            EXPECT_EQ(r.lineLayers[i], "COTAS");
            const auto& l = r.lines[i];
            widthLine = widthLine
                        || (std::abs(l.y1 + offset) < 1e-9 && std::abs(l.y2 + offset) < 1e-9
                            && std::min(l.x1, l.x2) <= 0 && std::max(l.x1, l.x2) >= c.b);
            depthLine = depthLine
                        || (std::abs(l.x1 - c.b - offset) < 1e-9 && std::abs(l.x2 - c.b - offset) < 1e-9
                            && std::min(l.y1, l.y2) <= 0 && std::max(l.y1, l.y2) >= c.h);
        }
        EXPECT_TRUE(widthLine);
        EXPECT_TRUE(depthLine);
        EXPECT_LT(values[0].y, 0);
        EXPECT_GT(values[1].x, c.b);
    }
}

#ifdef PILARIX_EZDXF_CHECK
// ezdxf opens the file as a CAD program would and audits it: nothing to report and
// nothing it had to mend, the units and the texts as written.
TEST(DxfWriter, EzdxfAuditFindsNothing)
{
    TempDir dir;
    for (const Column& c : kColumns) {
        SCOPED_TRACE(c.name);
        const auto g = geometryOf(c);
        const std::string path = dir.file("pilar.dxf");
        std::string error;
        ASSERT_TRUE(exporting::writeDxf(g, path, error)) << error;

        const std::string command = std::string(PILARIX_EZDXF_CHECK) + " '" + path + "' 2>&1";
        FILE* pipe = ::popen(command.c_str(), "r");
        ASSERT_NE(pipe, nullptr);
        std::string out;
        char buffer[4096];
        while (std::size_t n = std::fread(buffer, 1, sizeof buffer, pipe))
            out.append(buffer, n);
        ASSERT_EQ(::pclose(pipe), 0) << out;

        const auto report = nlohmann::json::parse(out, nullptr, false);
        ASSERT_FALSE(report.is_discarded()) << out;
        EXPECT_EQ(report["version"], "AC1015");
        EXPECT_TRUE(report["audit"].empty()) << report["audit"].dump(1);
        EXPECT_EQ(report["insunits"], 5);
        std::vector<std::string> texts = report["texts"];
        std::vector<std::string> want = {g.dimensions[0].text, g.dimensions[1].text};
        for (const auto& l : g.labels)
            want.push_back(l.text);
        EXPECT_EQ(texts, want);
    }
}
#endif

TEST(DxfWriter, WhereTheFileCannotBeWrittenItSaysSoAndNamesIt)
{
    TempDir dir;
    const auto g = geometryOf(kColumns[0]);
    std::ofstream(dir.file("texto.txt")) << "x";
    struct Case {
        const char* what;
        std::string path, reason;
    };
    const std::vector<Case> cases = {
        {"uma pasta", dir.path_.string(), "é uma pasta"},
        {"pasta que não existe", dir.file("nao_existe/pilar.dxf"), "não existe"},
        {"um arquivo no caminho", dir.file("texto.txt/pilar.dxf"), "não é uma pasta"},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.what);
        std::string error;
        EXPECT_FALSE(exporting::writeDxf(g, k.path, error));
        EXPECT_NE(error.find("\"" + k.path + "\""), std::string::npos) << error;
        EXPECT_NE(error.find(k.reason), std::string::npos) << error;
    }
    std::string error;
    EXPECT_FALSE(exporting::writeDxf(g, "", error));
    EXPECT_FALSE(error.empty());

    // A file the engineer made read-only stays as it was (root writes anywhere).
    if (::geteuid() != 0) {
        const std::string locked = dir.file("travado.dxf");
        std::ofstream(locked) << "anterior";
        ::chmod(locked.c_str(), 0444);
        EXPECT_FALSE(exporting::writeDxf(g, locked, error));
        EXPECT_NE(error.find("permissão"), std::string::npos) << error;
        std::ifstream in(locked);
        std::string kept;
        in >> kept;
        EXPECT_EQ(kept, "anterior");
    }
    // Nothing half-written is left behind.
    for (const auto& e : fs::directory_iterator(dir.path_))
        EXPECT_EQ(e.path().filename().string().find("tmp"), std::string::npos) << e.path();
}

TEST(DxfWriter, NoSectionOrBrokenNumbersGiveNoFile)
{
    TempDir dir;
    auto broken = geometryOf(kColumns[0]);
    broken.bars[3].centre.x = std::nan("");
    for (const auto& g : {engine::SectionGeometry{}, broken}) {
        std::string error;
        EXPECT_FALSE(exporting::writeDxf(g, dir.file("pilar.dxf"), error));
        EXPECT_FALSE(error.empty());
        EXPECT_FALSE(fs::exists(dir.file("pilar.dxf")));
    }
}

TEST(DxfWriter, TextsGoInTheCodePageTheHeaderDeclares)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"N3= 8 ø 12.5", "N3= 8 \xF8 12.5"},
        {"área 2 m²", "\xE1rea 2 m\xB2"},
        {"€ 5", "\\U+20AC 5"},
        {"duas\nlinhas", "duas linhas"},
        {std::string("x\xC3"), "x?"},        // cut in the middle of a character
        {std::string("\xFF" "a"), "?a"},     // not UTF-8 at all
    };
    for (const auto& [utf8, dxf] : cases)
        EXPECT_EQ(exporting::dxfText(utf8), dxf) << utf8;
}
