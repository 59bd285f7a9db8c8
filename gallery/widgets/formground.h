#pragma once
// SPDX-License-Identifier: MIT

#include <VexoColors>

#include <QWidget>

class QGridLayout;

/// The ground of a form: fields below their captions, in columns of the same width.
class FormGround : public QWidget
{
public:
    explicit FormGround(int columns, const QColor &color = vexo::hox::qt::ui::VexoColors::C1);

    /// Fills the next cell; \a caption also names the field for assistive technology.
    void add(const QString &caption, QWidget *field);

private:
    int startRow(int line);

    QGridLayout *m_grid;
    const int m_columns;
    int m_count = 0; // cells in use
};
