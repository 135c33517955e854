// SPDX-License-Identifier: GPL-3.0-or-later
// What the program exports, read by Python, its JSON Schema and Gnumeric.
#include "host/data/cataloguefile.h"
#include "host/exchange/xlsx.h"
#include "tests/host/support/harness.h"
#include "tests/host/support/nastylogbook.h"
#include "tests/host/support/spreadsheet.h"
#include "tests/support/files.h"

#include <QProcess>
#include <QTest>

using namespace Host;

class ExportJudgesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everybodyReadsTheSame_data();
    void everybodyReadsTheSame();

private:
    QByteArray run(const QStringList &arguments);

    const Home m_home;
    const Spreadsheet::GermanLocale m_german;
    QProcessEnvironment m_environment = m_home.environment();
};

/** @return what the program has said. */
QByteArray ExportJudgesTest::run(const QStringList &arguments)
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start(arguments.first(), arguments.mid(1));
    if (!process.waitForFinished(240'000) || process.exitCode() != 0)
        return "failed: " + arguments.join(u' ').toUtf8() + ": " + process.readAllStandardError();
    return process.readAllStandardOutput();
}

void ExportJudgesTest::everybodyReadsTheSame_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("locale");
    for (const QString &locale : {u"C.UTF-8"_s, Spreadsheet::GermanLocale::name()}) {
        const auto add = [&locale](const char *name, const QByteArray &document) {
            QTest::addRow("%s, %s", name, qPrintable(locale)) << document << locale;
        };
        add("sample", Test::contents(QStringLiteral(SAMPLE)));
        add("golden", Test::contents(QStringLiteral(GOLDEN)));
        add("empty", CatalogueFile::emptyDocument());
        add("nasty", CatalogueFile::save(NastyLogbook::logbook()).document);
    }
}

void ExportJudgesTest::everybodyReadsTheSame()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, locale);
    m_environment.insert(u"LC_ALL"_s, locale);
    m_environment.insert(u"LOCPATH"_s, m_german.path());
    const QString logbook = m_home.makeLogbook(document);
    const QTemporaryDir folder;
    const QStringList program{QStringLiteral(PROGRAM), u"--data"_s, logbook};
    for (const QString &format : {u"csv"_s, u"csv-local"_s}) {
        const QStringList order{u"export"_s, u"--format"_s, format, u"--output"_s, folder.filePath(format)};
        QCOMPARE(run(program + order), "");
    }
    if (Xlsx::isAvailable()) {
        const QString book = folder.filePath(u"book.xlsx"_s);
        QCOMPARE(run(program + QStringList{u"export"_s, u"--format"_s, u"xlsx"_s, u"--output"_s, book}), "");
    }
    for (const QString &kind :
         {u"batteries"_s, u"models"_s, u"flights"_s, u"discharges"_s, u"locations"_s, u"export"_s}) {
        const QStringList order = kind == u"export"_s ? QStringList{kind, u"--format"_s, u"json"_s}
                                                      : QStringList{u"list"_s, kind, u"--json"_s};
        QVERIFY(Test::write(folder.filePath(kind + u".json"_s), run(program + order)));
    }
    QCOMPARE(m_home.leftovers().join(u' '), QString());
    m_environment.insert(u"XDG_RUNTIME_DIR"_s, folder.path()); // that of the judges
    const QByteArray verdict =
        run({u"python3"_s, QStringLiteral(JUDGE), m_home.dataFile(), folder.path(), QStringLiteral(SCHEMA)});
    QVERIFY2(verdict.startsWith("cells: "), verdict.constData());
}

QTEST_MAIN(ExportJudgesTest)
#include "tst_exportjudges.moc"
