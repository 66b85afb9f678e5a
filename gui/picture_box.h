#pragma once

#include "drawing/plot_surface.h"

#include <QImage>
#include <QWidget>

#include <functional>

namespace kvelder {

// A picture box: it shows the image last drawn for it at its own size, and
// tells when that size changed or it was clicked.
class PictureBox : public QWidget {
    Q_OBJECT
public:
    explicit PictureBox(const QString& name, QWidget* parent = nullptr);
    void set_image(QImage image);
    // Shows what `plot` draws on a white image of the box's size.
    void draw(const std::function<void(PlotSurface&)>& plot);
    const QImage& image() const { return m_image; }

signals:
    void resized();
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QImage m_image;
};

} // namespace kvelder
