// SPDX-License-Identifier: MIT
#include "panel/typist.h"
#include "support/panelscale.h"
#include "support/testcase.h"

#include <VexoLineEdit>

#include <QLineEdit>
#include <QRandomGenerator>
#include <QTextEdit>
#include <QVBoxLayout>

using namespace vexo::hox::qt;

namespace {

const QString letters = QString::fromUtf8(
    "abcdefghijklmnopqrstuvwxyzäöüßABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 ,.!?@€");

int touchCount()
{
    bool is_set = false;
    const int count = qEnvironmentVariableIntValue("HOXQ_KEYBOARD_TOUCHES", &is_set);
    return is_set ? count : 1800;
}

QString textOf(const QWidget &field)
{
    const auto *edit = qobject_cast<const QTextEdit *>(&field);
    return edit ? edit->toPlainText() : static_cast<const QLineEdit &>(field).text();
}

void clear(QWidget *field)
{
    QMetaObject::invokeMethod(field, "clear");
}

} // namespace

/// Random texts through real touches: nothing is lost or doubled. HOXQ_KEYBOARD_TOUCHES tells how
/// many characters in all.
class TestKeyboardTyping : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyCharacterArrivesOnce_data();
    void everyCharacterArrivesOnce();
};

void TestKeyboardTyping::everyCharacterArrivesOnce_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QSizeF>("density");
    const QSizeF densities[] = { { 4, 5 }, { 8, 8 }, { 12, 12.5 } };
    for (const char *kind : { "line", "text", "vexo" }) {
        for (const QSizeF &density : densities)
            QTest::addRow("%s at %g px/mm", kind, density.width()) << QByteArray(kind) << density;
    }
}

void TestKeyboardTyping::everyCharacterArrivesOnce()
{
    QFETCH(QByteArray, kind);
    QFETCH(QSizeF, density);
    const PanelScale scale(density.width(), density.height());
    QWidget window;
    QWidget *field = kind == "line" ? new QLineEdit
        : kind == "text"            ? static_cast<QWidget *>(new QTextEdit)
                                    : new ui::VexoLineEdit;
    panel::OnScreenKeyboard keyboard;
    keyboard.setLanguages({ QStringLiteral("de") });
    auto *layout = new QVBoxLayout(&window);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(field);
    layout->addWidget(&keyboard);
    window.resize(int(100 * density.width()), int(70 * density.height()));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    if (kind == "vexo")
        keyboard.setReceiver(field); // it takes no focus
    else
        field->setFocus();

    uitest::Finger finger(&window, 7);
    finger.setJitter(0.3).setWiggle(0.4).setBounce(25);
    Typist typist(keyboard, &finger);
    QRandomGenerator random(42);
    QString expected;
    for (int i = touchCount() / 9; i > 0; --i) {
        const bool deletes = !expected.isEmpty() && random.bounded(20) == 0;
        if (deletes)
            expected.chop(1);
        const QChar letter
            = deletes ? QLatin1Char('\b') : letters.at(random.bounded(letters.size()));
        if (!deletes)
            expected += letter;
        typist.type(letter);
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(expected));
        if (expected.size() < 60 && i > 1)
            continue;
        QCOMPARE(textOf(*field), expected);
        clear(field);
        expected.clear();
        keyboard.readReceiver();
    }
}

QTEST_MAIN(TestKeyboardTyping)
#include "tst_keyboardtyping.moc"
