// SPDX-License-Identifier: GPL-3.0-or-later
// Help, manual page, completion and README say the same about the command line, and it is true.
#include "tests/host/support/program.h"
#include "tests/support/files.h"

#include "host/app/commands/command.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

QString manualPage()
{
    return QString::fromUtf8(Test::contents(QStringLiteral(MANUAL_PAGE)));
}

/** The part of the manual page about a command. */
QString sectionOf(const QString &command)
{
    return manualPage().section(u".SS %1\n"_s.arg(command), 1).section(u"\n.S"_s, 0, 0) + u'\n';
}

/** What the manual page shows, without what man obeys. */
QString shown(QString text)
{
    text.remove(QRegularExpression(u"\\\\f[BIR]|\\\\&"_s));
    return text.replace(u"\\-"_s, u"-"_s)
        .replace(u"\\(lq"_s, u"“"_s)
        .replace(u"\\(rq"_s, u"”"_s)
        .replace(u"\\(aq"_s, u"'"_s)
        .replace(u"..."_s, u"…"_s)
        .replace(u"\\e"_s, u"\\"_s);
}

QSet<QString> found(const QString &text, const QString &pattern)
{
    QSet<QString> names;
    for (auto match = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
         match.hasNext();)
        names.insert(match.next().captured(1));
    return names;
}

} // namespace

class CommandDocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void helpManualPageAndCompletionHaveTheSameOptions_data() { eachCommand(); }
    void helpManualPageAndCompletionHaveTheSameOptions();
    void helpAndManualPageDescribeEverything_data() { eachCommand(); }
    void helpAndManualPageDescribeEverything();
    void helpFitsIntoATerminal_data() { eachCommand(); }
    void helpFitsIntoATerminal();
    void optionsOfTheProgramAreInAllThree();
    void theManualPageHasEachCommandOnceAndNoOther();
    void theManualPageIsInOrder();
    void wordsAreCompleted_data();
    void wordsAreCompleted();
    void aTabCompletesInAnInteractiveShell();
    void theLinesOfTheReadmeWork();

private:
    static void eachCommand()
    {
        QTest::addColumn<QString>("name");
        const QList<Command> all = commands();
        for (const Command &command : all)
            QTest::newRow(qPrintable(command.name)) << command.name;
    }
    /** What bash offers for the last of these words. */
    QSet<QString> completed(const QStringList &words) const;

    Program m_program;
};

QSet<QString> CommandDocumentsTest::completed(const QStringList &words) const
{
    QProcess bash;
    bash.setProcessEnvironment(m_program.environment);
    bash.setWorkingDirectory(m_program.home());
    bash.start(u"bash"_s, QStringList{u"-c"_s,
                                      u"source \"$0\"; COMP_WORDS=(voltbok \"$@\"); COMP_CWORD=$#; "
                                      "_voltbok; printf '%s\\n' \"${COMPREPLY[@]}\""_s,
                                      QStringLiteral(COMPLETION)} +
                              words);
    if (!bash.waitForFinished() || !bash.readAllStandardError().isEmpty())
        return {u"(an error)"_s};
    const QStringList lines =
        QString::fromUtf8(bash.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    return {lines.cbegin(), lines.cend()};
}

void CommandDocumentsTest::helpManualPageAndCompletionHaveTheSameOptions()
{
    QFETCH(QString, name);
    QSet<QString> own;
    const Command command = *commandNamed(name);
    for (const CommandOption &option : command.options)
        own.insert(u"--"_s + option.name);
    QCOMPARE(found(shown(sectionOf(name)), u"^\\.TP\\n(--[a-z-]+)"_s), own);
    QSet<QString> all = own;
    all += {u"--data"_s, u"--demo"_s, u"--help"_s};
    QCOMPARE(found(m_program.run({name, u"--help"_s}).output, u"^  (--[a-z-]+)"_s), all);
    QCOMPARE(completed({name, u"-"_s}), all);
}

void CommandDocumentsTest::helpAndManualPageDescribeEverything()
{
    QFETCH(QString, name);
    const Command command = *commandNamed(name);
    const QString help = m_program.run({name, u"--help"_s}).output.simplified();
    const QString page = shown(sectionOf(name));
    QStringList told{command.summary, command.description};
    for (const CommandOption &option : command.options)
        told += QStringList{u"--"_s + option.name, option.value, option.description} + option.choices;
    for (const CommandArgument &argument : command.arguments)
        told += QStringList{argument.description} +
                (argument.choices.isEmpty() ? QStringList{argument.name} : argument.choices);
    for (const QString &text : std::as_const(told)) {
        QVERIFY2(help.contains(text), qPrintable(text));
        QVERIFY2(page.contains(text), qPrintable(text));
    }
}

void CommandDocumentsTest::helpFitsIntoATerminal()
{
    QFETCH(QString, name);
    const QStringList lines = m_program.run({name, u"--help"_s}).output.split(u'\n');
    for (const QString &line : lines)
        QVERIFY2(line.size() < 80, qPrintable(line));
}

void CommandDocumentsTest::optionsOfTheProgramAreInAllThree()
{
    QSet<QString> own;
    const QList<ProgramOption> all = programOptions();
    for (const ProgramOption &option : all)
        own.insert(u"--"_s + option.name);
    const QString page = shown(manualPage().section(u".SH OPTIONS\n"_s, 1).section(u"\n.SH"_s, 0, 0));
    QCOMPARE(found(page, u"^(?:-[a-z], )?(--[a-z-]+)"_s), own);
    QCOMPARE(found(m_program.run({u"--help"_s}).output, u"^  (?:-[a-z], )?(--[a-z-]+)"_s), own);
    QCOMPARE(completed({u"-"_s}), own);
}

void CommandDocumentsTest::theManualPageHasEachCommandOnceAndNoOther()
{
    QStringList names;
    const QList<Command> all = commands();
    for (const Command &command : all)
        names.append(command.name);
    QStringList sections;
    const QStringList lines = manualPage().split(u'\n');
    for (const QString &line : lines) {
        if (line.startsWith(u".SS "_s))
            sections.append(line.mid(4));
    }
    QCOMPARE(sections, names);
    QCOMPARE(completed({QString()}), (QSet<QString>{names.cbegin(), names.cend()}));
}

void CommandDocumentsTest::theManualPageIsInOrder()
{
    const QStringList lines = manualPage().split(u'\n');
    static const QRegularExpression known(u"^\\.(\\\\\"|TH|SH|SS|TP|PP|br)"_s);
    for (const QString &line : lines) {
        QVERIFY2(!line.startsWith(u'.') || known.match(line).hasMatch(), qPrintable(line));
        QVERIFY2(!line.contains(u'\''), qPrintable(line)); // would be shown as another character
    }
    const QList<QStringList> checkers{
        {u"man"_s, u"--warnings"_s, u"-E"_s, u"UTF-8"_s, u"-l"_s, u"-Tutf8"_s, u"-Z"_s},
        {u"groff"_s, u"-man"_s, u"-ww"_s, u"-Tutf8"_s, u"-Kutf8"_s, u"-z"_s},
        {u"mandoc"_s, u"-T"_s, u"lint"_s, u"-W"_s, u"error"_s}};
    for (const QStringList &checker : checkers) {
        if (QStandardPaths::findExecutable(checker.first()).isEmpty())
            continue; // the rules above hold wherever there is none
        QProcess process;
        process.start(checker.first(), checker.mid(1) + QStringList{QStringLiteral(MANUAL_PAGE)});
        QVERIFY(process.waitForFinished());
        QCOMPARE(QString::fromUtf8(process.readAllStandardError()), QString());
        QCOMPARE(process.exitCode(), 0);
    }
}

void CommandDocumentsTest::wordsAreCompleted_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("expected");
    const QString today = QDate::currentDate().toString(Qt::ISODate);
    const auto row = [](const char *name, const QStringList &words, const QStringList &expected) {
        QTest::newRow(name) << words << expected;
    };
    row("a command", {u"l"_s}, {u"list"_s});
    row("a command behind options", {u"--demo"_s, u"st"_s}, {u"statistics"_s});
    row("a command behind a value", {u"--data"_s, u"list"_s, u"due"_s}, {u"due"_s});
    row("a command behind a value with =", {u"--data"_s, u"="_s, u"list"_s, u"mer"_s}, {u"merge"_s});
    row("a list", {u"list"_s, u"b"_s}, {u"batteries"_s});
    row("a list behind options", {u"list"_s, u"--json"_s, u"f"_s}, {u"flights"_s});
    row("one list only", {u"list"_s, u"flights"_s, QString()}, {});
    row("an option", {u"export"_s, u"--fo"_s}, {u"--format"_s, u"--force"_s});
    row("no option of others", {u"list"_s, u"--fo"_s}, {});
    row("a format", {u"export"_s, u"--format"_s, u"c"_s}, {u"csv"_s, u"csv-local"_s});
    row("a format behind =", {u"export"_s, u"--format"_s, u"="_s, u"j"_s}, {u"json"_s});
    row("all formats behind =", {u"export"_s, u"--format"_s, u"="_s},
        {u"csv"_s, u"csv-local"_s, u"xlsx"_s, u"json"_s});
    row("a paper", {u"report"_s, u"--paper"_s, QString()}, {u"A4"_s, u"Letter"_s});
    row("a page", {u"--page"_s, u"log"_s}, {u"log-book"_s});
    row("a day", {u"due"_s, u"--on"_s, u"2"_s}, {today});
    row("a name that nobody knows", {u"export"_s, u"--model"_s, QString()}, {});
    row("a folder", {u"--data"_s, u"fol"_s}, {u"folder of logs"_s});
    row("a file", {u"check"_s, u"fo"_s}, {u"folder of logs"_s, u"fourth.xml"_s});
    row("another file", {u"import"_s, u"a.csv"_s, u"fou"_s}, {u"fourth.xml"_s});
    row("a file to write", {u"report"_s, u"--output"_s, u"fou"_s}, {u"fourth.xml"_s});
    row("what to do with copies", {u"backups"_s, QString()}, {u"restore"_s});
}

void CommandDocumentsTest::wordsAreCompleted()
{
    QVERIFY(QDir(m_program.home()).mkpath(u"folder of logs"_s));
    QVERIFY(Test::write(m_program.home(u"fourth.xml"_s), {}));
    QFETCH(QStringList, words);
    QFETCH(QStringList, expected);
    QCOMPARE(completed(words), (QSet<QString>{expected.cbegin(), expected.cend()}));
}

void CommandDocumentsTest::aTabCompletesInAnInteractiveShell()
{
    QVERIFY(Test::write(m_program.home(u"my log.xml"_s), {}));
    QProcess terminal;
    QProcessEnvironment environment = m_program.environment;
    environment.insert(u"TERM"_s, u"dumb"_s);
    terminal.setProcessEnvironment(environment);
    terminal.setWorkingDirectory(m_program.home());
    terminal.start(u"script"_s, {u"-qec"_s, u"bash --norc --noprofile -i"_s, u"/dev/null"_s});
    QVERIFY(terminal.waitForStarted());
    terminal.write("bind 'set bell-style none'; voltbok() { printf '<%s>' \"$@\"; }; source " COMPLETION
                   "\n");
    terminal.write("voltbok exp\t--format=xl\t--outp\tmy\t\nexit\n");
    QVERIFY(terminal.waitForFinished());
    const QString output = QString::fromUtf8(terminal.readAllStandardOutput());
    QVERIFY2(output.contains(u"<export><--format=xlsx><--output><my log.xml>"_s), qPrintable(output));
}

void CommandDocumentsTest::theLinesOfTheReadmeWork()
{
    QFile program(QStringLiteral(HOST));
    QVERIFY(program.link(m_program.home(u"run"_s)));
    const QString readme = QString::fromUtf8(Test::contents(QStringLiteral(SOURCES "/README.md")));
    const QString block =
        readme.section(u"## In scripts\n"_s, 1).section(u"```sh\n"_s, 1).section(u"```"_s, 0, 0);
    const QStringList lines = block.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 5);
    for (const QString &line : lines) {
        QVERIFY2(line.startsWith(u"./run --demo "_s), qPrintable(line));
        const Program::Result result = m_program.shell(u"set -eo pipefail\n"_s + line);
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.status, 0);
        QVERIFY2(line.contains(u" > "_s) || !result.output.isEmpty(), qPrintable(line));
    }
    QVERIFY(Test::contents(m_program.home(u"statistics.json"_s)).contains("\"months\""));
}

QTEST_GUILESS_MAIN(CommandDocumentsTest)
#include "tst_commanddocuments.moc"
