#pragma once
// SPDX-License-Identifier: MIT

#include "panel/mmlength_p.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <variant>

namespace vexo::hox::qt::panel {

using SheetWord = std::variant<MmLength, QString>;

/// Its words are what stands between blanks; a quotation and a function are in one piece.
struct SheetDeclaration
{
    QString property;
    QVector<SheetWord> words;
};

struct SheetRule
{
    QString selector;
    QVector<SheetDeclaration> declarations;
};

/// Reads a sheet, each character once. A sheet with a fault has no rules.
class MmSheetReader
{
public:
    explicit MmSheetReader(const QString &text);

    QVector<SheetRule> rules() const { return m_rules; }
    /// What is wrong, with its line: "12: unknown unit ..."; empty for a good sheet.
    QString fault() const { return m_fault; }

private:
    void readRules();
    SheetRule readRule(const QString &selector);
    SheetDeclaration readValue(const QStringList &property);
    QStringList readWords(const char *stops);
    void readPiece(QStringList *words);
    void readQuotation(QString *word);
    void readUrl(QString *word);
    void readCharacter(QString *word);
    void skipBlank();
    void skipComment();
    bool isAt(const char *text) const;
    bool isAtOneOf(const char *characters) const;
    QChar takeStop();

    const QString m_text;
    int m_pos = 0;
    int m_line = 1;
    int m_part_line = 1; // where the part that is read began
    int m_depth = 0; // of parentheses
    QVector<SheetRule> m_rules;
    QString m_fault;
};

} // namespace vexo::hox::qt::panel
