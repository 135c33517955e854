// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that write a whole logbook, killed at or failing in each of their file operations.
#include "host/safety/backups.h"
#include "tests/host/support/commandfaults.h"

#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray laterLogbook()
{
    return smallLogbook().replace("\"Meadow\"/>", "\"Meadow\"/>\n        <Location Name=\"Slope\"/>");
}

/** A logbook, and a copy of it as it was earlier that is restored. */
std::unique_ptr<CommandHome> restoreHome(const QByteArray &present)
{
    auto home = std::make_unique<CommandHome>();
    home->makeLogbook(laterLogbook());
    home->after = {laterLogbook(), measuredOf(u"3S A"_s)};
    home->put(home->after);
    const QString problem =
        Backups::add(home->folder(), laterLogbook(), QDateTime::currentDateTimeUtc().addSecs(-3600));
    if (!problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    home->arguments =
        QStringList{u"backups"_s, u"restore"_s, Backups::list(home->folder()).constFirst().stamp};
    home->put({present, measuredOf(u"3S B"_s)});
    home->begin();
    return home;
}

/** A logbook, and another version of it somewhere else. */
std::unique_ptr<CommandHome> mergeHome(const CommandHome::State &merged)
{
    auto home = std::make_unique<CommandHome>();
    home->makeLogbook(smallLogbook());
    home->put({smallLogbook(), measuredOf(u"3S A"_s, QDateTime(QDate(2026, 10, 25), QTime(15, 40, 28)))});
    const QString other = home->path() + u"/other"_s;
    QDir().mkdir(other);
    CommandHome::write(other + u"/voltbok.xml"_s, laterLogbook());
    CommandHome::write(other + u"/voltbok-measured.json"_s,
                       measuredOf(u"3S A"_s, QDateTime(QDate(2026, 11, 8), QTime(11, 2, 10))));
    home->arguments = QStringList{u"merge"_s, other + u"/voltbok.xml"_s};
    home->begin();
    home->after = merged;
    return home;
}

} // namespace

class CommandFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whateverOperationFailsTheLogbookIsAsItWasOrRestored_data();
    void whateverOperationFailsTheLogbookIsAsItWasOrRestored();
    void whateverOperationFailsTheLogbookIsAsItWasOrMerged();
};

void CommandFaultsTest::whateverOperationFailsTheLogbookIsAsItWasOrRestored_data()
{
    QTest::addColumn<QByteArray>("present");
    QTest::newRow("whole") << smallLogbook();
    QTest::newRow("damaged") << smallLogbook().chopped(40);
}

void CommandFaultsTest::whateverOperationFailsTheLogbookIsAsItWasOrRestored()
{
    QFETCH(QByteArray, present);
    tryEveryFault([&present] { return restoreHome(present); });
}

void CommandFaultsTest::whateverOperationFailsTheLogbookIsAsItWasOrMerged()
{
    CommandHome::State merged;
    {
        const auto home = mergeHome({});
        home->run();
        merged = home->state();
    }
    QVERIFY(merged.document.contains("Meadow") && merged.document.contains("Slope"));
    QCOMPARE(merged.beside.count("3S A"), 2);
    tryEveryFault([&merged] { return mergeHome(merged); });
}

QTEST_GUILESS_MAIN(CommandFaultsTest)
#include "tst_commandfaults.moc"
