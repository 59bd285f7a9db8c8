#pragma once
// SPDX-License-Identifier: MIT

#include <QFont>
#include <QWidget>

class QLabel;
class QLayout;
class QVBoxLayout;
class TileLayout;

/// Base of the gallery's pages: a title, a sentence, and below them what the page adds, section by
/// section. The page is as wide as the window lets it and scrolls when it is too high.
class Page : public QWidget
{
public:
    enum Kind {
        Controls, ///< buttons react at once
        Rows, ///< for rows: a press reaches them late, or not at all when it becomes a swipe
        Screen ///< it scrolls inside itself
    };

    Page(const QString &title, const QString &summary, Kind kind = Controls);
    /// A Screen without title and margins.
    Page();

    Kind kind() const { return m_kind; }

    /// A label that wraps its text; \a pt high.
    static QLabel *createText(const QString &text, double pt = 7, int weight = QFont::Light);
    /// A widget with a caption below it, if there is one.
    static QLayout *createCaptioned(
        QWidget *widget, const QString &caption, Qt::Alignment alignment = {});

protected:
    /// Starts a section.
    void addSection(const QString &heading);
    /// Appends to the current section, the page takes ownership.
    void addBlock(QWidget *block);
    void addBlock(QLayout *block);
    /// Appends tiles, to be filled; mm. With a heading they start a section.
    TileLayout *addTiles(double column, const QSizeF &gap = QSizeF(4, 4));
    TileLayout *addTiles(const QString &heading, double column, const QSizeF &gap = QSizeF(4, 4));

private:
    QVBoxLayout *m_layout;
    Kind m_kind;
};
