#include "app/cli/plot_command.h"

#include "drawing/path_qstring.h"
#include "drawing/pictures.h"
#include "files/path_text.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <array>
#include <optional>
#include <string>

namespace kvelder::cli {

std::optional<std::string> write_pictures(const Model& m, const std::filesystem::path& folder, int width,
                                          int height)
{
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    if (!std::filesystem::is_directory(folder)) {
        return utf8_text(folder) + ": no folder can be made there";
    }
    std::array<QSize, std::size(kPictures)> sizes;
    sizes.fill(QSize(width, height));
    const PictureImages images = draw_pictures(m, sizes);
    for (std::size_t k = 0; k < images.size(); ++k) {
        const std::filesystem::path file =
            folder / path_from_utf8(std::string(picture_name(kPictures[k])) + ".png");
        if (!images[k].save(to_qstring(file), "PNG")) {
            return utf8_text(file) + ": cannot be written";
        }
    }
    return std::nullopt;
}

} // namespace kvelder::cli
