#pragma once

namespace kvelder {

// The six picture boxes of the main window, by the names of their boxes.
enum class Picture { Picfelt, Picegenlast, Picnyttelast, Picnyttelast_2, Picresult, Picdisp };

inline constexpr Picture kPictures[] = {Picture::Picfelt,        Picture::Picegenlast, Picture::Picnyttelast,
                                        Picture::Picnyttelast_2, Picture::Picresult,   Picture::Picdisp};

const char* picture_name(Picture p);

} // namespace kvelder
