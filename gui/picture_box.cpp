#include "gui/picture_box.h"

#include <QPainter>

namespace kvelder {

PictureBox::PictureBox(const QString& name, QWidget* parent) : QWidget(parent)
{
    setObjectName(name);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(60, 30);
}

void PictureBox::set_image(QImage image)
{
    m_image = std::move(image);
    update();
}

void PictureBox::draw(const std::function<void(PlotSurface&)>& plot)
{
    QImage image(size() * devicePixelRatio(), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatio());
    image.fill(Qt::white);
    {
        PlotSurface surface(image);
        plot(surface);
    }
    set_image(std::move(image));
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.drawImage(QPoint(0, 0), m_image);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void PictureBox::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    emit resized();
}

void PictureBox::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
    emit clicked();
}

} // namespace kvelder
