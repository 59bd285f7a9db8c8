// SPDX-License-Identifier: MIT
#include "uitest/pseudotext_p.h"

#include <QHash>
#include <QRegularExpression>

namespace vexo::hox::qt::uitest {

namespace {

QChar accented(QChar letter)
{
    static const QHash<QChar, QChar> accents
        = { { u'a', u'á' }, { u'e', u'é' }, { u'i', u'í' }, { u'o', u'ö' }, { u'u', u'ü' },
              { u'A', u'Å' }, { u'E', u'É' }, { u'I', u'Í' }, { u'O', u'Ö' }, { u'U', u'Ü' } };
    return accents.value(letter);
}

// Each vowel is doubled as long as the text is too short for its place in it.
QString stretched(const QString &text, double factor)
{
    QString longer;
    for (int i = 0; i < text.size(); ++i) {
        const QChar accent = accented(text.at(i));
        longer += accent.isNull() ? text.at(i) : accent;
        while (!accent.isNull() && longer.size() < factor * (i + 1))
            longer += accent.toLower();
    }
    while (longer.size() < qRound(factor * text.size()))
        longer += QLatin1Char('~');
    return longer;
}

bool isTranslated(const QString &text)
{
    static const QRegularExpression word(QStringLiteral("\\p{L}\\p{L}"));
    return text.contains(word);
}

} // namespace

QString pseudoText(const QString &text, double factor)
{
    static const QRegularExpression kept(QStringLiteral("<[^>]*>|&\\w+;|%\\w+|\\n"));
    if (!isTranslated(text))
        return text;
    QString longer;
    int done = 0;
    auto it = kept.globalMatch(text);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        const QString part = text.mid(done, match.capturedStart() - done);
        longer += stretched(part, isTranslated(part) ? factor : 1) + match.captured();
        done = match.capturedEnd();
    }
    const QString rest = text.mid(done);
    return longer + stretched(rest, isTranslated(rest) ? factor : 1);
}

} // namespace vexo::hox::qt::uitest
