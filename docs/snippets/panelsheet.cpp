// SPDX-License-Identifier: MIT
//! [page]
#include <PanelSheet>

using namespace vexo::hox::qt::uitest;

// The screen as it was when its picture was last looked at and saved.
bool looksAsBefore(const PanelSheet::Create &create, const QString &reference)
{
    const QImage sheet = PanelSheet().sheet(create);
    const PictureDifference difference = PanelSheet::compare(reference, sheet);
    if (!difference.is_accepted) {
        sheet.save("sheet.png");
        difference.picture.save("difference.png");
    }
    return difference.is_accepted;
}
//! [page]
