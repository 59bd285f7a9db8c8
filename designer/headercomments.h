#pragma once
// SPDX-License-Identifier: MIT

#include <QByteArray>
#include <QString>

/// What a public header says about \a class_name, without namespace, or about its \a property;
/// empty if nothing. Paragraphs are lines.
QString headerComment(const QByteArray &class_name, const QByteArray &property = QByteArray());

/// For a tool tip, which wraps it.
QString asRichText(const QString &comment);
