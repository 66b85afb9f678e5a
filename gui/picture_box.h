#pragma once

#include <QImage>
#include <QWidget>

namespace kvelder {

// A picture box: it shows the image last drawn for it at its own size, and
// tells when that size changed or it was clicked.
class PictureBox : public QWidget {
    Q_OBJECT
public:
    explicit PictureBox(const QString& name, QWidget* parent = nullptr);
    void set_image(QImage image);
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
