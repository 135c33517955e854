// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/program.h"

#include "host/safety/plaintext.h"

#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class ConsoleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextBecomesOnePlainLine_data();
    void aTextBecomesOnePlainLine();
    void aProblemIsOneLineWithoutCommands();
    void aReaderThatGoesAwayEndsNothing();
    void aStreamThatCannotBeWrittenCrashesNothing_data();
    void aStreamThatCannotBeWrittenCrashesNothing();

private:
    Program m_program;
};

void ConsoleTest::aTextBecomesOnePlainLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << u"Älter – 3S 450 A"_s << u"Älter – 3S 450 A"_s;
    QTest::newRow("lines") << u" a\nb\r\nc\u2028d\u2029e\u0085f\vg\t"_s << u"a b c d e f g"_s;
    QTest::newRow("commands of a terminal") << u"\u001b]0;owned\u0007a\u009b2Jb\u007f"_s << u"]0;owneda2Jb"_s;
    QTest::newRow("zero") << QString(u"a"_s + QChar(0) + u'b') << u"ab"_s;
    QTest::newRow("turned around") << u"a\u202eb\u2066c\u2069\u200fd\u061c"_s << u"abcd"_s;
    QTest::newRow("unseen") << u"a\u200b\ufeff\u00adb"_s << u"ab"_s;
    QTest::newRow("unseen beyond the first plane") << u"a\U000e0041\U0001d173b"_s << u"ab"_s;
    QTest::newRow("half a character") << QString(u"a"_s + QChar(0xd800) + u'b') << u"a\ufffdb"_s;
    QTest::newRow("a picture") << u"\U0001f681 ok"_s << u"\U0001f681 ok"_s;
    QTest::newRow("blanks around what goes") << u"a \u202e b"_s << u"a b"_s;
}

void ConsoleTest::aTextBecomesOnePlainLine()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(plainLine(text), expected);
}

void ConsoleTest::aProblemIsOneLineWithoutCommands()
{
    const Program::Result result = m_program.run({u"two\nlines\u001b[31m\u202e"_s});
    QCOMPARE(result.errors, u"voltbok: The argument “two lines[31m” is not expected. Try --help.\n"_s);
}

void ConsoleTest::aReaderThatGoesAwayEndsNothing()
{
    // The reader has gone before the first line.
    const QString gone =
        u"set -o pipefail; { sleep 0.3; \"$0\" %1; echo $? >&3; } %2 3>status | true; cat status"_s;
    QCOMPARE(m_program.shell(gone.arg(u"--frobnicate"_s, u"2>&1"_s)).output, u"2\n"_s);
    const Program::Result help = m_program.shell(gone.arg(u"--help"_s, QString()));
    QCOMPARE(help.output, u"0\n"_s);
    QCOMPARE(help.errors, QString());
}

void ConsoleTest::aStreamThatCannotBeWrittenCrashesNothing_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("told");
    QTest::newRow("full output") << u"\"$0\" --help > /dev/full"_s << 1 << u"No space left on device"_s;
    QTest::newRow("closed output") << u"\"$0\" --help >&-"_s << 1 << u"Bad file descriptor"_s;
    QTest::newRow("full errors") << u"\"$0\" --frobnicate 2> /dev/full"_s << 2 << QString();
    QTest::newRow("closed errors") << u"\"$0\" --frobnicate 2>&-"_s << 2 << QString();
    QTest::newRow("all closed") << u"\"$0\" --frobnicate <&- >&- 2>&-"_s << 2 << QString();
}

void ConsoleTest::aStreamThatCannotBeWrittenCrashesNothing()
{
    QFETCH(QString, line);
    QFETCH(int, status);
    QFETCH(QString, told);
    const Program::Result result = m_program.shell(line);
    QCOMPARE(result.status, status);
    QVERIFY2(result.errors.contains(told), qPrintable(result.errors));
    QCOMPARE(result.errors.count(u'\n'), told.isEmpty() ? 0 : 1);
}

QTEST_GUILESS_MAIN(ConsoleTest)
#include "tst_console.moc"
