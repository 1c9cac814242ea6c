// The drawing in the window behaves like a drawing: fitted to its frame and
// following it, zoomed about the cursor, dragged, fitted again; greyed when stale.

#include "ui/section_canvas.h"

#include "render/section_painter.h"

#include "export/drawing_layout.h"
#include "support/drawing_samples.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace pilarix;

namespace {

void wheel(QWidget& w, QPointF at, int delta)
{
    QWheelEvent e(at, w.mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                  false);
    QApplication::sendEvent(&w, &e);
}

void mouse(QWidget& w, QEvent::Type type, QPointF at, Qt::MouseButtons held)
{
    QMouseEvent e(type, at, w.mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held,
                  Qt::NoModifier);
    QApplication::sendEvent(&w, &e);
}

struct Shown {
    ui::SectionCanvas canvas;
    explicit Shown(QSize size)
    {
        canvas.resize(size);
        canvas.setSection(engine::sectionGeometry(test::sampleColumns()[0].detail));
        canvas.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&canvas));
    }
    QPointF at(engine::Point p) const { return canvas.view().toDevice(p); }
};

} // namespace

TEST(SectionCanvas, TheWholeDrawingFitsItsFrameAndFollowsItsResizes)
{
    Shown s(QSize(300, 420));
    const auto e = exporting::drawingExtent(s.canvas.section());
    for (QSize size : {QSize(300, 420), QSize(700, 260), QSize(180, 900)}) {
        SCOPED_TRACE(size.width());
        s.canvas.resize(size);
        QApplication::processEvents();
        EXPECT_TRUE(s.canvas.isFitted());
        const double m = ui::SectionCanvas::kMargin;
        const QRectF frame = QRectF(s.canvas.rect()).adjusted(m - 0.01, m - 0.01, 0.01 - m, 0.01 - m);
        // The drawing with its texts raised to the window's small text size.
        const double below =
            render::textOverflowBelow(s.canvas.section(), s.canvas.view(), s.canvas.minimumTextPixels());
        const QRectF drawn = QRectF(s.at({e.minX, e.maxY}), s.at({e.maxX, e.minY})).adjusted(0, 0, 0, below);
        EXPECT_TRUE(frame.adjusted(0, 0, 0, 1).contains(drawn));
        // As large as fits: it fills the frame one way.
        EXPECT_TRUE(std::abs(drawn.width() - frame.width()) < 0.03 || std::abs(drawn.height() - frame.height()) < 1)
            << drawn.height() << " " << frame.height();
    }
}

TEST(SectionCanvas, TheWheelZoomsAboutTheCursorADragMovesItFitBringsItBack)
{
    Shown s(QSize(400, 500));
    const render::DrawingView fitted = s.canvas.view();
    const QPointF bar = s.at({4.125, 4.125});
    wheel(s.canvas, bar, 240);
    EXPECT_FALSE(s.canvas.isFitted());
    EXPECT_GT(s.canvas.view().scale, 1.3 * fitted.scale);
    EXPECT_LT(QLineF(s.at({4.125, 4.125}), bar).length(), 1e-6) << "the bar stays under the cursor";

    // A zoomed drawing stays zoomed when the frame changes; a drag moves it.
    const double zoomed = s.canvas.view().scale;
    s.canvas.resize(500, 600);
    QApplication::processEvents();
    EXPECT_DOUBLE_EQ(s.canvas.view().scale, zoomed);
    const QPointF from(200, 250), to(260, 210), before = s.at({0, 0});
    mouse(s.canvas, QEvent::MouseButtonPress, from, Qt::LeftButton);
    mouse(s.canvas, QEvent::MouseMove, (from + to) / 2, Qt::LeftButton);
    mouse(s.canvas, QEvent::MouseMove, to, Qt::LeftButton);
    mouse(s.canvas, QEvent::MouseButtonRelease, to, Qt::NoButton);
    EXPECT_LT(QLineF(s.at({0, 0}), before + (to - from)).length(), 1e-9);

    s.canvas.resize(400, 500);
    mouse(s.canvas, QEvent::MouseButtonDblClick, to, Qt::LeftButton);
    EXPECT_TRUE(s.canvas.isFitted());
    EXPECT_EQ(s.canvas.view().origin, fitted.origin);
    EXPECT_EQ(s.canvas.view().scale, fitted.scale);

    for (int i = 0; i < 200; ++i) // winding far out stops at a sane size
        wheel(s.canvas, bar, -120);
    EXPECT_GT(s.canvas.view().scale, fitted.scale / 100);
}

TEST(SectionCanvas, ABarIsBlackStaleItIsGreyWithoutASectionThereIsNone)
{
    Shown s(QSize(300, 420));
    const QPoint bar = s.at({4.125, 4.125}).toPoint();
    const auto grey = [&] { return qGray(s.canvas.grab().toImage().pixel(bar)); };
    EXPECT_LT(grey(), 40);
    s.canvas.setStale(true);
    EXPECT_GT(grey(), 150);
    EXPECT_LT(grey(), 250);
    s.canvas.setSection(s.canvas.section()); // a new result is not stale
    EXPECT_LT(grey(), 40);

    s.canvas.clearSection();
    EXPECT_EQ(grey(), 255);
    wheel(s.canvas, bar, 120); // nothing to zoom or drag, nothing breaks
    mouse(s.canvas, QEvent::MouseButtonDblClick, bar, Qt::LeftButton);
}

// The window's texts at their least height: each at least that tall, none over
// another nor over the concrete, all within the frame the canvas fitted them to;
// without it (the exported drawings) every text is where the geometry puts it.
TEST(SectionCanvasTexts, RaisedToTheLeastHeightTheyStayApart)
{
    const struct Row {
        const char* name;
        QSize frame;
        double least;
    } rows[] = {
        {"a small frame at 150 %", {260, 300}, 16},
        {"a narrow tall frame", {180, 420}, 14},
        {"a large frame, texts already tall", {900, 900}, 9},
    };
    for (const auto& sample : test::sampleColumns()) {
        const engine::SectionGeometry g = engine::sectionGeometry(sample.detail);
        for (const Row& r : rows) {
            const QRectF frame(QPointF(0, 0), QSizeF(r.frame));
            render::DrawingView v = render::fitView(g, frame, 12);
            const double below = render::textOverflowBelow(g, v, r.least);
            v = render::fitView(g, frame.adjusted(0, 0, 0, -below), 12);
            const auto texts = render::placedTexts(g, v, r.least);
            const QRectF concrete(v.toDevice({0, sample.detail.depth}), v.toDevice({sample.detail.width, 0}));
            for (std::size_t i = 0; i < texts.size(); ++i) {
                const auto& a = texts[i];
                EXPECT_GE(a.pixels, r.least - 1e-9) << sample.name << ", " << r.name << ": " << a.text;
                EXPECT_FALSE(a.box.intersects(concrete)) << r.name << ": " << a.text;
                EXPECT_LE(a.box.bottom(), frame.bottom() + 1) << r.name << ": " << a.text;
                for (std::size_t j = i + 1; j < texts.size(); ++j)
                    EXPECT_FALSE(a.box.intersects(texts[j].box)) << r.name << ": " << a.text << " / " << texts[j].text;
            }
        }
        // No least height: the exported drawing's places, which reach no further.
        const render::DrawingView v = render::fitView(g, QRectF(0, 0, 260, 300), 12);
        EXPECT_EQ(render::textOverflowBelow(g, v, 0), 0.0) << sample.name;
    }
}
