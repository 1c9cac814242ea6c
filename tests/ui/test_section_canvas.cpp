// The drawing in the window behaves like a drawing: fitted to its frame and
// following it, zoomed about the cursor, dragged, fitted again; greyed when stale.

#include "ui/drawing_samples.h"
#include "ui/section_canvas.h"

#include "export/drawing_layout.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace pilarix;

namespace {

engine::SectionGeometry defaultColumn() { return engine::sectionGeometry(test::sampleColumns()[0].detail); }

// The whole drawing, in widget pixels.
QRectF drawnExtent(const ui::SectionCanvas& c)
{
    const auto e = exporting::drawingExtent(c.section());
    return QRectF(c.view().toDevice({e.minX, e.maxY}), c.view().toDevice({e.maxX, e.minY}));
}

void wheel(QWidget& w, QPointF at, int delta)
{
    QWheelEvent e(at, w.mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                  Qt::NoScrollPhase, false);
    QApplication::sendEvent(&w, &e);
}

void mouse(QWidget& w, QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held)
{
    QMouseEvent e(type, at, w.mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(&w, &e);
}

struct Shown {
    ui::SectionCanvas canvas;
    explicit Shown(QSize size)
    {
        canvas.resize(size);
        canvas.setSection(defaultColumn());
        canvas.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&canvas));
    }
};

} // namespace

TEST(SectionCanvas, TheWholeDrawingFitsItsFrameAndFollowsItsResizes)
{
    Shown s(QSize(300, 420));
    for (QSize size : {QSize(300, 420), QSize(700, 260), QSize(180, 900)}) {
        SCOPED_TRACE(QString("%1 x %2").arg(size.width()).arg(size.height()).toStdString());
        s.canvas.resize(size);
        QApplication::processEvents();
        ASSERT_EQ(s.canvas.size(), size);
        EXPECT_TRUE(s.canvas.isFitted());
        const QRectF frame = QRectF(s.canvas.rect()).adjusted(ui::SectionCanvas::kMargin, ui::SectionCanvas::kMargin,
                                                              -ui::SectionCanvas::kMargin, -ui::SectionCanvas::kMargin);
        const QRectF drawn = drawnExtent(s.canvas);
        EXPECT_TRUE(frame.adjusted(-0.01, -0.01, 0.01, 0.01).contains(drawn));
        // As large as fits: it fills the frame one way.
        EXPECT_TRUE(std::abs(drawn.width() - frame.width()) < 0.01 || std::abs(drawn.height() - frame.height()) < 0.01);
        // And the concrete is 20 x 50 at one scale both ways.
        const QPointF low = s.canvas.view().toDevice({0, 0}), high = s.canvas.view().toDevice({20, 50});
        EXPECT_NEAR((low.y() - high.y()) / (high.x() - low.x()), 2.5, 1e-9);
    }
}

TEST(SectionCanvas, TheWheelZoomsAboutTheCursorAndFitBringsItBack)
{
    Shown s(QSize(400, 500));
    const double fitted = s.canvas.view().scale;
    const QPointF cursor = s.canvas.view().toDevice({4.125, 4.125}); // on a corner bar

    wheel(s.canvas, cursor, 240);
    EXPECT_FALSE(s.canvas.isFitted());
    EXPECT_GT(s.canvas.view().scale, 1.3 * fitted);
    const QPointF still = s.canvas.view().toDevice({4.125, 4.125});
    EXPECT_NEAR(still.x(), cursor.x(), 1e-6);
    EXPECT_NEAR(still.y(), cursor.y(), 1e-6);

    // A zoomed drawing stays zoomed when the frame changes.
    const double zoomed = s.canvas.view().scale;
    s.canvas.resize(500, 600);
    QApplication::processEvents();
    EXPECT_DOUBLE_EQ(s.canvas.view().scale, zoomed);

    s.canvas.fit();
    EXPECT_TRUE(s.canvas.isFitted());
    EXPECT_GT(s.canvas.view().scale, fitted); // the bigger frame's fit

    // Winding far either way stops at a sane size.
    for (int i = 0; i < 200; ++i)
        wheel(s.canvas, cursor, -120);
    EXPECT_GT(s.canvas.view().scale, 0);
    EXPECT_TRUE(std::isfinite(s.canvas.view().origin.x()));
}

TEST(SectionCanvas, DraggingMovesTheDrawingAndADoubleClickFitsIt)
{
    Shown s(QSize(400, 500));
    const render::DrawingView before = s.canvas.view();
    const QPointF from(200, 250), to(260, 210);
    mouse(s.canvas, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    mouse(s.canvas, QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
    mouse(s.canvas, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    mouse(s.canvas, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    EXPECT_FALSE(s.canvas.isFitted());
    EXPECT_DOUBLE_EQ(s.canvas.view().scale, before.scale);
    EXPECT_NEAR(s.canvas.view().origin.x(), before.origin.x() + 60, 1e-9);
    EXPECT_NEAR(s.canvas.view().origin.y(), before.origin.y() - 40, 1e-9);

    mouse(s.canvas, QEvent::MouseButtonDblClick, to, Qt::LeftButton, Qt::LeftButton);
    EXPECT_TRUE(s.canvas.isFitted());
    EXPECT_EQ(s.canvas.view().origin, before.origin);
}

TEST(SectionCanvas, ABarIsBlackStaleItIsGreyWithoutASectionThereIsNone)
{
    Shown s(QSize(300, 420));
    const QPoint bar = s.canvas.view().toDevice({4.125, 4.125}).toPoint();
    const auto at = [&](QPoint p) { return s.canvas.grab().toImage().pixel(p); };

    EXPECT_LT(qGray(at(bar)), 40);
    s.canvas.setStale(true);
    const QRgb stale = at(bar);
    EXPECT_GT(qGray(stale), 150);
    EXPECT_LT(qGray(stale), 250);
    s.canvas.setSection(defaultColumn()); // a new result is not stale
    EXPECT_FALSE(s.canvas.isStale());
    EXPECT_LT(qGray(at(bar)), 40);

    s.canvas.clearSection();
    EXPECT_FALSE(s.canvas.hasSection());
    EXPECT_EQ(at(bar), qRgb(255, 255, 255));
    wheel(s.canvas, bar, 120); // nothing to zoom, nothing breaks
    mouse(s.canvas, QEvent::MouseButtonDblClick, bar, Qt::LeftButton, Qt::LeftButton);
}
