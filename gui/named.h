#pragma once

#include <QString>
#include <QWidget>

#include <cstddef>

namespace kvelder {

// A control of the window under its name, so that tests and scripts find it.
template <typename W> W* named(const QString& name, QWidget* parent)
{
    auto* w = new W(parent);
    w->setObjectName(name);
    return w;
}

// The name of one element of a control array: "Txtfelt_0".
inline QString indexed(const char* base, std::size_t index)
{
    return QString::fromLatin1(base) + QLatin1Char('_') + QString::number(index);
}

// The layout of a frame, with the narrow margins the crowded window needs.
template <typename Layout> Layout* frame_layout(QWidget* frame)
{
    auto* layout = new Layout(frame);
    layout->setContentsMargins(4, 2, 4, 2);
    return layout;
}

} // namespace kvelder
