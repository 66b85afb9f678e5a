#include "drawing/plot_surface.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPaintDevice>
#include <QPolygon>
#include <QString>

#include <cmath>
#include <numbers>

namespace kvelder {
namespace {

QColor qt_color(PlotColor c)
{
    return QColor(static_cast<int>(c & 0xFFU), static_cast<int>((c >> 8) & 0xFFU),
                  static_cast<int>((c >> 16) & 0xFFU));
}

QString text_of(std::string_view s)
{
    return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size()));
}

Qt::PenStyle pen_style(DrawStyle style)
{
    switch (style) {
    case DrawStyle::Dash:
        return Qt::DashLine;
    case DrawStyle::Dot:
        return Qt::DotLine;
    case DrawStyle::DashDot:
        return Qt::DashDotLine;
    case DrawStyle::DashDotDot:
        return Qt::DashDotDotLine;
    case DrawStyle::Invisible:
        return Qt::NoPen;
    case DrawStyle::Solid:
        break;
    }
    return Qt::SolidLine;
}

} // namespace

std::int32_t to_pixel(double v)
{
    if (!(std::abs(v) < 1.0e6)) {
        return std::isnan(v) ? 0 : (v > 0 ? 1000000 : -1000000);
    }
    return static_cast<std::int32_t>(v);
}

PlotSurface::PlotSurface(QPaintDevice& device, QColor background) : m_device(device), m_background(background)
{
    begin();
}

PlotSurface::PlotSurface(QPagedPaintDevice& printer) : m_device(printer), m_pages(&printer)
{
    begin();
}

PlotSurface::~PlotSurface()
{
    if (m_painter.isActive()) {
        m_painter.end();
    }
}

void PlotSurface::begin()
{
    m_painter.begin(&m_device);
    m_font = QFont(QStringLiteral("Arial"));
    m_font.setPointSizeF(8);
    SetScaleMode(ScaleMode::Pixel);
}

int PlotSurface::PixelWidth() const
{
    return m_device.width();
}

int PlotSurface::PixelHeight() const
{
    return m_device.height();
}

void PlotSurface::SetScaleMode(ScaleMode mode)
{
    if (mode == ScaleMode::Pixel) {
        m_left = 0;
        m_top = 0;
        m_width = static_cast<float>(PixelWidth());
        m_height = static_cast<float>(PixelHeight());
    }
}

QPointF PlotSurface::to_device(float x, float y) const
{
    return {(static_cast<double>(x) - m_left) / m_width * PixelWidth(),
            (static_cast<double>(y) - m_top) / m_height * PixelHeight()};
}

float PlotSurface::from_device_x(double px) const
{
    return static_cast<float>(m_left + px / PixelWidth() * m_width);
}

float PlotSurface::from_device_y(double py) const
{
    return static_cast<float>(m_top + py / PixelHeight() * m_height);
}

float PlotSurface::CurrentX() const
{
    return from_device_x(m_cursor_x);
}

float PlotSurface::CurrentY() const
{
    return from_device_y(m_cursor_y);
}

void PlotSurface::SetCurrentX(float x)
{
    m_cursor_x = to_device(x, m_top).x();
}

void PlotSurface::SetCurrentY(float y)
{
    m_cursor_y = to_device(m_left, y).y();
}

QPen PlotSurface::pen(PlotColor color) const
{
    QPen p(qt_color(color));
    p.setWidth(std::max(1, m_draw_width));
    p.setStyle(pen_style(m_draw_style));
    return p;
}

void PlotSurface::Line(float x1, float y1, float x2, float y2)
{
    Line(x1, y1, x2, y2, m_fore);
}

void PlotSurface::Line(float x1, float y1, float x2, float y2, PlotColor color, bool box)
{
    const QPointF a = to_device(x1, y1);
    const QPointF b = to_device(x2, y2);
    m_painter.setPen(pen(color));
    if (box) {
        m_painter.setBrush(m_fill_style == FillStyle::Solid ? QBrush(qt_color(m_fill)) : QBrush(Qt::NoBrush));
        m_painter.drawRect(QRectF(a, b).normalized());
    } else if (a == b) {
        m_painter.drawPoint(a); // a line of no length is a dot, as on the screen
    } else {
        m_painter.drawLine(a, b);
    }
    m_cursor_x = b.x();
    m_cursor_y = b.y();
}

void PlotSurface::Circle(float x, float y, float radius, PlotColor color, float start, float end)
{
    const QPointF c = to_device(x, y);
    const double r = std::abs(static_cast<double>(radius) / m_width * PixelWidth());
    const QRectF bounds(c.x() - r, c.y() - r, 2 * r, 2 * r);
    double span = static_cast<double>(end) - start;
    if (span <= 0) {
        span += 2 * std::numbers::pi;
    }
    m_painter.setPen(pen(color));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawArc(bounds, static_cast<int>(std::lround(start * 180.0 / std::numbers::pi * 16)),
                      static_cast<int>(std::lround(span * 180.0 / std::numbers::pi * 16)));
    m_cursor_x = c.x();
    m_cursor_y = c.y();
}

void PlotSurface::Print(std::string_view text)
{
    const QFontMetricsF metrics(m_font, &m_device);
    m_painter.setFont(m_font);
    m_painter.setPen(qt_color(m_fore));
    m_painter.drawText(QPointF(m_cursor_x, m_cursor_y + metrics.ascent()), text_of(text));
    m_cursor_x = to_device(m_left, m_top).x();
    m_cursor_y += metrics.height();
}

void PlotSurface::Subscript(std::string_view text)
{
    const QFontMetricsF line(m_font, &m_device);
    QFont small = m_font;
    small.setPointSizeF(m_font.pointSizeF() * 0.7);
    const QFontMetricsF metrics(small, &m_device);
    m_painter.setFont(small);
    m_painter.setPen(qt_color(m_fore));
    m_painter.drawText(QPointF(m_cursor_x, m_cursor_y + line.ascent() * 1.25), text_of(text));
    m_cursor_x += metrics.horizontalAdvance(text_of(text));
}

float PlotSurface::TextWidth(std::string_view text) const
{
    const QFontMetricsF metrics(m_font, &m_device);
    return static_cast<float>(metrics.horizontalAdvance(text_of(text)) / PixelWidth() * std::abs(m_width));
}

float PlotSurface::TextHeight() const
{
    const QFontMetricsF metrics(m_font, &m_device);
    return static_cast<float>(metrics.height() / PixelHeight() * std::abs(m_height));
}

void PlotSurface::Cls()
{
    if (m_pages != nullptr) {
        return; // paper is not cleared: a printer has pages instead
    }
    m_painter.fillRect(QRect(0, 0, PixelWidth(), PixelHeight()), m_background);
    m_cursor_x = to_device(0, 0).x();
    m_cursor_y = to_device(0, 0).y();
}

void PlotSurface::NewPage()
{
    if (m_pages != nullptr) {
        m_pages->newPage();
    }
}

void PlotSurface::EndDoc()
{
    if (m_pages != nullptr && m_painter.isActive()) {
        m_painter.end();
    }
}

void PlotSurface::SetFontName(std::string_view name)
{
    m_font.setFamily(text_of(name));
}

void PlotSurface::SetFontSize(float points)
{
    m_font.setPointSizeF(points);
}

void PlotSurface::SetFontBold(bool on)
{
    m_font.setBold(on);
}

void PlotSurface::SetFontItalic(bool on)
{
    m_font.setItalic(on);
}

void PlotSurface::SetFontUnderline(bool on)
{
    m_font.setUnderline(on);
}

void PlotSurface::Polygon(std::span<const PixelPoint> points)
{
    QPolygon polygon;
    for (const PixelPoint& p : points) {
        polygon << QPoint(p.x, p.y);
    }
    m_painter.setPen(pen(m_fore));
    m_painter.setBrush(QBrush(qt_color(m_fill)));
    m_painter.drawPolygon(polygon, Qt::WindingFill);
}

} // namespace kvelder
