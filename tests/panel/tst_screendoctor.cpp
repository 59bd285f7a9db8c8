// SPDX-License-Identifier: MIT
#include "support/panelscale.h"
#include "support/testcase.h"

#include <ScreenDoctor>

#include <QTest>

using namespace vexo::hox::qt::panel;

class TestScreenDoctor : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void healthyScreenHasNoFinding();
};

void TestScreenDoctor::healthyScreenHasNoFinding()
{
    QCOMPARE(ScreenDoctor::findings(), QStringList());
}

QTEST_MAIN(TestScreenDoctor)
#include "tst_screendoctor.moc"
