#pragma once
// SPDX-License-Identifier: MIT

#include <QLabel>

namespace vexo::hox::qt::ui {

/// Lets \a label show its texts as they are, until an application sets another format. A stock
/// label takes what looks like markup for markup, and loads the images it names: from any file, a
/// device without end and a pipe that holds up the panel included. Call it before the first text is
/// set.
template <typename Label>
Label *showPlain(Label *label)
{
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// A label for plain text; every label that the library makes is one.
inline QLabel *plainLabel(QWidget *parent = nullptr)
{
    return showPlain(new QLabel(parent));
}

} // namespace vexo::hox::qt::ui
