#pragma once
// SPDX-License-Identifier: MIT

#include <QWidget>

/// A ground of one colour in a hairline, so that white is seen on white. What is shown stands on it
/// with a margin all around.
class FramedGround : public QWidget
{
public:
    /// Takes ownership of \a shown; px.
    FramedGround(const QColor &color, QWidget *shown, const QSize &margin);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color;
};
