#pragma once

#include <QFont>
#include <QPainter>

#include <cstdint>
#include <span>
#include <string_view>

class QPaintDevice;
class QPagedPaintDevice;

namespace kvelder {

// A colour as the plots give it: red in the low byte, then green, then blue.
using PlotColor = std::uint32_t;

constexpr PlotColor RGB(int r, int g, int b)
{
    return static_cast<PlotColor>(r) | (static_cast<PlotColor>(g) << 8) | (static_cast<PlotColor>(b) << 16);
}

// A point of a polygon in device pixels.
struct PixelPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

// Pixel puts the scale on device pixels, origin at the top left; User keeps
// the scale last set through SetScaleLeft .. SetScaleHeight.
enum class ScaleMode { User, Pixel };

// Whether a box is filled in FillColor or left open.
enum class FillStyle { Solid, Transparent };

// The pattern of a line; Invisible draws no line at all.
enum class DrawStyle { Solid, Dash, Dot, DashDot, DashDotDot, Invisible };

// A pixel coordinate as the polygon operation takes it: truncated towards 0,
// held to a range far beyond any picture, and 0 for what is no number.
std::int32_t to_pixel(double v);

// The one drawing target of every picture: a picture on the screen, an image,
// a printer or a PDF page, all through QPainter. Coordinates are in the user
// scale in force (or device pixels in pixel mode); a negative ScaleHeight turns
// y upward. The cursor lives on the device, so changing the scale keeps its
// place and reads it back in the new units.
class PlotSurface {
public:
    // A screen surface (Cls clears it to `background`) over a device that
    // outlives the surface; drawing starts at once.
    explicit PlotSurface(QPaintDevice& device, QColor background = Qt::white);
    // A printer surface: pages through NewPage, finished by EndDoc.
    explicit PlotSurface(QPagedPaintDevice& printer);
    ~PlotSurface();
    PlotSurface(const PlotSurface&) = delete;
    PlotSurface& operator=(const PlotSurface&) = delete;

    // Setting the pixel mode drops the user scale.
    void SetScaleMode(ScaleMode mode);
    float ScaleLeft() const { return m_left; }
    float ScaleTop() const { return m_top; }
    float ScaleWidth() const { return m_width; }
    float ScaleHeight() const { return m_height; }
    void SetScaleLeft(float v) { m_left = v; }
    void SetScaleTop(float v) { m_top = v; }
    void SetScaleWidth(float v) { m_width = v; }
    void SetScaleHeight(float v) { m_height = v; }

    float CurrentX() const;
    float CurrentY() const;
    void SetCurrentX(float x);
    void SetCurrentY(float y);

    // A line from (x1, y1) to (x2, y2) in ForeColor, or in `color`; with `box`
    // the rectangle of the two corners, filled by FillStyle and FillColor. The
    // cursor ends at (x2, y2).
    void Line(float x1, float y1, float x2, float y2);
    void Line(float x1, float y1, float x2, float y2, PlotColor color, bool box = false);
    // An arc from `start` to `end` radians, counter-clockwise as seen, from the
    // positive x direction; the radius is measured along x.
    void Circle(float x, float y, float radius, PlotColor color, float start, float end);
    // One string with its top left corner at the cursor; the cursor goes to the
    // left edge of the next text line.
    void Print(std::string_view text);
    // A subscript to the text before it on the cursor's line: smaller, its
    // baseline below the line's. The cursor moves on to its right end and
    // stays on the line, so the text goes on after it.
    void Subscript(std::string_view text);
    float TextWidth(std::string_view text) const;
    float TextHeight() const;

    // Cls clears a screen surface and puts the cursor at (0, 0); a printer
    // surface has NewPage and EndDoc instead, and the others do nothing there.
    void Cls();
    void NewPage();
    void EndDoc();

    void SetForeColor(PlotColor c) { m_fore = c; }
    void SetFillColor(PlotColor c) { m_fill = c; }
    void SetFillStyle(FillStyle style) { m_fill_style = style; }
    void SetDrawWidth(int width) { m_draw_width = width; }
    void SetDrawStyle(DrawStyle style) { m_draw_style = style; }
    PlotColor ForeColor() const { return m_fore; }
    void SetFontName(std::string_view name);
    void SetFontSize(float points);
    void SetFontBold(bool on);
    void SetFontItalic(bool on);
    void SetFontUnderline(bool on);

    // A filled polygon in device pixels, whatever the scale: FillColor inside,
    // ForeColor around, winding fill.
    void Polygon(std::span<const PixelPoint> points);

    // The size of the drawing area in device pixels.
    int PixelWidth() const;
    int PixelHeight() const;

private:
    QPointF to_device(float x, float y) const;
    float from_device_x(double px) const;
    float from_device_y(double py) const;
    QPen pen(PlotColor color) const;
    void begin();

    QPaintDevice& m_device;
    QPagedPaintDevice* m_pages = nullptr;
    QPainter m_painter;
    QColor m_background;
    QFont m_font;
    float m_left = 0, m_top = 0, m_width = 0, m_height = 0;
    double m_cursor_x = 0, m_cursor_y = 0; // device pixels
    PlotColor m_fore = 0, m_fill = 0;
    FillStyle m_fill_style = FillStyle::Transparent;
    int m_draw_width = 1;
    DrawStyle m_draw_style = DrawStyle::Solid;
};

} // namespace kvelder
