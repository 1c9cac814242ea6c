#pragma once
// The section's drawing in the window, behaving like a drawing: it fills its frame
// and follows it as it is resized (the whole drawing, in proportion, with a margin)
// until the engineer zooms with the wheel, about the cursor, or drags it with the
// left button; fit(), or a double click, brings the whole drawing back. The same
// painter draws it as the SVG and PNG files, on white like the sheet.
//
// With no section it shows a line of text in its place; a stale drawing (the input
// changed after the calculation that made it) is shown greyed, with a note.

#include "engine/geometry.h"
#include "render/section_painter.h"

#include <QString>
#include <QWidget>

namespace pilarix::ui {

class SectionCanvas : public QWidget {
    Q_OBJECT
public:
    explicit SectionCanvas(QWidget* parent = nullptr);

    // Shows the section, fitted to the frame; the stale mark is cleared.
    void setSection(const engine::SectionGeometry& geometry);
    // Shows the placeholder text instead.
    void clearSection();
    bool hasSection() const { return hasSection_; }
    const engine::SectionGeometry& section() const { return geometry_; }

    void setPlaceholderText(const QString& text);
    QString placeholderText() const { return placeholder_; }

    void setStale(bool stale);
    bool isStale() const { return stale_; }

    // A section whose calculation failed ("erro") is drawn greyed under a large
    // "NÃO VERIFICADO" and the reason, so that it never looks like a valid design.
    void setUnverified(const QString& reason);
    bool isUnverified() const { return !unverified_.isEmpty(); }

    // The view on screen (pixels per cm and where the concrete's lower-left corner
    // is), and whether it still follows the frame.
    const render::DrawingView& view() const { return view_; }
    bool isFitted() const { return fitted_; }

    // Zooms by `factor` keeping the drawing's point under `about` (widget pixels)
    // where it is; the wheel does this about the cursor.
    void zoomAt(double factor, QPointF about);

    QSize sizeHint() const override { return {320, 420}; }
    QSize minimumSizeHint() const override { return {120, 120}; }

    static constexpr double kMargin = 12; // pixels around the fitted drawing
    // The least height of the drawing's texts on the screen: the window's own small
    // text, so that they read at 125 % and 150 % as the boxes around them do.
    double minimumTextPixels() const;
    // The whole drawing in the frame, the texts at their least height included.
    render::DrawingView fittedView() const;

public slots:
    void fit();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void updateCursor();

    engine::SectionGeometry geometry_;
    bool hasSection_ = false;
    bool stale_ = false;
    QString unverified_;
    bool fitted_ = true;
    bool dragging_ = false;
    QPointF dragFrom_;
    render::DrawingView view_;
    double fitScale_ = 1;
    QString placeholder_;
};

} // namespace pilarix::ui
