// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/program.h"

#include "host/app/commandline.h"
#include "host/app/commands/command.h"

#include <QDir>
#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

/** The arguments of a line, in which '' is an empty one. */
QStringList argumentsOf(const QString &line)
{
    QStringList arguments = QProcess::splitCommand(line);
    for (QString &argument : arguments)
        argument = argument == u"''"_s ? QString() : argument;
    return arguments;
}

} // namespace

class CommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMistakeIsStatus2BeforeAnyDataIsLookedAt_data();
    void aMistakeIsStatus2BeforeAnyDataIsLookedAt();
    void theProgramEndsAMistakeWithOneLine();
    void whatIsRightIsUnderstoodInAnyOrder_data();
    void whatIsRightIsUnderstoodInAnyOrder();
    void theWordAfterAnOptionWithAValueIsNoCommand();
    void valuesAreKeptAsTheyWereGiven();
    void aDayIsFourTwoAndTwoDigits_data();
    void aDayIsFourTwoAndTwoDigits();
    void helpOfACommandIsStatus0_data();
    void helpOfACommandIsStatus0();
    void helpOfTheProgramNamesEveryCommand();
    void optionsOfQtDisturbNoCommand();
    void oneNameHasAValueInAllCommandsOrInNone();

private:
    static CommandLine read(const QString &line)
    {
        return readCommandLine(QStringList{u"voltbok"_s} + argumentsOf(line));
    }

    Program m_program;
};

void CommandsTest::aMistakeIsStatus2BeforeAnyDataIsLookedAt_data()
{
    QTest::addColumn<QString>("told");
    const auto row = [](const char *line, const QString &told) { QTest::newRow(line) << told; };

    row("frobnicate", u"“frobnicate”"_s);
    row("frobnicate --help", u"“frobnicate”"_s);
    row("--json", u"“--json” is not an option of this program"_s);
    row("--from 2026-01-01", u"“--from” is not an option of this program"_s);
    row("list", u"“list” needs"_s);
    row("list rockets", u"“rockets”"_s);
    row("list Batteries", u"“Batteries”"_s);
    row("list ''", u"“”"_s);
    row("list batteries models", u"“models”"_s);
    row("list batteries --from 2026-01-01", u"“--from” is not an option of “list”"_s);
    row("list batteries --frobnicate", u"“--frobnicate”"_s);
    row("list batteries --json=yes", u"“--json” takes no value"_s);
    row("export", u"“--format"_s);
    row("export --format", u"“--format” needs a value"_s);
    row("export --format ''", u"“”"_s);
    row("export --format pdf", u"“pdf”"_s);
    row("export --format CSV --output x", u"“CSV”"_s);
    row("export --format csv", u"“--output”"_s);
    row("export --format csv-local", u"“--output”"_s);
    row("export --format xlsx", u"“--output”"_s);
    row("export --format json --output ''", u"“--output” needs a value"_s);
    row("export --format json --json", u"“--json” is not an option of “export”"_s);
    row("export --format json --format csv --output x", u"“--format” was given twice"_s);
    row("export --format json extra", u"“extra”"_s);
    row("export --format json --on 2026-01-01", u"“--on” is not an option of “export”"_s);
    row("export --format json --from 2026-02-30", u"“2026-02-30”"_s);
    row("export --format json --from 2026-02-02 --to 2026-02-01", u"“--to 2026-02-01”"_s);
    row("statistics --from 01.02.2026", u"“01.02.2026”"_s);
    row("statistics --from ''", u"“--from”"_s);
    row("statistics --to", u"“--to” needs a value"_s);
    row("statistics --on today", u"“today”"_s);
    row("statistics --from 2026-03-02 --to 2026-03-01", u"“--from 2026-03-02”"_s);
    row("statistics --from 2026-03-01 --from 2026-03-02", u"“--from” was given twice"_s);
    row("statistics all", u"“all”"_s);
    row("due --from 2026-01-01", u"“--from” is not an option of “due”"_s);
    row("due --on 2026-1-1", u"“2026-1-1”"_s);
    row("report", u"“--output FILE”"_s);
    row("report --output x.pdf --paper A5", u"“A5”"_s);
    row("report --output x.pdf --json", u"“--json” is not an option of “report”"_s);
    row("report --output x.pdf --from 2026-03-02 --to 2026-03-01", u"“--from 2026-03-02”"_s);
    row("import", u"“LOG”"_s);
    row("import ''", u"empty"_s);
    row("import a.csv --model", u"“--model” needs a value"_s);
    row("import a.csv --model A --model B", u"“--model” was given twice"_s);
    row("import a.csv --force", u"“--force” is not an option of “import”"_s);
    row("check a b", u"“b”"_s);
    row("check --force", u"“--force” is not an option of “check”"_s);
    row("backups restore", u"“restore” needs"_s);
    row("backups restore ''", u"“restore” needs"_s);
    row("backups restore 20261121-195112-123Z extra", u"“extra”"_s);
    row("backups restore 20261121-195112-123Z --json", u"“--json”"_s);
    row("backups remove", u"“remove”"_s);
    row("merge", u"“FILE”"_s);
    row("merge a b", u"“b”"_s);
    row("merge a --base", u"“--base” needs a value"_s);
    row("list batteries --demo --data x", u"“--data”"_s);
    row("list batteries --data ''", u"“--data” needs"_s);
    row("list batteries --reset-demo", u"“--reset-demo”"_s);
    row("--screenshot x.png list batteries", u"“--screenshot”"_s);
    row("--page flights list batteries", u"“--page”"_s);
    row("-- frobnicate", u"“frobnicate”"_s);
    row("list -- --json", u"“--json”"_s);
}

void CommandsTest::aMistakeIsStatus2BeforeAnyDataIsLookedAt()
{
    QFETCH(QString, told);
    const CommandLine line = read(QString::fromUtf8(QTest::currentDataTag()));
    QCOMPARE(line.status, 2);
    QVERIFY2(line.error.contains(told), qPrintable(line.error));
    QVERIFY2(line.error.endsWith(u". Try --help."_s) && !line.error.contains(u".."_s),
             qPrintable(line.error));
    QVERIFY(!line.invocation && line.answer.isEmpty());
}

void CommandsTest::theProgramEndsAMistakeWithOneLine()
{
    for (const QString &line : {u"list rockets --data /nowhere"_s, u"due --on 2026-02-30"_s,
                                u"backups restore ''"_s, u"--reset-demo list batteries"_s}) {
        const Program::Result result = m_program.run(argumentsOf(line));
        QCOMPARE(result.status, 2);
        QCOMPARE(result.output, QString());
        QVERIFY2(result.errors.startsWith(u"voltbok: "_s) && result.errors.count(u'\n') == 1,
                 qPrintable(result.errors));
    }
    QVERIFY2(QDir(m_program.home()).isEmpty(), "nothing is made");
}

void CommandsTest::whatIsRightIsUnderstoodInAnyOrder_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("options");
    const auto row = [](const char *line, const QString &command, const QStringList &arguments,
                        const QStringList &options) {
        QTest::newRow(line) << command << arguments << options;
    };
    row("list batteries", u"list"_s, {u"batteries"_s}, {});
    row("--json list batteries", u"list"_s, {u"batteries"_s}, {u"json"_s});
    row("list --json batteries --demo", u"list"_s, {u"batteries"_s}, {u"json"_s});
    row("export --format json", u"export"_s, {}, {u"format"_s});
    row("--format=csv --output x export", u"export"_s, {}, {u"format"_s, u"output"_s});
    row("export --format csv --output x --from 2026-03-01 --to 2026-03-01 --battery A --battery B --model C "
        "--force",
        u"export"_s, {},
        {u"battery"_s, u"force"_s, u"format"_s, u"from"_s, u"model"_s, u"output"_s, u"to"_s});
    row("statistics --on 2028-02-29", u"statistics"_s, {}, {u"on"_s});
    row("statistics --from 2026-03-01 --from 2026-03-01", u"statistics"_s, {}, {u"from"_s});
    row("due", u"due"_s, {}, {});
    row("report --output x.pdf --paper Letter", u"report"_s, {}, {u"output"_s, u"paper"_s});
    row("import a b c --dry-run --json --replace-entered", u"import"_s, {u"a"_s, u"b"_s, u"c"_s},
        {u"dry-run"_s, u"json"_s, u"replace-entered"_s});
    row("check", u"check"_s, {}, {});
    row("check --json x.xml", u"check"_s, {u"x.xml"_s}, {u"json"_s});
    row("check -- -odd.xml", u"check"_s, {u"-odd.xml"_s}, {});
    row("backups --json", u"backups"_s, {}, {u"json"_s});
    row("backups restore x", u"backups"_s, {u"restore"_s, u"x"_s}, {});
    row("merge --base old.xml theirs.xml --dry-run", u"merge"_s, {u"theirs.xml"_s},
        {u"base"_s, u"dry-run"_s});
}

void CommandsTest::whatIsRightIsUnderstoodInAnyOrder()
{
    QFETCH(QStringList, options);
    const CommandLine line = read(QString::fromUtf8(QTest::currentDataTag()));
    QCOMPARE(line.error, QString());
    QVERIFY(line.invocation);
    QTEST(line.invocation->command, "command");
    QTEST(line.invocation->arguments, "arguments");
    QStringList given = line.invocation->options.keys();
    given.sort();
    QCOMPARE(given, options);
}

void CommandsTest::theWordAfterAnOptionWithAValueIsNoCommand()
{
    const CommandLine line = read(u"--data list --battery export export --format json --model --json"_s);
    QCOMPARE(line.error, QString());
    QCOMPARE(line.invocation->command, u"export"_s);
    QCOMPARE(line.invocation->folder.path(), QDir::current().filePath(u"list"_s));
    QVERIFY(line.invocation->isDataGiven && !line.invocation->isDemo);
    QCOMPARE(line.invocation->values(u"battery"_s), QStringList{u"export"_s});
    QCOMPARE(line.invocation->values(u"model"_s), QStringList{u"--json"_s});
    QCOMPARE(read(u"export --format json --battery -style --model B"_s).invocation->value(u"battery"_s),
             u"-style"_s);
}

void CommandsTest::valuesAreKeptAsTheyWereGiven()
{
    const CommandLine line = read(u"export --format json --battery \"B; 1\" --battery '' --battery=a=b "
                                  "--from 2026-03-01 --output ~/x"_s);
    QCOMPARE(line.error, QString());
    const Invocation &invocation = *line.invocation;
    QCOMPARE(invocation.values(u"battery"_s), (QStringList{u"B; 1"_s, QString(), u"a=b"_s}));
    QCOMPARE(invocation.value(u"output"_s), QDir::home().filePath(u"x"_s));
    QCOMPARE(invocation.range().from, std::optional(QDate(2026, 3, 1)));
    QVERIFY(!invocation.range().to);
    QVERIFY(!invocation.isDemo && !invocation.isDataGiven);
    QCOMPARE(read(u"due --on 2020-05-06"_s).invocation->on(), QDate(2020, 5, 6));
    const QDate before = QDate::currentDate();
    const QDate today = read(u"due"_s).invocation->on();
    QVERIFY(today == before || today == QDate::currentDate());
}

void CommandsTest::aDayIsFourTwoAndTwoDigits_data()
{
    QTest::addColumn<QDate>("expected");
    QTest::newRow("2026-03-14") << QDate(2026, 3, 14);
    QTest::newRow("2028-02-29") << QDate(2028, 2, 29);
    QTest::newRow("0001-01-01") << QDate(1, 1, 1);
    for (const char *text : {"2026-02-29", "2026-13-01", "2026-00-10", "2026-3-14", "2026/03/14", "20260314",
                             "26-03-14", "2026-03-14T00:00:00", " 2026-03-14", "2026-03-14\n", "+026-03-14",
                             "2026-03-１４", "0000-01-01", "-2026-03-14", "12026-03-14"})
        QTest::newRow(text) << QDate();
}

void CommandsTest::aDayIsFourTwoAndTwoDigits()
{
    QFETCH(QDate, expected);
    QCOMPARE(dateFrom(QString::fromUtf8(QTest::currentDataTag())), expected);
}

void CommandsTest::helpOfACommandIsStatus0_data()
{
    QTest::addColumn<QString>("command");
    const QList<Command> all = commands();
    for (const Command &command : all)
        QTest::newRow(qPrintable(command.name)) << command.name;
}

void CommandsTest::helpOfACommandIsStatus0()
{
    QFETCH(QString, command);
    for (const QString &line : {u"%1 --help"_s, u"--help %1"_s, u"-h --data /nowhere %1"_s}) {
        const Program::Result result = m_program.run(QProcess::splitCommand(line.arg(command)));
        QCOMPARE(result.status, 0);
        QCOMPARE(result.errors, QString());
        QVERIFY2(result.output.startsWith(u"Usage: voltbok [--data DIR | --demo] "_s + command),
                 qPrintable(result.output));
    }
}

void CommandsTest::helpOfTheProgramNamesEveryCommand()
{
    const QString help = m_program.run({u"--help"_s}).output;
    const QList<Command> all = commands();
    QCOMPARE(all.size(), 9);
    for (const Command &command : all)
        QVERIFY2(help.contains(u"\n  "_s + command.name + u' ') && help.contains(command.summary),
                 qPrintable(command.name));
}

void CommandsTest::optionsOfQtDisturbNoCommand()
{
    const Program::Result result = m_program.run(QProcess::splitCommand(
        u"-platform xcb --demo -style fusion list -reverse locations -display nowhere:7 --json"_s));
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.startsWith(u"[\n\"Club field\",\n"_s));
}

void CommandsTest::oneNameHasAValueInAllCommandsOrInNone()
{
    QHash<QString, bool> hasValue;
    const QList<Command> all = commands();
    for (const Command &command : all) {
        for (const CommandOption &option : command.options) {
            const bool has = !option.value.isEmpty();
            QCOMPARE(has, option.kind != ValueKind::None);
            QCOMPARE(hasValue.value(option.name, has), has);
            hasValue.insert(option.name, has);
        }
    }
}

QTEST_GUILESS_MAIN(CommandsTest)
#include "tst_commands.moc"
