// SPDX-License-Identifier: MIT
// Inline functions of the public headers, written out as symbols: an application that was built
// against headers which only declare them links, too. The compiler is told to keep them (see
// CMakeLists.txt); calls through the headers stay inline.
#include "ui/buttons/activebutton.h"
#include "ui/buttons/activevectorbutton.h"
#include "ui/buttons/buttonstate.h"
#include "ui/buttons/easyaccessbutton.h"
#include "ui/buttons/measuredpushbutton.h"
#include "ui/buttons/vexocenteredvectorbutton.h"
#include "ui/buttons/vexocheckbox.h"
#include "ui/buttons/vexodesignvectorbutton.h"
#include "ui/buttons/vexofeedbackdelegator.h"
#include "ui/buttons/vexofunctionbutton.h"
#include "ui/buttons/vexohorizontaltexticonbutton.h"
#include "ui/buttons/vexoiconbutton.h"
#include "ui/buttons/vexokeyboardbutton.h"
#include "ui/buttons/vexonumericbutton.h"
#include "ui/buttons/vexopushbutton.h"
#include "ui/buttons/vexoradiobutton.h"
#include "ui/foundation/cachedvectoricon.h"
#include "ui/foundation/fontloader.h"
#include "ui/foundation/panel.h"
#include "ui/foundation/paneloptions.h"
#include "ui/foundation/scalinginfo.h"
#include "ui/foundation/vexocolors.h"
#include "ui/foundation/vexostylesheet.h"
#include "ui/input/vexolineedit.h"
#include "ui/scrolling/rowlist.h"
#include "ui/scrolling/vexoverticalbuttonscrollarea.h"
#include "ui/scrolling/vexoverticalscrollarea.h"
#include "ui/scrolling/vexoverticalscrollcontent.h"
#include "ui/sliders/vexoslider.h"
#include "ui/sliders/vexosliderdecoration.h"
#include "ui/text/linecomponent.h"
#include "ui/text/scaledisplaywidget.h"
#include "ui/text/vexohorizontallabelwidget.h"
#include "ui/text/vexoimageheadline.h"
#include "ui/text/vexolabel.h"
#include "ui/text/vexolabeledcontainer.h"
#include "ui/text/vexolinespacer.h"
#include "ui/text/vexologo.h"
#include "ui/text/vexologolabel.h"
#include "ui/text/vexoruler.h"
#include "ui/text/vexotextenumeration.h"
#include "ui/update/rotationpixmap.h"
#include "ui/update/updatemainwindow.h"
#include "ui/update/updatepage.h"
#include "ui/video/videoarea.h"
#include "ui/video/videocapturepanning.h"

namespace vexo::hox::qt::ui {

namespace {

// The palette's colours that no widget of the library uses.
[[gnu::used]] const QColor *const kept_colors[]
    = { &VexoColors::C7, &VexoColors::C8, &VexoColors::C9, &VexoColors::C10, &VexoColors::C11 };

} // namespace

} // namespace vexo::hox::qt::ui
