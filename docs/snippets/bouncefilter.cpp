// SPDX-License-Identifier: MIT
//! [page]
#include <BounceFilter>

#include <QApplication>
#include <QPushButton>

using namespace vexo::hox::qt::ui;

// A stock button on a panel whose touches bounce: each tap is one click, also the first.
int run(QApplication &application)
{
    BounceFilter::install();
    QPushButton button(QObject::tr("Next slide"));
    button.show();
    return application.exec();
}
//! [page]
