// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/program.h"

#include "host/app/commandline.h"

#include <QDir>
#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aUsageErrorIsASentenceAndStatus2_data();
    void aUsageErrorIsASentenceAndStatus2();
    void aFolderWhoseNameCannotBeReadIsNotReplacedByAnother();
    void whatNeedsALookAtTheDataIsStatus1();
    void optionsOfQtAreLeftToQt_data();
    void optionsOfQtAreLeftToQt();
    void theFolderIsTheOneThatWasNamed_data();
    void theFolderIsTheOneThatWasNamed();
    void theSampleHasAFolderOfItsOwn();
    void aPictureIsNamedAsOne();
    void theHelpTellsWhatAUserAsks();
    void theVersionIsOneLine();

private:
    static CommandLine read(const QStringList &arguments)
    {
        return readCommandLine(QStringList{u"/opt/bin/voltbok"_s} + arguments);
    }

    Program m_program;
};

void CommandLineTest::aUsageErrorIsASentenceAndStatus2_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("told");

    QTest::newRow("unknown option") << QStringList{u"--frobnicate"_s} << u"“--frobnicate”"_s;
    QTest::newRow("unknown option with a value") << QStringList{u"--frob=1"_s} << u"“--frob”"_s;
    QTest::newRow("unknown letter") << QStringList{u"-x"_s} << u"“-x”"_s;
    QTest::newRow("unknown word after one dash") << QStringList{u"-helpp"_s} << u"“-helpp”"_s;
    QTest::newRow("extra argument") << QStringList{u"flights"_s} << u"“flights”"_s;
    QTest::newRow("empty argument") << QStringList{QString()} << u"“”"_s;
    QTest::newRow("after the options") << QStringList{u"--"_s, u"-style"_s} << u"“-style”"_s;
    QTest::newRow("no folder") << QStringList{u"--data"_s} << u"“--data” needs"_s;
    QTest::newRow("empty folder") << QStringList{u"--data"_s, QString()} << u"“--data” needs"_s;
    QTest::newRow("empty folder after =") << QStringList{u"--data="_s} << u"“--data” needs"_s;
    QTest::newRow("no picture") << QStringList{u"--screenshot"_s} << u"“--screenshot” needs"_s;
    QTest::newRow("empty picture") << QStringList{u"--screenshot="_s} << u"“--screenshot” needs"_s;
    QTest::newRow("no style") << QStringList{u"-style"_s} << u"“-style” needs"_s;
    QTest::newRow("value for nothing") << QStringList{u"--demo=yes"_s} << u"“--demo” takes no value"_s;
    QTest::newRow("sample and folder") << QStringList{u"--demo"_s, u"--data"_s, u"x"_s} << u"“--data”"_s;
    QTest::newRow("reset and folder") << QStringList{u"--reset-demo"_s, u"--data"_s, u"x"_s} << u"“--data”"_s;
    QTest::newRow("logbook as picture")
        << QStringList{u"--demo"_s, u"--screenshot"_s, u"x/voltbok.xml"_s} << u"“x/voltbok.xml”"_s;
    QTest::newRow("picture of another kind") << QStringList{u"--screenshot=pic.jpg"_s} << u"“pic.jpg”"_s;
    QTest::newRow("only an ending") << QStringList{u"--screenshot=picpng"_s} << u"“picpng”"_s;
}

void CommandLineTest::aUsageErrorIsASentenceAndStatus2()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, told);
    const Program::Result result = m_program.run(arguments);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors.count(u'\n'), 1);
    QVERIFY2(result.errors.startsWith(u"voltbok: "_s), qPrintable(result.errors));
    QVERIFY2(result.errors.endsWith(u". Try --help.\n"_s), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(told), qPrintable(result.errors));
    QVERIFY2(!result.errors.contains(u'\'') && !result.errors.contains(u'"'), qPrintable(result.errors));
    QCOMPARE(QDir(m_program.home()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void CommandLineTest::aFolderWhoseNameCannotBeReadIsNotReplacedByAnother()
{
    for (const QString &line : {u"\"$0\" --data $'caf\\xe9'"_s, u"\"$0\" --data=$'\\xff/x'"_s,
                                u"\"$0\" --screenshot $'\\xff.png' --demo"_s}) {
        const Program::Result result = m_program.shell(line);
        QCOMPARE(result.status, 2);
        QVERIFY2(result.errors.contains(u"UTF-8"_s), qPrintable(result.errors));
    }
    const Program::Result inside = m_program.shell(u"d=$(mktemp -d)/$'\\xff'; mkdir \"$d\"; cd \"$d\"; "
                                                   "\"$0\" --data ."_s);
    QCOMPARE(inside.status, 2);
    QCOMPARE(QDir(m_program.home()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void CommandLineTest::whatNeedsALookAtTheDataIsStatus1()
{
    for (const QString &folder : {QStringLiteral(HOST), QStringLiteral(HOST "/below")}) {
        const Program::Result result = m_program.run({u"--data"_s, folder});
        QCOMPARE(result.status, 1);
        QVERIFY2(result.errors.contains(folder) && result.errors.count(u'\n') == 1,
                 qPrintable(result.errors));
        QVERIFY2(!result.errors.contains(u"--help"_s), qPrintable(result.errors));
    }
}

void CommandLineTest::optionsOfQtAreLeftToQt_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QStringList withValue{
        u"-style"_s,       u"-session"_s,      u"-platform"_s,      u"-geometry"_s,
        u"-display"_s,     u"-qwindowtitle"_s, u"-stylesheet"_s,    u"-qwindowgeometry"_s,
        u"-qwindowicon"_s, u"-plugin"_s,       u"-platformtheme"_s, u"-platformpluginpath"_s,
        u"-title"_s,       u"-icon"_s,         u"-name"_s};
    for (const QString &option : withValue)
        QTest::newRow(qPrintable(option)) << QStringList{option, u"value"_s};
    for (const QString &option : {u"-reverse"_s, u"-style=fusion"_s, u"-stylesheet=x"_s, u"-widgetcount"_s,
                                  u"-qmljsdebugger=1"_s, u"-nograb"_s, u"-dograb"_s})
        QTest::newRow(qPrintable(option)) << QStringList{option};
}

void CommandLineTest::optionsOfQtAreLeftToQt()
{
    QFETCH(QStringList, arguments);
    for (const QString &dash : {QString(), u"-"_s}) {
        QStringList spelled = arguments;
        spelled[0].prepend(dash);
        const CommandLine line = read(QStringList{u"--data"_s, u"/x"_s} + spelled);
        QCOMPARE(line.error, QString());
        QCOMPARE(line.storagePath, u"/x"_s);
        QCOMPARE(read(spelled + QStringList{u"--demo"_s}).demo, true);
    }
}

void CommandLineTest::theFolderIsTheOneThatWasNamed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected");
    const QString home = QDir::homePath();
    QTest::newRow("absolute") << QStringList{u"--data"_s, u"/a/b"_s} << u"/a/b"_s;
    QTest::newRow("relative") << QStringList{u"--data"_s, u"a/../b"_s} << QDir::current().filePath(u"b"_s);
    QTest::newRow("after =") << QStringList{u"--data=/a"_s} << u"/a"_s;
    QTest::newRow("at home") << QStringList{u"--data"_s, u"~/x"_s} << home + u"/x"_s;
    QTest::newRow("at home after =") << QStringList{u"--data=~/x"_s} << home + u"/x"_s;
    QTest::newRow("home itself") << QStringList{u"--data=~"_s} << home;
    QTest::newRow("a name with a tilde") << QStringList{u"--data"_s, u"/~/~x"_s} << u"/~/~x"_s;
    QTest::newRow("that begins with one") << QStringList{u"--data=~x"_s} << QDir::current().filePath(u"~x"_s);
}

void CommandLineTest::theFolderIsTheOneThatWasNamed()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, expected);
    const CommandLine line = read(arguments);
    QCOMPARE(line.error, QString());
    QCOMPARE(line.storagePath, expected);
    QVERIFY(line.dataGiven && !line.demo);
}

void CommandLineTest::theSampleHasAFolderOfItsOwn()
{
    const CommandLine own = read({});
    QVERIFY(!own.dataGiven && !own.demo && !own.resetDemo && own.status == 0);
    const CommandLine demo = read({u"--demo"_s});
    QVERIFY(demo.demo && !demo.resetDemo && !demo.dataGiven);
    QCOMPARE(demo.storagePath, own.storagePath + u"-demo"_s);
    const CommandLine reset = read({u"--reset-demo"_s});
    QVERIFY(reset.demo && reset.resetDemo);
    QCOMPARE(reset.storagePath, demo.storagePath);
}

void CommandLineTest::aPictureIsNamedAsOne()
{
    for (const QString &name : {u"x.png"_s, u"/a/b.PNG"_s, u".Png"_s}) {
        QCOMPARE(read({u"--screenshot"_s, name}).screenshot, name);
        QCOMPARE(read({u"--screenshot"_s, name}).error, QString());
    }
}

void CommandLineTest::theHelpTellsWhatAUserAsks()
{
    for (const QString &option : {u"--help"_s, u"-h"_s, u"--help-all"_s}) {
        const Program::Result result = m_program.run({option});
        QCOMPARE(result.status, 0);
        QCOMPARE(result.errors, QString());
        QVERIFY2(result.output.startsWith(u"Usage: voltbok [options]\n"_s), qPrintable(result.output));
        for (const QString &told :
             {u"Keep the logbook in DIR."_s, u"Open a sample"_s, u"Reset the sample logbook, then open it."_s,
              u"Draw the window"_s, u"Show this help."_s, u"-style"_s, u"-session"_s,
              m_program.home(u"data/Voltbok\n"_s), m_program.home(u"data/Voltbok-demo\n"_s)})
            QVERIFY2(result.output.contains(told), qPrintable(told));
        QVERIFY2(!result.output.contains(u"Displays"_s) && !result.output.contains(QStringLiteral(HOST)),
                 qPrintable(result.output));
    }
}

void CommandLineTest::theVersionIsOneLine()
{
    for (const QString &option : {u"--version"_s, u"-v"_s}) {
        const Program::Result result = m_program.run({option});
        QCOMPARE(result.status, 0);
        QVERIFY2(result.output.startsWith(u"Voltbok 1."_s) && result.output.count(u'\n') == 1,
                 qPrintable(result.output));
    }
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "tst_commandline.moc"
