// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/program.h"

#include "host/app/display.h"

#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class DisplayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDisplayThatCannotBeOpenedIsOneLineAndStatus1_data();
    void aDisplayThatCannotBeOpenedIsOneLineAndStatus1();
    void whatQtSaysOtherwiseIsSaidInTheEnd();
};

void DisplayTest::aDisplayThatCannotBeOpenedIsOneLineAndStatus1_data()
{
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("told");
    QTest::newRow("no display") << QString() << QString() << u"There is no display."_s;
    QTest::newRow("no such server") << u"DISPLAY"_s << u":4711"_s << u":4711"_s;
    QTest::newRow("no such plugin") << u"QT_QPA_PLATFORM"_s << u"nosuch"_s << u"nosuch"_s;
    QTest::newRow("no plugins at all")
        << u"QT_QPA_PLATFORM_PLUGIN_PATH"_s << u"/nonexistent"_s << u"There is no display."_s;
}

void DisplayTest::aDisplayThatCannotBeOpenedIsOneLineAndStatus1()
{
    QFETCH(QString, variable);
    QFETCH(QString, value);
    QFETCH(QString, told);
    Program program;
    if (!variable.isEmpty())
        program.environment.insert(variable, value);
    const Program::Result result = program.run({u"--data"_s, program.home(u"log"_s)});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors.count(u'\n'), 1);
    QVERIFY2(result.errors.startsWith(u"voltbok: "_s) && result.errors.contains(told),
             qPrintable(result.errors));
    QVERIFY2(result.errors.contains(u"Start voltbok from a desktop session"_s), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(u"--screenshot"_s), qPrintable(result.errors));
}

void DisplayTest::whatQtSaysOtherwiseIsSaidInTheEnd()
{
    static QStringList heard;
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &context, const QString &text) {
            heard.append(QString::fromUtf8(context.category) + u' ' + text);
        });
    {
        const DisplayGuard guard;
        qWarning("a style that is not there");
        qInfo("for your information");
        QCOMPARE(heard, QStringList());
    }
    qWarning("afterwards");
    qInstallMessageHandler(before);
    QCOMPARE(heard, (QStringList{u"default a style that is not there"_s, u"default for your information"_s,
                                 u"default afterwards"_s}));
}

QTEST_GUILESS_MAIN(DisplayTest)
#include "tst_display.moc"
