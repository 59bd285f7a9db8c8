// SPDX-License-Identifier: MIT
// Properties of a stylesheet file: it is read and applied to a screen in time, and what cannot be
// applied leaves the sheets before and after it as they are.

#include "fuzz/target.h"
#include "ui/foundation/vexostylesheet.h"

#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

using vexo::hox::qt::ui::VexoStylesheet;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QApplication &app = application();
    app.setStyleSheet(QString());
    QWidget screen;
    screen.setFixedSize(640, 480);
    auto *layout = new QVBoxLayout(&screen);
    for (int i = 0; i < 5; ++i) {
        layout->addWidget(new QPushButton(QStringLiteral("button")));
        layout->addWidget(new QLabel(QStringLiteral("label")));
        layout->addWidget(new QSlider(Qt::Horizontal));
    }
    screen.ensurePolished();
    const InputAsFile input(data, size);
    const TimeLimit limit;
    VexoStylesheet sheet(input.path(), false);
    sheet.addText(QStringLiteral("QLabel { color: red }"));
    sheet.set();
    require(app.styleSheet().endsWith(QStringLiteral("red }")), "what follows is kept");
    screen.grab();
    return 0;
}
