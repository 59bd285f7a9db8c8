#pragma once

#include <QFont>
#include <QWidget>

class QLabel;
class QLayout;
class QVBoxLayout;

/// Base of the gallery's pages: a title, a sentence, and below them what the page adds, section by
/// section. The page is as wide as the window lets it and scrolls when it is too high.
class Page : public QWidget
{
public:
    Page(const QString &title, const QString &summary);

protected:
    /// Starts a section.
    void addSection(const QString &heading);
    /// Appends to the current section, the page takes ownership.
    void addBlock(QWidget *block);
    void addBlock(QLayout *block);

    /// A label that wraps its text; \a pt high.
    static QLabel *createText(const QString &text, double pt = 7, int weight = QFont::Light);

private:
    QVBoxLayout *m_layout;
};
