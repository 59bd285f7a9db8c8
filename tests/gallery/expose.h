#pragma once
// SPDX-License-Identifier: MIT

#include <QLayout>
#include <QTest>

/// Shows \a page as a window of 1000 x 500 px, however much room it asks for.
inline void expose(QWidget *page)
{
    page->layout()->setSizeConstraint(QLayout::SetNoConstraint);
    page->resize(1000, 500);
    page->show();
    QVERIFY(QTest::qWaitForWindowExposed(page));
}
