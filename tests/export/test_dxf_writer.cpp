// The section's DXF read back as a CAD program reads it: with dxflib's own reader
// for the entities and, where Debian's ezdxf is at hand, with its audit, which must
// find nothing to report or repair.

#include "export/dxf_writer.h"
#include "support/drawing_samples.h"

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

#include <sys/stat.h>
#include <unistd.h>

using namespace pilarix;
namespace fs = std::filesystem;
using engine::Point;

namespace {

struct TempDir {
    const fs::path path = fs::temp_directory_path() / ("pilarix_dxf_" + std::to_string(::getpid()));
    TempDir() { fs::create_directories(path); }
    ~TempDir() { fs::remove_all(path); }
    std::string file(const std::string& name) const { return (path / name).string(); }
};

struct Entity {
    std::string layer;
    std::vector<Point> points; // a circle's centre, a line's ends, a polyline's vertices, a text's base
    double size = 0;           // a circle's radius, a text's height
    bool closed = false;
    std::string text;
};

// What a CAD program finds in the file, entity by entity.
struct Reader : DL_CreationAdapter {
    std::map<std::string, int> layers, ints;
    std::vector<Entity> all;
    std::vector<Entity> on(const std::string& layer, std::size_t points) const
    {
        std::vector<Entity> r;
        std::copy_if(all.begin(), all.end(), std::back_inserter(r), [&](const Entity& e) {
            return e.layer == layer && (points == 0 || e.points.size() == points);
        });
        return r;
    }
    Entity& add() { return all.emplace_back(Entity{attributes.getLayer(), {}, 0, false, {}}); }

    using DL_CreationAdapter::setVariableInt;
    void setVariableInt(const std::string& key, int value, int) override { ints[key] = value; }
    void addLayer(const DL_LayerData& d) override { layers[d.name] = attributes.getColor(); }
    void addCircle(const DL_CircleData& d) override
    {
        Entity& e = add();
        e.points = {{d.cx, d.cy}};
        e.size = d.radius;
    }
    void addLine(const DL_LineData& d) override { add().points = {{d.x1, d.y1}, {d.x2, d.y2}}; }
    void addPolyline(const DL_PolylineData& d) override { add().closed = d.flags & 1; }
    void addVertex(const DL_VertexData& d) override { all.back().points.push_back({d.x, d.y}); }
    void addText(const DL_TextData& d) override
    {
        Entity& e = add();
        e.points = {{d.ipx, d.ipy}};
        e.size = d.height;
        e.text = d.text;
    }
};

Reader written(const engine::SectionGeometry& g, const std::string& path)
{
    std::string error;
    EXPECT_TRUE(exporting::writeDxf(g, path, error)) << error;
    Reader r;
    DL_Dxf dxf;
    EXPECT_TRUE(dxf.in(path, &r)) << path;
    return r;
}

bool near(Point a, Point b) { return std::abs(a.x - b.x) < 1e-9 && std::abs(a.y - b.y) < 1e-9; }

bool isRectangle(const Entity& e, double x1, double y1, double x2, double y2)
{
    const Point corners[] = {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}};
    return e.closed && e.points.size() == 4 && std::all_of(std::begin(corners), std::end(corners), [&](Point c) {
               return std::any_of(e.points.begin(), e.points.end(), [&](Point p) { return near(p, c); });
           });
}

} // namespace

TEST(DxfWriter, TheSectionComesBackAtRealSizeLayerByLayer)
{
    TempDir dir;
    for (const auto& [name, d] : test::sampleColumns()) {
        SCOPED_TRACE(name);
        const auto g = engine::sectionGeometry(d);
        const Reader r = written(g, dir.file("pilar.dxf"));
        EXPECT_EQ(std::distance(fs::directory_iterator(dir.path), {}), 1) << "nothing left beside";

        EXPECT_EQ(r.ints.at("$INSUNITS"), 5);
        EXPECT_EQ(r.layers, (std::map<std::string, int>{{"0", 7}, {"CONCRETO", 7}, {"ARMADURA_LONGITUDINAL", 1},
                                                        {"ESTRIBO", 3}, {"ESTRIBO_SUPLEMENTAR", 4}, {"COTAS", 8},
                                                        {"TEXTOS", 2}}));

        // Every bar once, of its diameter, d' from the faces and equally spaced.
        const double b = d.width, h = d.depth, dl = d.dLinha;
        const int nb = static_cast<int>(d.barsOnWidthFace), nh = d.barsOnDepthFace;
        std::vector<Point> centres;
        for (int i = 0; i < nb; ++i)
            for (double y : {dl, h - dl})
                centres.push_back({dl + i * (b - 2 * dl) / (nb - 1), y});
        for (int j = 1; j < nh - 1; ++j)
            for (double x : {dl, b - dl})
                centres.push_back({x, dl + j * (h - 2 * dl) / (nh - 1)});
        const auto bars = r.on("ARMADURA_LONGITUDINAL", 1);
        ASSERT_EQ(bars.size(), centres.size());
        for (Point c : centres)
            EXPECT_EQ(std::count_if(bars.begin(), bars.end(), [&](const Entity& e) { return near(e.points[0], c); }), 1)
                << "bar at " << c.x << ", " << c.y;
        for (const auto& e : bars)
            EXPECT_DOUBLE_EQ(e.size, d.barDiameter / 2);

        // The concrete b x h; the stirrup's faces at the cover and one diameter in,
        // its two hooks inside it; each supplementary stirrup across, bar to bar.
        const auto outline = r.on("CONCRETO", 0);
        ASSERT_EQ(outline.size(), 1u);
        EXPECT_TRUE(isRectangle(outline[0], 0, 0, b, h));
        const auto stirrup = r.on("ESTRIBO", 0);
        ASSERT_EQ(stirrup.size(), 4u);
        const double c = d.cover, in = d.cover + d.stirrupDiameter;
        EXPECT_TRUE(isRectangle(stirrup[0], c, c, b - c, h - c));
        EXPECT_TRUE(isRectangle(stirrup[1], in, in, b - in, h - in));
        for (const auto& hook : {stirrup[2], stirrup[3]})
            for (Point p : hook.points)
                EXPECT_TRUE(!hook.closed && p.x > c && p.x < b - c && p.y > c && p.y < h - c);
        const auto ties = r.on("ESTRIBO_SUPLEMENTAR", 4);
        EXPECT_EQ(ties.size(), std::count(d.tiesAcrossWidth.begin(), d.tiesAcrossWidth.end(), true)
                                   + std::count(d.tiesAcrossDepth.begin(), d.tiesAcrossDepth.end(), true));
        for (const auto& t : ties) {
            const double run = std::hypot(t.points[2].x - t.points[1].x, t.points[2].y - t.points[1].y);
            EXPECT_TRUE(std::abs(run - (b - 2 * dl)) < 1e-9 || std::abs(run - (h - 2 * dl)) < 1e-9) << run;
        }

        // The width measured below by a line spanning it, the depth to the right;
        // the values and the labels as the geometry words them.
        const double off = g.dimensions.at(0).offset;
        const auto lines = r.on("COTAS", 2);
        const auto spans = [&](Point from, Point to) { // from bottom-left to top-right
            return std::any_of(lines.begin(), lines.end(), [&](const Entity& l) {
                const Point a = l.points[0], z = l.points[1];
                const bool across = from.y == to.y ? a.y == from.y && z.y == from.y : a.x == from.x && z.x == from.x;
                return across && std::min(a.x, z.x) <= from.x && std::max(a.x, z.x) >= to.x
                       && std::min(a.y, z.y) <= from.y && std::max(a.y, z.y) >= to.y;
            });
        };
        EXPECT_TRUE(spans({0, -off}, {b, -off}));
        EXPECT_TRUE(spans({b + off, 0}, {b + off, h}));
        const auto values = r.on("COTAS", 1);
        ASSERT_EQ(values.size(), 2u);
        EXPECT_EQ(values[0].text, g.dimensions[0].text);
        EXPECT_EQ(values[1].text, g.dimensions[1].text);
        const auto labels = r.on("TEXTOS", 1);
        ASSERT_EQ(labels.size(), g.labels.size());
        for (std::size_t i = 0; i < labels.size(); ++i) {
            EXPECT_EQ(labels[i].text, exporting::dxfText(g.labels[i].text));
            EXPECT_TRUE(near(labels[i].points[0], g.labels[i].position));
            EXPECT_DOUBLE_EQ(labels[i].size, g.labels[i].height);
        }
    }
}

#ifdef PILARIX_EZDXF_CHECK
// ezdxf opens the file as a CAD program would and audits it: nothing to report,
// nothing it had to mend, the units and every text, "ø" included, as written.
TEST(DxfWriter, EzdxfAuditFindsNothing)
{
    TempDir dir;
    for (const auto& [name, d] : test::sampleColumns()) {
        SCOPED_TRACE(name);
        const auto g = engine::sectionGeometry(d);
        const std::string path = dir.file("pilar.dxf");
        written(g, path);
        FILE* pipe = ::popen((std::string(PILARIX_EZDXF_CHECK) + " '" + path + "' 2>&1").c_str(), "r");
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
        std::vector<std::string> want = {g.dimensions[0].text, g.dimensions[1].text};
        for (const auto& l : g.labels)
            want.push_back(l.text);
        EXPECT_EQ(report["texts"].get<std::vector<std::string>>(), want);
    }
}
#endif

TEST(DxfWriter, WhatCannotBeWrittenGivesAMessageNamingTheFileAndNoFile)
{
    TempDir dir;
    const auto g = engine::sectionGeometry(test::sampleColumns()[0].detail);
    std::ofstream(dir.file("texto.txt")) << "x";
    auto broken = g;
    broken.bars[3].centre.x = std::nan("");
    struct Case {
        std::string path, says;
        engine::SectionGeometry geometry;
        bool namesFile = true;
    };
    const Case cases[] = {
        {dir.path.string(), "é uma pasta", g},
        {dir.file("nao_existe/pilar.dxf"), "a pasta \"" + dir.file("nao_existe") + "\" não existe", g},
        {dir.file("texto.txt/pilar.dxf"), "não é uma pasta", g},
        {"", "nome do arquivo", g, false},
        {dir.file("a.dxf"), "Não há seção", engine::SectionGeometry{}, false},
        {dir.file("b.dxf"), "valores inválidos", broken, false},
    };
    for (const Case& k : cases) {
        std::string error;
        EXPECT_FALSE(exporting::writeDxf(k.geometry, k.path, error)) << k.path;
        EXPECT_NE(error.find(k.says), std::string::npos) << error;
        if (k.namesFile) {
            EXPECT_NE(error.find("\"" + k.path + "\""), std::string::npos) << error;
        }
    }
    // A file the engineer made read-only stays as it was (root may write anywhere).
    if (::geteuid() != 0) {
        const std::string locked = dir.file("travado.dxf");
        std::ofstream(locked) << "anterior";
        ::chmod(locked.c_str(), 0444);
        std::string error, kept;
        EXPECT_FALSE(exporting::writeDxf(g, locked, error));
        EXPECT_NE(error.find("permissão"), std::string::npos) << error;
        std::ifstream(locked) >> kept;
        EXPECT_EQ(kept, "anterior");
    }
    for (const auto& e : fs::directory_iterator(dir.path))
        EXPECT_TRUE(e.path().filename() == "texto.txt" || e.path().filename() == "travado.dxf") << e.path();
}

TEST(DxfWriter, TextsGoInTheCodePageTheHeaderDeclares)
{
    const std::pair<std::string, std::string> cases[] = {
        {"N3= 8 ø 12.5", "N3= 8 \xF8 12.5"},  {"área 2 m²", "\xE1rea 2 m\xB2"},
        {"€ 5", "\\U+20AC 5"},                {"duas\nlinhas", "duas linhas"},
        {"x\xC3", "x?"} /* cut mid-character */, {"\xFF" "a", "?a"} /* not UTF-8 */,
    };
    for (const auto& [utf8, dxf] : cases)
        EXPECT_EQ(exporting::dxfText(utf8), dxf) << utf8;
}
