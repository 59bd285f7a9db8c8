// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QFontInfo>
#include <QPainter>
#include <QRawFont>
#include <QTest>

#include <dlfcn.h>

// The installed library is loaded by hand, as by an application's plugin: nothing here may depend
// on it. Each function begins with no library and no application.

namespace {

class Library
{
public:
    Library() { m_handle = dlopen(HOXQ_LIBRARY, RTLD_NOW); }
    Library(const Library &) = delete;
    Library &operator=(const Library &) = delete;
    ~Library() { dlclose(m_handle); }

    template <typename Function>
    Function function(const char *symbol) const
    {
        return reinterpret_cast<Function>(dlsym(m_handle, symbol));
    }

private:
    void *m_handle;
};

QString loadFont(const Library &library, const char *weight)
{
    const auto load = library.function<QString (*)(const char *)>(
        "_ZN4vexo3hox2qt2ui10FontLoader8loadFontEPKc");
    return load(":/fonts/UniversNextW1G-" + QByteArray(weight) + ".otf");
}

QFont fontOf(const QString &family, int weight)
{
    QFont font(family, -1, weight);
    font.setPixelSize(40);
    return font;
}

QImage drawn(const QFont &font)
{
    QImage image(200, 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font);
    painter.drawText(image.rect(), Qt::AlignCenter, QStringLiteral("Panel 1"));
    return image;
}

// Says the style, too: another face would stand in for one that cannot be read.
QString styleOf(const QFont &font)
{
    return QFontInfo(font).family() + QLatin1Char(' ') + QRawFont::fromFont(font).styleName();
}

} // namespace

class TestFontLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pluginIsUnloaded();
    void bundleIsTakenOut();
    void secondApplicationLoadsThemAgain();

private:
    int m_argc = 1;
    char m_name[5] = "test";
    char *m_argv = m_name;
};

/// With one face in use, and another that is read for the first time afterwards.
void TestFontLifetime::pluginIsUnloaded()
{
    const QApplication application(m_argc, &m_argv);
    QFont light;
    QImage before;
    QFont bold;
    {
        const Library plugin;
        light = fontOf(loadFont(plugin, "Light"), QFont::Light);
        bold = fontOf(loadFont(plugin, "Bold"), QFont::Bold);
        before = drawn(light);
    }
    QCOMPARE(drawn(light), before);
    QCOMPARE(styleOf(bold), QStringLiteral("Inter Bold"));
    QVERIFY(drawn(bold) != before);
}

void TestFontLifetime::bundleIsTakenOut()
{
    const QApplication application(m_argc, &m_argv);
    const Library library;
    const QFont medium = fontOf(loadFont(library, "Medium"), QFont::Medium);
    library.function<int (*)()>("_Z23qCleanupResources_fontsv")();
    QCOMPARE(loadFont(library, "Bold"), QString());
    QCOMPARE(styleOf(medium), QStringLiteral("Inter Medium"));
    library.function<int (*)()>("_Z20qInitResources_fontsv")();
    QCOMPARE(loadFont(library, "Bold"), QStringLiteral("Inter"));
}

/// The toolkit forgets an application's fonts with it.
void TestFontLifetime::secondApplicationLoadsThemAgain()
{
    const Library library;
    QList<QImage> pictures;
    for (int i = 0; i < 2; ++i) {
        const QApplication application(m_argc, &m_argv);
        QVERIFY(!QFontDatabase().families().contains(QStringLiteral("Inter")));
        loadFont(library, "Bold");
        const QFont light = fontOf(loadFont(library, "Light"), QFont::Light);
        QCOMPARE(styleOf(light), QStringLiteral("Inter Light"));
        pictures.append(drawn(light));
    }
    QCOMPARE(pictures.first(), pictures.last());
}

QTEST_APPLESS_MAIN(TestFontLifetime)
#include "tst_fontlifetime.moc"
