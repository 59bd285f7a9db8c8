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
    QString name; // of the property, in lower case
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
    void countCost(const SheetRule &rule);
    QStringList readWords(int stops);
    QString readWord(int stops);
    void skipPiece();
    void skipBlanks();
    void skipQuotation();
    void skipParenthesis();
    void skipUrl();
    void skipComment();
    bool isAtComment() const;
    int kindAt(int pos) const;
    QChar takeStop();

    const QString m_text;
    int m_pos = 0;
    int m_line = 1;
    int m_part_line = 1; // where the part that is read began
    int m_depth = 0; // of parentheses
    qint64 m_cost = 0; // for the toolkit
    QVector<SheetRule> m_rules;
    QString m_fault;
};

} // namespace vexo::hox::qt::panel
