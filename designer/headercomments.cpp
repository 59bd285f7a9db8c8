// SPDX-License-Identifier: MIT
#include "designer/headercomments.h"

namespace {

struct Comment
{
    const char *class_name;
    const char *property;
    const char *text;
};

constexpr Comment COMMENTS[] = {
#include "headercomments.inc"
};

} // namespace

QString headerComment(const QByteArray &class_name, const QByteArray &property)
{
    for (const Comment &comment : COMMENTS) {
        if (class_name == comment.class_name && property == comment.property)
            return QString::fromUtf8(comment.text);
    }
    return QString();
}

QString asRichText(const QString &comment)
{
    QString paragraphs = comment.toHtmlEscaped();
    paragraphs.replace(QLatin1Char('\n'), QLatin1String("</p><p>"));
    return QStringLiteral("<p>%1</p>").arg(paragraphs);
}
