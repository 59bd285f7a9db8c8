// SPDX-License-Identifier: MIT
#include "support/testcase.h"

#include <Soak>
#include <VexoLineEdit>

#include <QFile>
#include <QPixmapCache>

using namespace vexo::hox::qt::uitest;

namespace {

using Round = std::function<void()>;

QVector<QByteArray> kept_bytes;
QVector<QObject *> kept_objects;
QVector<QFile *> kept_files;

void openAndClose()
{
    QWidget window;
    auto *field = new vexo::hox::qt::ui::VexoLineEdit(&window);
    field->setText("text");
    window.show();
    QCoreApplication::processEvents();
}

// Of which the cache has none.
void fillCache()
{
    static int number = 0;
    QPixmap pixmap(20, 20);
    pixmap.fill(Qt::red);
    QPixmapCache::insert(QString("picture %1").arg(++number), pixmap);
}

// Held once, whatever the number of rounds.
void fillCacheOnce()
{
    QPixmap pixmap(200, 200);
    pixmap.fill(Qt::red);
    QPixmapCache::insert("picture", pixmap);
}

} // namespace

Q_DECLARE_METATYPE(Round)

class TestSoak : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhatIsLeftBehind_data();
    void findsWhatIsLeftBehind();
    void countsTheRounds();
};

void TestSoak::findsWhatIsLeftBehind_data()
{
    QTest::addColumn<Round>("round");
    QTest::addColumn<QString>("kind"); // empty: no leak
    QTest::newRow("nothing") << Round(openAndClose) << QString();
    QTest::newRow("a few bytes") << Round([] { kept_bytes.append(QByteArray(200, ' ')); })
                                 << "bytes of heap";
    QTest::newRow("an object") << Round([] { kept_objects.append(new QObject); }) << "1.00 objects";
    QTest::newRow("deleted later") << Round([] { (new QObject)->deleteLater(); }) << QString();
    QTest::newRow("every fourth time") << Round([] {
        static int number = 0;
        if (++number % 4 == 0)
            kept_objects.append(new QObject);
    }) << "0.25 objects";
    QTest::newRow("pixmaps") << Round(fillCache) << "bytes in the pixmap cache";
    QTest::newRow("one pixmap") << Round(fillCacheOnce) << QString();
    QTest::newRow("a file") << Round([] {
        kept_files.append(new QFile("/dev/null"));
        kept_files.last()->open(QIODevice::ReadOnly);
    }) << "1.00 open files";
    QTest::newRow("once") << Round([] {
        static int number = 0;
        if (++number == 150)
            kept_bytes.append(QByteArray(1 << 20, ' '));
    }) << QString();
}

void TestSoak::findsWhatIsLeftBehind()
{
    QFETCH(Round, round);
    QFETCH(QString, kind);
    const SoakResult result = soak(round, 240);
    qDeleteAll(kept_objects);
    qDeleteAll(kept_files);
    kept_objects.clear();
    kept_files.clear();
    kept_bytes.clear();
    const QString text = result.text();
    QVERIFY2(result.isLeaking() == !kind.isEmpty(), qPrintable(text));
    if (kind.isEmpty())
        QCOMPARE(text, "nothing grew in 240 rounds");
    else
        QVERIFY2(
            text.contains(kind) && text.startsWith("each of 240 rounds left"), qPrintable(text));
}

void TestSoak::countsTheRounds()
{
    int rounds = 0;
    QCOMPARE(soak([&] { ++rounds; }, 3).rounds, 30);
    QCOMPARE(rounds, 50); // 20 to warm up
    QVERIFY(!soak(nullptr).isLeaking());
    const SoakResult nested = soak([] { soak([] { kept_objects.append(new QObject); }, 30); }, 30);
    QVERIFY2(nested.growth.objects >= 50, qPrintable(nested.text())); // of each inner one
    qDeleteAll(kept_objects);
    kept_objects.clear();
}

QTEST_MAIN(TestSoak)
#include "tst_soak.moc"
