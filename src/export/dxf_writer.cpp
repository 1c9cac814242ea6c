#include "export/dxf_writer.h"

#include "export/drawing_layout.h"
#include "export/save_failure.h"
#include "files/bounded_read.h"
#include "files/safe_write.h"

#include <dl_dxf.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include <stdlib.h>
#include <unistd.h>

namespace pilarix::exporting {

namespace {

using engine::Point;

struct Layer {
    const char* name;
    int colour;     // AutoCAD colour index
    int lineweight; // hundredths of a millimetre
};

constexpr Layer kConcrete{"CONCRETO", 7, 35};
constexpr Layer kBars{"ARMADURA_LONGITUDINAL", 1, 50};
constexpr Layer kStirrup{"ESTRIBO", 3, 35};
constexpr Layer kTies{"ESTRIBO_SUPLEMENTAR", 4, 35};
constexpr Layer kDimensions{"COTAS", 8, 18};
constexpr Layer kTexts{"TEXTOS", 2, 25};
constexpr Layer kLayers[] = {kConcrete, kBars, kStirrup, kTies, kDimensions, kTexts};

constexpr const char* kTextStyle = "Standard";

// Handles dxflib gives its fixed records: the tables, the block records of model
// and paper space, and the objects those block records point to.
enum Handle : int {
    kVportTable = 0x8,
    kRootDictionary = 0xC,
    kGroupDictionary = 0xD,
    kPlotStyleDictionary = 0xE,
    kPlotStylePlaceholder = 0xF,
    kMlineStyleDictionary = 0x17,
    kMlineStyle = 0x18,
    kPlotSettingsDictionary = 0x19,
    kLayoutDictionary = 0x1A,
    kPaperSpaceRecord = 0x1B,
    kLayout1 = 0x1E,
    kModelSpaceRecord = 0x1F,
    kModelLayout = 0x22,
    kPaperSpace0Record = 0x23,
    kLayout2 = 0x26,
};

DL_Attributes onLayer(const Layer& layer) { return DL_Attributes(layer.name, 256, -1, "BYLAYER", 1.0); }

void point(DL_WriterA& w, int code, Point p)
{
    w.coord(code, p.x, p.y);
}

void headerPoint(DL_WriterA& w, const char* name, Point p)
{
    w.dxfString(9, name);
    point(w, 10, p);
}

void headerInt(DL_WriterA& w, const char* name, int value)
{
    w.dxfString(9, name);
    w.dxfInt(70, value);
}

// What a CAD program reads before the drawing: units, code page, extents, the
// current layer and styles.
void writeHeader(DL_Dxf& dxf, DL_WriterA& w, const Extent& e, double textHeight)
{
    dxf.writeHeader(w); // $ACADVER and $HANDSEED
    w.dxfString(9, "$DWGCODEPAGE");
    w.dxfString(3, "ANSI_1252");
    headerPoint(w, "$INSBASE", {0, 0});
    headerPoint(w, "$EXTMIN", {e.minX, e.minY});
    headerPoint(w, "$EXTMAX", {e.maxX, e.maxY});
    headerPoint(w, "$LIMMIN", {e.minX, e.minY});
    headerPoint(w, "$LIMMAX", {e.maxX, e.maxY});
    w.dxfString(9, "$LTSCALE");
    w.dxfReal(40, 1.0);
    w.dxfString(9, "$TEXTSIZE");
    w.dxfReal(40, textHeight);
    w.dxfString(9, "$TEXTSTYLE");
    w.dxfString(7, kTextStyle);
    w.dxfString(9, "$CLAYER");
    w.dxfString(8, "0");
    w.dxfString(9, "$DIMSTYLE");
    w.dxfString(2, "Standard");
    headerInt(w, "$LUNITS", 2);      // decimal
    headerInt(w, "$LUPREC", 2);      // 0.00 cm
    headerInt(w, "$AUNITS", 0);      // degrees
    headerInt(w, "$MEASUREMENT", 1); // metric
    headerInt(w, "$INSUNITS", 5);    // centimetres
    w.sectionEnd();
}

// The one viewport the file opens with, framing the whole drawing; dxflib's own
// looks at an A4 sheet in millimetres far from the section.
void writeViewport(DL_WriterA& w, const Extent& e)
{
    constexpr double aspect = 1.4;
    const double height = 1.1 * std::max({e.height(), e.width() / aspect, 1.0});
    w.table("VPORT", 1, kVportTable);
    w.dxfString(0, "VPORT");
    w.handle();
    w.dxfHex(330, kVportTable);
    w.dxfString(100, "AcDbSymbolTableRecord");
    w.dxfString(100, "AcDbViewportTableRecord");
    w.dxfString(2, "*Active");
    w.dxfInt(70, 0);
    point(w, 10, {0, 0});
    point(w, 11, {1, 1});
    point(w, 12, {(e.minX + e.maxX) / 2, (e.minY + e.maxY) / 2});
    point(w, 13, {0, 0});
    point(w, 14, {1, 1});  // snap spacing, cm
    point(w, 15, {10, 10}); // grid spacing, cm
    w.coord(16, 0, 0, 1);
    w.coord(17, 0, 0, 0);
    w.dxfReal(40, height);
    w.dxfReal(41, aspect);
    w.dxfReal(42, 50.0);
    w.dxfReal(43, 0.0);
    w.dxfReal(44, 0.0);
    w.dxfReal(50, 0.0);
    w.dxfReal(51, 0.0);
    w.dxfInt(71, 0);
    w.dxfInt(72, 100);
    w.dxfInt(73, 1);
    w.dxfInt(74, 3);
    w.dxfInt(75, 0);
    w.dxfInt(76, 0);
    w.dxfInt(77, 0);
    w.dxfInt(78, 0);
    w.dxfInt(281, 0);
    w.dxfInt(65, 1);
    w.coord(110, 0, 0, 0);
    w.coord(111, 1, 0, 0);
    w.coord(112, 0, 1, 0);
    w.dxfInt(79, 0);
    w.dxfReal(146, 0.0);
    w.tableEnd();
}

void writeTables(DL_Dxf& dxf, DL_WriterA& w, const Extent& e)
{
    w.sectionTables();
    writeViewport(w, e);

    w.tableLinetypes(3);
    dxf.writeLinetype(w, DL_LinetypeData("BYBLOCK", "BYBLOCK", 0, 0, 0.0));
    dxf.writeLinetype(w, DL_LinetypeData("BYLAYER", "BYLAYER", 0, 0, 0.0));
    dxf.writeLinetype(w, DL_LinetypeData("CONTINUOUS", "Continuous", 0, 0, 0.0));
    w.tableEnd();

    w.tableLayers(1 + static_cast<int>(std::size(kLayers)));
    dxf.writeLayer(w, DL_LayerData("0", 0), DL_Attributes("", 7, -3, "CONTINUOUS", 1.0));
    for (const Layer& l : kLayers)
        dxf.writeLayer(w, DL_LayerData(l.name, 0), DL_Attributes("", l.colour, l.lineweight, "CONTINUOUS", 1.0));
    w.tableEnd();

    // A TrueType font has "ø"; AutoCAD's simple txt.shx would not.
    w.tableStyle(1);
    dxf.writeStyle(w, DL_StyleData(kTextStyle, 0, 0.0, 1.0, 0.0, 0, 2.5, "arial.ttf", ""));
    w.tableEnd();

    dxf.writeView(w);
    dxf.writeUcs(w);
    w.tableAppid(1);
    dxf.writeAppid(w, "ACAD");
    w.tableEnd();
    dxf.writeDimStyle(w, 1, 1, 1, 1, 1);
    dxf.writeBlockRecord(w); // model space and the two paper spaces
    w.tableEnd();
    w.sectionEnd();

    w.sectionBlocks();
    for (const char* space : {"*Model_Space", "*Paper_Space", "*Paper_Space0"}) {
        dxf.writeBlock(w, DL_BlockData(space, 0, 0.0, 0.0, 0.0));
        dxf.writeEndBlock(w, space);
    }
    w.sectionEnd();
}

void writePolyline(DL_Dxf& dxf, DL_WriterA& w, const engine::Polyline& l, const Layer& layer)
{
    if (l.points.size() < 2)
        return;
    dxf.writePolyline(w, DL_PolylineData(static_cast<int>(l.points.size()), 0, 0, l.closed ? 1 : 0), onLayer(layer));
    for (const Point& p : l.points)
        dxf.writeVertex(w, DL_VertexData(p.x, p.y));
    dxf.writePolylineEnd(w);
}

void writeText(DL_Dxf& dxf, DL_WriterA& w, Point at, double height, double degrees, bool centred,
               const std::string& text, const Layer& layer)
{
    const double radians = degrees * std::acos(-1.0) / 180;
    // A centred text is placed by its alignment point, the middle of its baseline.
    dxf.writeText(w,
                  DL_TextData(at.x, at.y, 0, at.x, at.y, 0, height, 1.0, 0, centred ? 1 : 0, 0, dxfText(text),
                              kTextStyle, radians),
                  onLayer(layer));
}

void writeEntities(DL_Dxf& dxf, DL_WriterA& w, const engine::SectionGeometry& g)
{
    w.sectionEntities();
    writePolyline(dxf, w, g.outline, kConcrete);
    writePolyline(dxf, w, g.stirrupOuter, kStirrup);
    writePolyline(dxf, w, g.stirrupInner, kStirrup);
    for (const auto& hook : g.stirrupHooks)
        writePolyline(dxf, w, hook, kStirrup);
    for (const auto& tie : g.ties)
        writePolyline(dxf, w, tie, kTies);
    for (const auto& bar : g.bars)
        dxf.writeCircle(w, DL_CircleData(bar.centre.x, bar.centre.y, 0, bar.diameter / 2), onLayer(kBars));
    for (const auto& d : g.dimensions) {
        const DimensionFigure f = dimensionFigure(d);
        for (const Segment& s : f.lines)
            dxf.writeLine(w, DL_LineData(s.a.x, s.a.y, 0, s.b.x, s.b.y, 0), onLayer(kDimensions));
        writeText(dxf, w, f.textBase, f.textHeight, f.textAngle, true, f.text, kDimensions);
    }
    for (const auto& l : g.labels)
        writeText(dxf, w, l.position, l.height, 0, false, l.text, kTexts);
    w.sectionEnd();
}

void dictionary(DL_WriterA& w, int handle, int owner, std::initializer_list<std::pair<const char*, int>> entries)
{
    w.dxfString(0, "DICTIONARY");
    w.dxfHex(5, handle);
    w.dxfHex(330, owner);
    w.dxfString(100, "AcDbDictionary");
    w.dxfInt(280, 0);
    w.dxfInt(281, 1);
    for (const auto& [name, entry] : entries) {
        w.dxfString(3, name);
        w.dxfHex(350, entry);
    }
}

struct LayoutData {
    int handle;
    const char* name;
    int order;
    int blockRecord;
    bool paper;
};

void layout(DL_WriterA& w, const LayoutData& l)
{
    w.dxfString(0, "LAYOUT");
    w.dxfHex(5, l.handle);
    w.dxfHex(330, kLayoutDictionary);
    w.dxfString(100, "AcDbPlotSettings");
    w.dxfString(1, "");
    w.dxfString(2, "none_device");
    w.dxfString(4, "");
    w.dxfString(6, "");
    for (int code = 40; code <= 49; ++code)
        w.dxfReal(code, 0.0);
    w.dxfReal(140, 0.0);
    w.dxfReal(141, 0.0);
    w.dxfReal(142, 1.0);
    w.dxfReal(143, 1.0);
    w.dxfInt(70, l.paper ? 688 : 1712);
    w.dxfInt(72, 0);
    w.dxfInt(73, 0);
    w.dxfInt(74, l.paper ? 5 : 0);
    w.dxfString(7, "");
    w.dxfInt(75, l.paper ? 16 : 0);
    w.dxfReal(147, 1.0);
    w.dxfReal(148, 0.0);
    w.dxfReal(149, 0.0);
    w.dxfString(100, "AcDbLayout");
    w.dxfString(1, l.name);
    w.dxfInt(70, 1);
    w.dxfInt(71, l.order);
    w.coord(10, 0, 0);
    w.coord(11, 12, 9);
    w.coord(12, 0, 0, 0);
    w.coord(14, 0, 0, 0);
    w.coord(15, 0, 0, 0);
    w.dxfReal(146, 0.0);
    w.coord(13, 0, 0, 0);
    w.coord(16, 1, 0, 0);
    w.coord(17, 0, 1, 0);
    w.dxfInt(76, 0);
    w.dxfHex(330, l.blockRecord);
}

// The objects the block records and the header point to, each naming its owner:
// dxflib's own leave the owners out, and a CAD program then has to mend them.
void writeObjects(DL_WriterA& w)
{
    w.sectionObjects();
    dictionary(w, kRootDictionary, 0,
               {{"ACAD_GROUP", kGroupDictionary},
                {"ACAD_LAYOUT", kLayoutDictionary},
                {"ACAD_MLINESTYLE", kMlineStyleDictionary},
                {"ACAD_PLOTSETTINGS", kPlotSettingsDictionary},
                {"ACAD_PLOTSTYLENAME", kPlotStyleDictionary}});
    dictionary(w, kGroupDictionary, kRootDictionary, {});

    w.dxfString(0, "ACDBDICTIONARYWDFLT");
    w.dxfHex(5, kPlotStyleDictionary);
    w.dxfHex(330, kRootDictionary);
    w.dxfString(100, "AcDbDictionary");
    w.dxfInt(281, 1);
    w.dxfString(3, "Normal");
    w.dxfHex(350, kPlotStylePlaceholder);
    w.dxfString(100, "AcDbDictionaryWithDefault");
    w.dxfHex(340, kPlotStylePlaceholder);
    w.dxfString(0, "ACDBPLACEHOLDER");
    w.dxfHex(5, kPlotStylePlaceholder);
    w.dxfHex(330, kPlotStyleDictionary);

    dictionary(w, kMlineStyleDictionary, kRootDictionary, {{"Standard", kMlineStyle}});
    w.dxfString(0, "MLINESTYLE");
    w.dxfHex(5, kMlineStyle);
    w.dxfHex(330, kMlineStyleDictionary);
    w.dxfString(100, "AcDbMlineStyle");
    w.dxfString(2, "STANDARD");
    w.dxfInt(70, 0);
    w.dxfString(3, "");
    w.dxfInt(62, 256);
    w.dxfReal(51, 90.0);
    w.dxfReal(52, 90.0);
    w.dxfInt(71, 2);
    for (double offset : {0.5, -0.5}) {
        w.dxfReal(49, offset);
        w.dxfInt(62, 256);
        w.dxfString(6, "BYLAYER");
    }

    dictionary(w, kPlotSettingsDictionary, kRootDictionary, {});
    dictionary(w, kLayoutDictionary, kRootDictionary,
               {{"Layout1", kLayout1}, {"Layout2", kLayout2}, {"Model", kModelLayout}});
    layout(w, {kLayout1, "Layout1", 1, kPaperSpaceRecord, true});
    layout(w, {kModelLayout, "Model", 0, kModelSpaceRecord, false});
    layout(w, {kLayout2, "Layout2", 2, kPaperSpace0Record, true});
    w.sectionEnd();
}

// A drawing of one section is a few tens of kB; the bound only stops a runaway.
constexpr std::size_t kMaxDxfBytes = std::size_t{64} << 20;

// Removes the half-written file if the writing stops before it is put in place.
struct TemporaryFile {
    std::string path;
    bool keep = false;
    ~TemporaryFile()
    {
        if (!keep) {
            std::error_code ec;
            std::filesystem::remove(path, ec);
        }
    }
};

} // namespace

std::string dxfText(const std::string& utf8)
{
    std::string out;
    std::size_t i = 0;
    while (i < utf8.size()) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        const int length = c < 0x80 ? 1 : (c >> 5) == 0x6 ? 2 : (c >> 4) == 0xE ? 3 : (c >> 3) == 0x1E ? 4 : 0;
        bool valid = length > 0 && i + static_cast<std::size_t>(length) <= utf8.size();
        unsigned long code = length == 1 ? c : length == 2 ? c & 0x1Fu : length == 3 ? c & 0x0Fu : c & 0x07u;
        for (int k = 1; valid && k < length; ++k) {
            const auto cc = static_cast<unsigned char>(utf8[i + static_cast<std::size_t>(k)]);
            valid = (cc & 0xC0) == 0x80;
            code = (code << 6) | (cc & 0x3Fu);
        }
        if (!valid) {
            out += '?';
            ++i;
            continue;
        }
        i += static_cast<std::size_t>(length);
        if (code < 0x20)
            out += ' '; // a line break would end the DXF value
        else if (code < 0x80 || (code >= 0xA0 && code <= 0xFF))
            out += static_cast<char>(code); // Latin-1 and Windows-1252 agree here
        else {
            char escape[24];
            std::snprintf(escape, sizeof escape, "\\U+%04lX", code);
            out += escape;
        }
    }
    return out;
}

bool writeDxf(const engine::SectionGeometry& g, const std::string& path, std::string& error)
{
    if (!checkDrawable(g, error))
        return false;
    if (path.empty()) {
        error = missingFileName();
        return false;
    }
    if (const int obstacle = obstacleToSaving(path)) {
        error = saveFailure(path, obstacle);
        return false;
    }
    if (const std::string why = files::notARegularFile(path); !why.empty()) {
        error = saveFailure(path, why);
        return false;
    }

    // dxflib writes to a named file: a scratch file beside the target, whose bytes
    // then go into place whole (files/safe_write.h), so that a failed export leaves
    // the engineer's previous drawing as it was.
    std::string scratch = std::filesystem::path(path).parent_path().string();
    scratch = (scratch.empty() ? std::string(".") : scratch) + "/.dxf.pilarix-XXXXXX";
    errno = 0;
    const int fd = ::mkstemp(scratch.data());
    if (fd < 0) {
        error = saveFailure(path, errno ? errno : EACCES);
        return false;
    }
    ::close(fd);
    TemporaryFile temporary{scratch};
    DL_Dxf dxf;
    errno = 0;
    std::unique_ptr<DL_WriterA> w(dxf.out(temporary.path.c_str(), DL_VERSION_2000));
    if (!w) {
        error = saveFailure(path, errno ? errno : EACCES);
        return false;
    }
    const Extent extent = drawingExtent(g);
    const double textHeight = g.labels.empty() ? 1.5 : g.labels.front().height;
    writeHeader(dxf, *w, extent, textHeight);
    writeTables(dxf, *w, extent);
    writeEntities(dxf, *w, g);
    writeObjects(*w);
    w->dxfEOF();
    const int writeErrno = errno;
    w->close();
    if (w->openFailed()) {
        error = saveFailure(path, writeErrno ? writeErrno : ENOSPC);
        return false;
    }
    std::string bytes, why;
    if (!files::readBoundedFile(temporary.path, kMaxDxfBytes, bytes, why)) {
        error = saveFailure(path, why);
        return false;
    }
    return files::writeFileWhole(path, bytes, error);
}

} // namespace pilarix::exporting
