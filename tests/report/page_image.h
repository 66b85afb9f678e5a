#pragma once

#include <QImage>

#include <algorithm>
#include <array>

namespace kvelder::test {

// A report page of 200 x 290 mm at 4 pixels a millimetre, and the extent of
// its ink.
struct PageImage {
    QImage image{800, 1160, QImage::Format_RGB32};
    PageImage() { image.fill(Qt::white); }
    // left, right, bottom, top in millimetres, y up; an empty page gives left > right.
    std::array<float, 4> ink() const
    {
        int left = image.width(), right = -1, top = image.height(), bottom = -1;
        for (int py = 0; py < image.height(); ++py) {
            const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(py));
            for (int px = 0; px < image.width(); ++px) {
                if (row[px] != qRgb(255, 255, 255)) {
                    left = std::min(left, px), right = std::max(right, px);
                    top = std::min(top, py), bottom = std::max(bottom, py);
                }
            }
        }
        return {left / 4.0F, (right + 1) / 4.0F, 290 - (bottom + 1) / 4.0F, 290 - top / 4.0F};
    }
};

} // namespace kvelder::test
