#pragma once
// SPDX-License-Identifier: MIT

#include "panel/hoxqpanel_export.h"

#include <QHash>
#include <QObject>
#include <QStringList>

#include <vector>

class QPalette;

namespace vexo::hox::qt::panel {

struct SheetRule;

/// Stylesheets with lengths in millimetres and points, for the whole application. They are those of
/// the toolkit, and a length may also be 2mm, 7.5pt (1 pt is 25.4/72 mm) or a sum such as
/// calc(6mm - 1px). Each becomes whole pixels of the panel, cut as in a layout, at least one where
/// it is above 0: left and right by the density across, up and down by the other one, in each word
/// of "margin: 1mm 2mm" by its own. What stands in quotes or in url() stays as it is.
///
/// A corner's radius is cut to half of the width and height that its rule makes sure of; with a
/// larger one the toolkit draws a square. So a circle is "width: 4mm; height: 4mm; border-radius:
/// 2mm" at each density.
///
/// Files in pixels may stand in front of those in millimetres. What a later rule of the same
/// selector says anew is left out: it would never show, but the toolkit would load its images. A
/// file with a fault adds nothing and is named in a warning with the line: a unit that is none, a
/// brace, quotation or comment without its end, a declaration without value, hundreds of selectors
/// in one rule.
///
/// Keep the object: as long as the application shows what set() gave it, that follows the
/// ScalingInfo within the event loop. Widgets of the library take a new scale with their next
/// measure only.
class HOXQPANEL_EXPORT MmStylesheet : public QObject
{
    Q_OBJECT

public:
    /// The ready sheets: sliders, check boxes and radio buttons as Panel::setUp() dresses them, and
    /// combo boxes, spin boxes, progress bars, tab bars, lists, trees, tables and scroll bars.
    enum Look {
        Day, ///< dark on white
        Night ///< light on black
    };
    Q_ENUM(Look)

    /// Reads \a files in this order; where two rules weigh the same, the later one wins. Nothing is
    /// shown before set().
    explicit MmStylesheet(const QStringList &files = QStringList(), QObject *parent = nullptr);
    ~MmStylesheet() override;

    /// The files of a ready look: those of the widgets' library, ":/sheets/controls.qs",
    /// ":/sheets/panel.qs" and, by night, ":/sheets/night.qs". Append your own, here or in
    /// PanelOptions::sheets.
    static QStringList files(Look look);
    /// The palette that goes with it, for what has no rule; Panel::setUp() takes that of the day.
    static QPalette palette(Look look);

    /// Appends the file \a name, a resource, path or name in a search path. False, with a warning
    /// and nothing appended, when it cannot be read (a regular file of at most 131,072 bytes) or
    /// has a fault.
    bool addFile(const QString &name);
    /// Appends rules; a warning calls them \a name. False as for a file.
    bool addText(const QString &rules, const QString &name = QStringLiteral("text"));
    /// What was wrong so far, a line for each file: "night.qs:12: unknown unit 'cm' in '2cm' ...".
    QStringList faults() const { return m_faults; }

    /// All rules at the scale of now, for a part of the application: QWidget::setStyleSheet().
    /// Throws what ScalingInfo::inst() throws.
    QString inPixels() const;
    /// Replaces the application's stylesheet by inPixels(), as VexoStylesheet::set() does.
    void set();

private:
    void append(const SheetRule &rule);
    bool refuse(const QString &fault);
    void followScale();

    std::vector<SheetRule> m_rules;
    QHash<QString, std::size_t> m_places; // of the last rule of each selector
    QStringList m_faults;
    QString m_shown; // what the application was given
    float m_px_per_mm_x = 0; // for which it was made
    float m_px_per_mm_y = 0;
};

} // namespace vexo::hox::qt::panel
