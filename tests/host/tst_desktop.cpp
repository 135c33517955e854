// SPDX-License-Identifier: GPL-3.0-or-later
// The program as a desktop sees it: real windows, on a screen with a window manager.
#include "tests/host/support/harness.h"
#include "tests/host/support/logbook.h"
#include "tests/host/support/xvfb.h"

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QRect>
#include <QScreen>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

// The machine may have much other work, and a program on it starts slowly.
#define TRY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 30'000)

class DesktopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void aSecondStartBringsTheFirstWindowToTheFront();
    void aMinimizedWindowComesBackToo();
    void windowAndPanelAreAsTheyWereAtTheNextStart();
    void keysWorkFromTheFirstMoment();
    void aDialogHasTheKeysWhileItIsOpen();

private:
    using Program = std::unique_ptr<QProcess>;

    Program start(const QString &folder) const;
    QString otherFolder() const { return m_home->path() + u"/other"_s; }
    static QString tool(const QStringList &arguments);
    static void press(const QString &key) { tool({u"key"_s, key}); }
    static QString windowNamed(const QString &title);
    static QRect placeOf(const QString &window);
    static QImage pictureOf(const QString &window);
    static bool isActive(const QString &window)
    {
        return !window.isEmpty() && tool({u"getactivewindow"_s}) == window;
    }
    static bool hasEnded(const Program &program)
    {
        return program->waitForFinished() && program->exitStatus() == QProcess::NormalExit &&
               program->exitCode() == 0;
    }

    const Home m_plain; // without a configuration of the user's
    QProcess m_manager;
    std::unique_ptr<Home> m_home;
};

void DesktopTest::initTestCase()
{
    QProcessEnvironment environment = m_plain.environment();
    environment.insert(u"DISPLAY"_s, qEnvironmentVariable("DISPLAY"));
    m_manager.setProcessEnvironment(environment);
    m_manager.setStandardOutputFile(QProcess::nullDevice());
    m_manager.setStandardErrorFile(QProcess::nullDevice());
    m_manager.start(u"openbox"_s, {u"--sm-disable"_s});
    QVERIFY(m_manager.waitForStarted());
    TRY(!tool({u"get_desktop"_s}).isEmpty()); // it manages the screen by now
}

void DesktopTest::cleanupTestCase()
{
    m_manager.terminate();
    QVERIFY(m_manager.waitForFinished());
}

void DesktopTest::init()
{
    m_home = std::make_unique<Home>();
    m_home->makeLogbook(smallLogbook());
}

DesktopTest::Program DesktopTest::start(const QString &folder) const
{
    auto program = std::make_unique<QProcess>();
    QProcessEnvironment environment = m_home->environment();
    environment.insert(u"DISPLAY"_s, qEnvironmentVariable("DISPLAY"));
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    program->setProcessEnvironment(environment);
    program->start(QStringLiteral(PROGRAM), {u"--data"_s, folder});
    return program;
}

QString DesktopTest::tool(const QStringList &arguments)
{
    QProcess process;
    process.start(u"xdotool"_s, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

/** The window with this title when it is on show; empty when it is not. */
QString DesktopTest::windowNamed(const QString &title)
{
    return tool({u"search"_s, u"--onlyvisible"_s, u"--name"_s, u'^' + title + u'$'}).section(u'\n', -1);
}

QRect DesktopTest::placeOf(const QString &window)
{
    QHash<QString, int> values;
    const QStringList lines = tool({u"getwindowgeometry"_s, u"--shell"_s, window}).split(u'\n');
    for (const QString &line : lines)
        values.insert(line.section(u'=', 0, 0), line.section(u'=', 1).toInt());
    return {values.value(u"X"_s), values.value(u"Y"_s), values.value(u"WIDTH"_s), values.value(u"HEIGHT"_s)};
}

QImage DesktopTest::pictureOf(const QString &window)
{
    return QGuiApplication::primaryScreen()->grabWindow(window.toULongLong()).toImage();
}

void DesktopTest::aSecondStartBringsTheFirstWindowToTheFront()
{
    const Program first = start(m_home->logbook());
    TRY(isActive(windowNamed(u"Voltbok - log"_s)));
    const QString window = windowNamed(u"Voltbok - log"_s);
    const Program covering = start(otherFolder());
    TRY(isActive(windowNamed(u"Voltbok - other"_s)));

    const Program second = start(m_home->logbook());
    QVERIFY(hasEnded(second));
    TRY(isActive(window));
    press(u"ctrl+q"_s); // the keys go there, too
    QVERIFY(hasEnded(first));
    TRY(isActive(windowNamed(u"Voltbok - other"_s)));
    covering->terminate();
    QVERIFY(hasEnded(covering));
}

void DesktopTest::aMinimizedWindowComesBackToo()
{
    const Program first = start(m_home->logbook());
    TRY(isActive(windowNamed(u"Voltbok - log"_s)));
    const QString window = windowNamed(u"Voltbok - log"_s);
    tool({u"windowminimize"_s, window});
    TRY(windowNamed(u"Voltbok - log"_s).isEmpty());
    const Program second = start(m_home->logbook());
    QVERIFY(hasEnded(second));
    TRY(isActive(window));
    first->terminate();
    QVERIFY(hasEnded(first));
}

void DesktopTest::windowAndPanelAreAsTheyWereAtTheNextStart()
{
    QRect place;
    QImage picture;
    for (int times = 0; times < 3; ++times) {
        const Program program = start(m_home->logbook());
        TRY(isActive(windowNamed(u"Voltbok - log"_s)));
        const QString window = windowNamed(u"Voltbok - log"_s);
        if (times == 0) {
            QTest::qWait(300);
            picture = pictureOf(window);
            press(u"F9"_s); // no panel, where there was one at first
            TRY(pictureOf(window) != picture);
            tool({u"windowsize"_s, window, u"760"_s, u"640"_s});
            tool({u"windowmove"_s, window, u"60"_s, u"80"_s});
            TRY(placeOf(window).size() == QSize(760, 640));
            QTest::qWait(500); // until the move has arrived, too
            place = placeOf(window);
            picture = pictureOf(window);
        } else {
            TRY(placeOf(window) == place);
            TRY(pictureOf(window) == picture);
        }
        press(u"ctrl+q"_s);
        QVERIFY(hasEnded(program));
    }
}

void DesktopTest::keysWorkFromTheFirstMoment()
{
    const Program program = start(m_home->logbook());
    TRY(isActive(windowNamed(u"Voltbok - log"_s)));
    press(u"F1"_s);
    TRY(isActive(windowNamed(u"Voltbok Manual"_s)));
    press(u"Escape"_s);
    TRY(isActive(windowNamed(u"Voltbok - log"_s)));
    QVERIFY(windowNamed(u"Voltbok Manual"_s).isEmpty());
    press(u"ctrl+q"_s);
    QVERIFY(hasEnded(program));
}

void DesktopTest::aDialogHasTheKeysWhileItIsOpen()
{
    const Program program = start(m_home->logbook());
    TRY(isActive(windowNamed(u"Voltbok - log"_s)));
    press(u"alt+e"_s);
    press(u"n"_s);
    TRY(isActive(windowNamed(u"Rename"_s)));
    press(u"Escape"_s);
    TRY(isActive(windowNamed(u"Voltbok - log"_s)));
    press(u"ctrl+q"_s);
    QVERIFY(hasEnded(program));
}

int main(int argc, char *argv[])
{
    const Xvfb screen(u"1280x800x24"_s);
    const QGuiApplication application(argc, argv);
    DesktopTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_desktop.moc"
