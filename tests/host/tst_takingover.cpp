// SPDX-License-Identifier: GPL-3.0-or-later
// Other programs change the file of an open logbook, each with its own commands.
#include "host/data/cataloguefile.h"
#include "host/window/openlogbook.h"
#include "tests/host/support/otherprograms.h"

using namespace Host;
using namespace OtherPrograms;
using namespace Qt::Literals::StringLiterals;

class TakingOverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<HostWindow>(); }
    void cleanup();
    void whatAnotherProgramWritesIsOnShow_data();
    void whatAnotherProgramWritesIsOnShow();
    void theSameContentsAreNoChange_data();
    void theSameContentsAreNoChange();
    void whatTheWindowWouldDropIsPutAside();
    void whatHasChangedIsSaidInWords_data();
    void whatHasChangedIsSaidInWords();
    void aVersionThatHoldsLessIsOnShowAndOursIsKeptForGood();
    void theFirstFileOfANewLogbookIsOnShow();
    void theMeasuredValuesAreTakenOver();

private:
    HostWindow &window() { return *m_window; }
    bool shows(const QString &location) { return window().gui().locations().contains(location); }

    std::unique_ptr<HostWindow> m_window;
};

void TakingOverTest::cleanup()
{
    QVERIFY(m_window->questions.isDone());
    m_window.reset();
}

void TakingOverTest::whatAnotherProgramWritesIsOnShow_data()
{
    QTest::addColumn<QString>("line");
    const auto add = [](const char *name, const QString &line) { QTest::newRow(name) << line; };
    add("mv", u"cp $T new; mv new $F"_s);
    add("mv from elsewhere", u"mv $T $F"_s);
    add("cp", u"cp $T $F"_s);
    add("cp -p", u"touch -d 2001-01-01 $T; cp -p $T $F"_s);
    add("cat", u"cat $T > $F"_s);
    add("tee", u"tee $F < $T > /dev/null"_s);
    add("dd", u"dd if=$T of=$F bs=100 status=none"_s);
    add("rsync", u"rsync $T $F"_s);
    add("rsync --inplace", u"rsync --inplace --checksum $T $F"_s);
    add("rsync of a folder", u"mkdir ../far; cp $T ../far/$F; rsync -rt --checksum ../far/ ."_s);
    add("sed -i", u"sed -i 's/<Locations>/<Locations><Location Name=\"Their Hill\"\\/>/' $F"_s);
    add("perl -i", u"perl -pi -e 's!<Locations>!<Locations><Location Name=\"Their Hill\"/>!' $F"_s);
    const QString vim = u"$(command -v vim.tiny || command -v vim) -u NONE -i NONE -n -es "
                        "-c 'set backupcopy=%1 backup' -c '%s!<Locations>!<Locations><Location Name=\"Their "
                        "Hill\"/>!' -c wq $F"_s;
    add("vim, in place", QString(vim).replace(u"%1"_s, u"yes"_s));
    add("vim, by a new file", QString(vim).replace(u"%1"_s, u"no"_s));
    add("ed",
        u"printf '%s\\n' ',s!<Locations>!<Locations><Location Name=\"Their Hill\"/>!' w q | ed -s $F"_s);
    add("an editor that moves the old file away", u"mv $F $F~; sleep 0.2; cp $T $F"_s);
    add("an editor that links the old file away", u"ln $F $F~; cp $T .goutputstream; mv .goutputstream $F"_s);
    add("an editor that removes the file", u"rm $F; sleep 0.2; cp $T $F"_s);
    add("truncate, then a pause", u"truncate -s 0 $F; sleep 0.3; cat $T >> $F"_s);
    add("in halves", u"head -c 300 $T > $F; sleep 0.5; tail -c +301 $T >> $F"_s);
    add("byte for byte", u"head -c 900 $T > $F; for i in {901..940}; do tail -c +$i $T | head -c 1 >> $F; "
                         "sleep 0.01; done; tail -c +941 $T >> $F"_s);
    add("mv, and chmod", u"cp $T new; mv new $F; chmod 600 $F"_s);
    add("twice", u"cp $T new; sed -i 's/Their Hill/Their Half/' new; mv new $F; sleep 0.02; cp $T $F"_s);
    add("a folder that was away", u"mv ../logbook ../away; sleep 0.2; cp $T ../away/$F; mv ../away "
                                  "../logbook"_s);
}

void TakingOverTest::whatAnotherProgramWritesIsOnShow()
{
    QFETCH(QString, line);
    window().clickCard(u"Pack B"_s);
    QCoreApplication::processEvents();
    const QByteArray ours = window().bytes();
    const QByteArray theirs = HostWindow::withLocation(u"Their Hill"_s, ours);
    QVERIFY(window().logbook().canUndo());
    QCOMPARE(run(window(), line, theirs), QByteArray());
    QTRY_VERIFY(shows(u"Their Hill"_s));
    QTRY_VERIFY(!window().taken().isEmpty());
    window().settle();

    QCOMPARE(window().bytes(), theirs);
    QCOMPARE(window().care().heldByWindow(), CatalogueFile::loadAndSave(theirs).document);
    QVERIFY(window().battery(u"Pack B"_s)->getBatteryCharged());
    QVERIFY(window().logbook().catalogue()->locations.contains(u"Their Hill"_s));
    QVERIFY(!window().logbook().canUndo());
    QVERIFY(window().logbook().mayChange());
    const QByteArrayList copies = window().copies();
    QCOMPARE(copies.constFirst(), theirs);
    QVERIFY(copies.indexOf(ours) > 0);
    QCOMPARE(window().taken(),
             u"Another program has changed the logbook: 1 location more. It is on show now."_s);
    QCOMPARE(window().others(), QString());
    QCOMPARE(window().loss(), QString());
    QVERIFY(window().gui().isEnabled());

    window().clickCard(u"Pack B"_s);
    window().settle();
    QVERIFY(window().bytes().contains("Their Hill"));
    QCOMPARE(window().bytes().count("<Charged>1<"), 1);
}

void TakingOverTest::theSameContentsAreNoChange_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("touch") << u"touch $F"_s;
    QTest::newRow("chmod") << u"chmod 600 $F"_s;
    QTest::newRow("mv away and back") << u"mv $F new; sleep 0.1; mv new $F"_s;
    QTest::newRow("mv of the folder away and back")
        << u"mv ../logbook ../away; sleep 0.1; mv ../away ../logbook"_s;
    QTest::newRow("cp and mv") << u"cp $F new; mv new $F"_s;
    QTest::newRow("rsync") << u"rsync --ignore-times $T $F"_s;
    QTest::newRow("sed -i that finds nothing") << u"sed -i 's/not there/x/' $F"_s;
    QTest::newRow("cut and put right") << u"truncate -s 100 $F; sleep 0.1; cat $T > $F"_s;
    QTest::newRow("files beside it") << u"cp $T voltbok.sync-conflict.xml; touch .#$F"_s;
}

void TakingOverTest::theSameContentsAreNoChange()
{
    QFETCH(QString, line);
    window().clickCard(u"Pack B"_s);
    window().settle();
    const QByteArray before = window().bytes();
    QCOMPARE(run(window(), line, before), QByteArray());
    QTest::qWait(300);
    QCOMPARE(window().told, QStringList());
    QCOMPARE(window().bytes(), before);
    QVERIFY(window().logbook().canUndo());
    QVERIFY(window().gui().isEnabled());
    window().clickCard(u"Pack B"_s);
    window().settle();
    QVERIFY(window().bytes() != before);
    QCOMPARE(window().told, QStringList());
}

void TakingOverTest::whatTheWindowWouldDropIsPutAside()
{
    const QByteArray theirs =
        HostWindow::withLocation(u"Their Hill"_s).replace("<Locations>", "<!-- theirs --><Locations>");
    window().put(theirs);
    QTRY_VERIFY(shows(u"Their Hill"_s));
    const QStringList asides = StorageFolder(window().path()).asides();
    QCOMPARE(asides.size(), 1);
    QCOMPARE(Test::contents(asides.constFirst()), theirs);
    QVERIFY(window().message(u"losses"_s).contains(asides.constFirst()));
}

void TakingOverTest::whatHasChangedIsSaidInWords_data()
{
    QTest::addColumn<QByteArray>("theirs");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *name, const QByteArray &theirs, const QString &words) {
        QTest::newRow(name) << theirs << words;
    };
    const QByteArray flight = "<FlightLog><LogData><Date>2026-01-02T03:04:05</Date></LogData></FlightLog>";
    const QByteArray sample = HostWindow::sample();
    const QByteArray one = QByteArray(sample).replace(sample.indexOf("</Model>"), 0, flight);
    row("a flight", one, u"1 flight more"_s);
    row("two flights and a location",
        HostWindow::withLocation(u"Hill"_s, QByteArray(sample).replace("</Model>", flight + "</Model>")),
        u"2 flights and 1 location more"_s);
    row("fewer", HostWindow::theirs(u"Pack A"_s), u"1 battery, 2 models and 1 location fewer"_s);
    row("other values", QByteArray(sample).replace("Pack A", "Pack C"),
        u"as many entries as before, with other contents"_s);
}

void TakingOverTest::whatHasChangedIsSaidInWords()
{
    QFETCH(QByteArray, theirs);
    QFETCH(QString, words);
    window().put(theirs);
    QTRY_COMPARE(window().taken(),
                 u"Another program has changed the logbook: %1. It is on show now."_s.arg(words));
}

void TakingOverTest::aVersionThatHoldsLessIsOnShowAndOursIsKeptForGood()
{
    const auto kept = [this] {
        const QList<Copy> copies = Backups::list(StorageFolder(window().path()));
        return std::count_if(copies.cbegin(), copies.cend(), [](const Copy &copy) { return copy.kept; });
    };
    window().put(HostWindow::withLocation(u"Their Hill"_s));
    QTRY_VERIFY(shows(u"Their Hill"_s));
    window().settle();
    QCOMPARE(kept(), 0);
    window().put(HostWindow::sample());
    QTRY_VERIFY(!shows(u"Their Hill"_s));
    window().settle();
    QCOMPARE(kept(), 1);
    QVERIFY(window().copies().contains(HostWindow::withLocation(u"Their Hill"_s)));
}

void TakingOverTest::theFirstFileOfANewLogbookIsOnShow()
{
    m_window = std::make_unique<HostWindow>(QByteArray());
    window().put(HostWindow::sample());
    QTRY_VERIFY(window().battery(u"Pack A"_s));
    QVERIFY(!window().logbook().canUndo());
    window().clickCard(u"Pack B"_s);
    window().settle();
    QCOMPARE(window().bytes().count("<Charged>1<"), 2);
    QCOMPARE(window().loss(), QString());
}

void TakingOverTest::theMeasuredValuesAreTakenOver()
{
    const QString path = StorageFolder(window().path()).measuredFile();
    Measured radio;
    radio.models.insert(u"radio"_s, u"Firebrand"_s);
    const QByteArray theirs = MeasuredFile::save(radio);
    window().clickCard(u"Pack B"_s);
    window().settle();
    const QByteArray logbook = window().bytes();
    QVERIFY(Test::write(path, theirs));
    QTRY_VERIFY(!window().message(u"measured"_s).isEmpty());
    QCOMPARE(MeasuredFile::save(window().logbook().measured()), theirs);
    QVERIFY(!window().logbook().canUndo()); // it would bring back ours
    QCOMPARE(window().bytes(), logbook);
    QVERIFY(QFile::remove(path));
    window().logbook().m_measuredWatch.lookFinally();
    QVERIFY(window().logbook().measured().isEmpty());
    QCOMPARE(window().bytes(), logbook);
    QVERIFY(window().logbook().mayChange());
}

QTEST_MAIN(TakingOverTest)
#include "tst_takingover.moc"
