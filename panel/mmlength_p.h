#pragma once
// SPDX-License-Identifier: MIT

#include <QString>
#include <QVector>

#include <variant>

namespace vexo::hox::qt::ui {
class ScalingInfo;
}

namespace vexo::hox::qt::panel {

enum class Direction { LeftRight, UpDown };

/// A length in a sheet: 2mm, 7pt, 1px, or a sum of such as in calc(6mm - 1px).
class MmLength
{
public:
    /// \a word as a length, or what it is instead: itself, a word that is none. Throws SheetFault
    /// when it looks like a length and is none.
    static std::variant<MmLength, QString> read(const QString &word);

    /// Each term is cut to whole px by itself, as a layout does with what lies side by side; one
    /// above 0 keeps 1 px.
    int px(const ui::ScalingInfo &scaling, Direction direction) const;

private:
    enum Unit { NoLength, Mm, Pt, Px };
    struct Term
    {
        double number;
        Unit unit;
    };

    static Term readTerm(const QString &word);
    static Unit unitOf(const QString &word, int pos);
    static MmLength readSum(const QString &word);

    QVector<Term> m_terms;
};

/// What is wrong with a sheet, in plain words.
struct SheetFault
{
    QString text;
};

} // namespace vexo::hox::qt::panel
