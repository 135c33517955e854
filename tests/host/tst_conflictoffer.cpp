// SPDX-License-Identifier: GPL-3.0-or-later
// What the window does about copies that synchronisers leave, as a pilot sees it.
#include "host/data/cataloguefile.h"
#include "host/data/moments.h"
#include "host/safety/conflictfiles.h"
#include "host/window/mergedialog.h"
#include "tests/host/support/hostwindow.h"
#include "tests/host/support/plainlogbook.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

using namespace Host;
using PlainLogbook::at;

namespace {

constexpr int LongEnough = 10'000; // ms

const QString Conflict = u"voltbok.sync-conflict-20261121-101112-ABCDEFG.xml"_s;

QByteArray bytes(const Catalogue &catalogue)
{
    return CatalogueFile::save(catalogue).document;
}

/** What the other computer made of the logbook: one discharge more. */
Catalogue theirs()
{
    Catalogue catalogue = PlainLogbook::logbook();
    catalogue.batteries[0].discharges.append({at(16, 0), 1000, 2000});
    return catalogue;
}

/** The window over the logbook, which a location is added to. */
struct Changed
{
    Changed()
        : window(bytes(PlainLogbook::logbook()))
    {
        window.addLocation(u"Beach"_s);
        window.settle();
    }

    QString conflictPath() const { return window.path() + u'/' + Conflict; }
    bool put(const Catalogue &catalogue) const { return Test::write(conflictPath(), bytes(catalogue)); }
    bool waitForOffer()
    {
        return QTest::qWaitFor([this] { return window.button(u"Merge…"_s) != nullptr; }, LongEnough);
    }

    /** Presses the button of the message and does something in the dialog that follows. */
    void merge(const std::function<void(MergeDialog &)> &use)
    {
        bool isUsed = false;
        QTimer::singleShot(0, &window.window(), [&] {
            auto *dialog = qobject_cast<MergeDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            use(*dialog);
            isUsed = true;
            dialog->close();
        });
        window.press(u"Merge…"_s);
        QVERIFY(isUsed);
        window.settle();
    }

    QStringList kept() const { return StorageFolder(window.path()).mergedVersions(); }

    HostWindow window;
};

QPushButton *button(const MergeDialog &dialog, const QString &caption)
{
    const auto buttons = dialog.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == caption)
            return button;
    }
    qFatal("There is no such button.");
}

QString texts(const MergeDialog &dialog)
{
    QStringList texts;
    const auto labels = dialog.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->isVisible())
            texts.append(label->text());
    }
    return texts.join(u'\n');
}

} // namespace

class ConflictOfferTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNamesOfThreeSynchronisersAreKnown_data();
    void theNamesOfThreeSynchronisersAreKnown();
    void whatIsNoConflictIsNotOffered();
    void aConflictIsOfferedAtTheStart();
    void aConflictIsMergedInOneStep();
    void anEarlierVersionTellsWhatWasChangedWhere();
    void whereBothChangedTheUserChooses();
    void cancellingChangesNothing();
    void halfAFileIsWaitedFor();
    void nothingNewIsPutAside();
    void aFlightThatIsBeingEnteredIsNotLost();
    void measuredValuesComeAlong();
    void itsFirstSizeShowsWholeRows_data();
    void itsFirstSizeShowsWholeRows();
};

void ConflictOfferTest::theNamesOfThreeSynchronisersAreKnown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isConflict");
    const auto row = [](const QString &name, bool isConflict) {
        QTest::newRow(qPrintable(name)) << name << isConflict;
    };
    row(Conflict, true);
    row(u"voltbok.sync-conflict-20261121-101112.xml"_s, true);
    row(u"voltbok (conflicted copy 2026-11-21 101112).xml"_s, true);
    row(u"voltbok (conflicted copy Anna 2026-11-21 101112).xml"_s, true);
    row(u"voltbok_conflict-20261121-101112.xml"_s, true);
    row(u"voltbok (Anna's conflicted copy 2026-11-21).xml"_s, true);
    row(u"voltbok (Anna’s MacBook (2)'s conflicted copy 2026-11-21) (1).xml"_s, true);
    row(u"voltbok (In Konflikt stehende Kopie von Anna 2026-11-21).xml"_s, true);
    row(u"voltbok (Copie en conflit de Anna 2026-11-21).xml"_s, true);
    row(u"voltbok (コンフリクト コピー 2026-11-21).xml"_s, true);
    row(u"voltbok.xml"_s, false);
    row(u"voltbok-new.xml"_s, false);
    row(u"voltbok (2026-11-21).xml"_s, false);
    row(u"voltbok (copy).xml"_s, false);
    row(u"voltbok-broken-20261121-101112-123Z.xml"_s, false);
    row(u"voltbok.sync-conflict-20261121-101112-ABCDEFG.xml.tmp"_s, false);
    row(u"~syncthing~voltbok.sync-conflict-20261121-101112-ABCDEFG.xml"_s, false);
    row(u"voltbok-measured.sync-conflict-20261121-101112-ABCDEFG.json"_s, false);
    row(u"other.sync-conflict-20261121-101112-ABCDEFG.xml"_s, false);
}

void ConflictOfferTest::theNamesOfThreeSynchronisersAreKnown()
{
    QFETCH(QString, name);
    QFETCH(bool, isConflict);
    QCOMPARE(ConflictFiles::isConflictName(name), isConflict);
    QTemporaryDir place;
    const StorageFolder folder(place.path());
    QVERIFY(Test::write(place.filePath(name), "x"));
    QCOMPARE(ConflictFiles::ofLogbook(folder),
             isConflict ? QStringList(place.filePath(name)) : QStringList());
}

void ConflictOfferTest::whatIsNoConflictIsNotOffered()
{
    Changed changed;
    QVERIFY(QDir(changed.window.path()).mkdir(Conflict));
    QVERIFY(QFile::link(changed.window.filePath(),
                        changed.window.path() + u"/voltbok (a copy 2026-11-21).xml"_s));
    QTest::qWait(1000);
    QVERIFY(!changed.window.button(u"Merge…"_s));
}

void ConflictOfferTest::aConflictIsOfferedAtTheStart()
{
    Changed changed;
    QVERIFY(changed.put(theirs()));
    changed.window.restart();
    QVERIFY(changed.window.button(u"Merge…"_s));
    QVERIFY(changed.window.message(u"conflict"_s).contains(Conflict));
    QVERIFY(QFile::remove(changed.conflictPath()));
    QVERIFY(QTest::qWaitFor([&] { return !changed.window.button(u"Merge…"_s); }, LongEnough));
}

void ConflictOfferTest::aConflictIsMergedInOneStep()
{
    Changed changed;
    const QByteArray before = changed.window.bytes();
    QVERIFY(changed.put(theirs()));
    QVERIFY(changed.waitForOffer());
    changed.merge([](MergeDialog &dialog) {
        QVERIFY2(texts(dialog).contains(u"Added are discharges: 1."_s), qPrintable(texts(dialog)));
        QVERIFY(!dialog.findChild<QTableWidget *>()->isVisible());
        QTest::mouseClick(button(dialog, u"Merge"_s), Qt::LeftButton);
    });
    const Catalogue catalogue = *changed.window.logbook().catalogue();
    QCOMPARE(catalogue.batteries.at(0).discharges.size(), 3);
    QCOMPARE(catalogue.locations.size(), 3);
    QVERIFY(!QFileInfo::exists(changed.conflictPath()));
    QCOMPARE(changed.kept().size(), 1);
    QCOMPARE(Test::contents(changed.kept().constFirst()), bytes(theirs()));
    QVERIFY(!changed.window.button(u"Merge…"_s));
    QVERIFY(changed.window.message(u"merged"_s).contains(u"Added are discharges: 1."_s));
    QCOMPARE(changed.window.logbook().undoName(), u"Merged with another version"_s);
    QCOMPARE(changed.window.logbook().undo(), QString());
    QCOMPARE(changed.window.bytes(), before);
}

void ConflictOfferTest::anEarlierVersionTellsWhatWasChangedWhere()
{
    Changed changed;
    Catalogue other = theirs();
    other.batteries[0].capacity = 2000;
    other.batteries[0].discharges.removeFirst(); // others stand behind it
    QVERIFY(changed.put(other));
    QVERIFY(changed.waitForOffer());
    changed.merge([](MergeDialog &dialog) {
        QVERIFY2(texts(dialog).contains(u"Removed, as they were there, are discharges: 1."_s),
                 qPrintable(texts(dialog)));
        QVERIFY(!texts(dialog).contains(u"No earlier version"_s));
        QTest::mouseClick(button(dialog, u"Merge"_s), Qt::LeftButton);
    });
    const Battery battery = changed.window.logbook().catalogue()->batteries.at(0);
    QCOMPARE(battery.capacity, 2000U);
    QCOMPARE(battery.discharges.size(), 2);
}

void ConflictOfferTest::whereBothChangedTheUserChooses()
{
    Changed changed;
    QCOMPARE(changed.window.logbook().change(u"edited"_s,
                                             [](Catalogue &catalogue) {
                                                 catalogue.batteries[0].capacity = 1;
                                                 catalogue.models[0].notes = u"ours"_s;
                                                 return QString();
                                             }),
             QString());
    Catalogue other = theirs();
    other.batteries[0].capacity = 2;
    other.models[0].notes = u"theirs"_s;
    QVERIFY(changed.put(other));
    QVERIFY(changed.waitForOffer());
    changed.merge([](MergeDialog &dialog) {
        auto *table = dialog.findChild<QTableWidget *>();
        QVERIFY(!table->accessibleName().isEmpty());
        QCOMPARE(table->rowCount(), 2);
        QCOMPARE(table->item(0, 0)->text(), u"Battery A"_s);
        QCOMPARE(table->item(0, 2)->text(), u"1"_s);
        QCOMPARE(table->item(0, 3)->text(), u"2"_s);
        QCOMPARE(table->item(1, 1)->text(), u"Notes"_s);
        QVERIFY(dialog.chosen().isEmpty());
        table->setFocus();
        table->setCurrentCell(1, 0);
        QTest::keyClick(table, Qt::Key_Space);
        QTest::mouseClick(button(dialog, u"Merge"_s), Qt::LeftButton);
    });
    const std::shared_ptr<const Catalogue> catalogue = changed.window.logbook().catalogue();
    QCOMPARE(catalogue->batteries.at(0).capacity, 1U);
    QCOMPARE(catalogue->models.at(0).notes, u"theirs"_s);
}

void ConflictOfferTest::cancellingChangesNothing()
{
    Changed changed;
    const QByteArray before = changed.window.bytes();
    QVERIFY(changed.put(theirs()));
    QVERIFY(changed.waitForOffer());
    changed.merge(
        [](MergeDialog &dialog) { QTest::mouseClick(button(dialog, u"Cancel"_s), Qt::LeftButton); });
    QCOMPARE(changed.window.bytes(), before);
    QVERIFY(QFileInfo::exists(changed.conflictPath()));
    QVERIFY(changed.window.button(u"Merge…"_s));
    changed.window.questions.cancelAfter(1); // while versions are compared
    changed.window.press(u"Merge…"_s);
    QCOMPARE(changed.window.bytes(), before);
}

void ConflictOfferTest::halfAFileIsWaitedFor()
{
    Changed changed;
    const QByteArray whole = bytes(theirs());
    QVERIFY(Test::write(changed.conflictPath(), whole.left(whole.size() / 2)));
    QTest::qWait(1000);
    QVERIFY(!changed.window.button(u"Merge…"_s));
    QVERIFY(QFile::remove(changed.conflictPath()));
    QVERIFY(Test::write(changed.conflictPath(), whole));
    QVERIFY(changed.waitForOffer());
}

void ConflictOfferTest::nothingNewIsPutAside()
{
    Changed changed;
    Catalogue less = PlainLogbook::logbook();
    QVERIFY(changed.put(less)); // as it was before the location came
    QVERIFY(changed.waitForOffer());
    const QByteArray before = changed.window.bytes();
    changed.merge([](MergeDialog &dialog) {
        QVERIFY2(texts(dialog).contains(u"This logbook holds everything that it holds."_s),
                 qPrintable(texts(dialog)));
        QTest::mouseClick(button(dialog, u"Put Aside"_s), Qt::LeftButton);
    });
    QCOMPARE(changed.window.bytes(), before);
    QVERIFY(!QFileInfo::exists(changed.conflictPath()));
    QCOMPARE(Test::contents(changed.kept().constFirst()), bytes(less));
}

void ConflictOfferTest::aFlightThatIsBeingEnteredIsNotLost()
{
    Changed changed;
    const QByteArray before = changed.window.bytes();
    QVERIFY(changed.put(theirs()));
    QVERIFY(changed.waitForOffer());
    changed.window.logbook().setCapturing(true);
    changed.window.press(u"Merge…"_s);
    QCOMPARE(changed.window.questions.told().size(), 1);
    QCOMPARE(changed.window.bytes(), before);
    QVERIFY(QFileInfo::exists(changed.conflictPath()));
}

void ConflictOfferTest::measuredValuesComeAlong()
{
    Changed changed;
    Measured measured;
    MeasuredDischarge discharge;
    discharge.battery = u"A"_s;
    discharge.moment = momentOf(at(16, 0));
    discharge.log = u"theirs.csv"_s;
    measured.discharges.append(discharge);
    const QString path =
        changed.window.path() + u"/voltbok-measured.sync-conflict-20261121-101113-ABCDEFG.json"_s;
    QVERIFY(Test::write(path, MeasuredFile::save(measured)));
    QVERIFY(changed.put(theirs()));
    QVERIFY(changed.waitForOffer());
    changed.merge([](MergeDialog &dialog) { QTest::mouseClick(button(dialog, u"Merge"_s), Qt::LeftButton); });
    QVERIFY(changed.window.logbook().measured().find(u"A"_s, momentOf(at(16, 0))));
    QVERIFY(changed.window.logbook().catalogue()->batteries.at(0).discharges.constLast().isMeasured);
    QVERIFY(!QFileInfo::exists(path));
    QCOMPARE(QDir(changed.window.path() + u"/backups"_s).entryList({u"voltbok-merged-*.json"_s}).size(), 1);
}

void ConflictOfferTest::itsFirstSizeShowsWholeRows_data()
{
    QTest::addColumn<int>("rows");
    QTest::newRow("one") << 1;
    QTest::newRow("two") << 2;
    QTest::newRow("five") << 5;
}

void ConflictOfferTest::itsFirstSizeShowsWholeRows()
{
    QFETCH(int, rows);
    Merge plan;
    plan.added.discharges = 1;
    for (int i = 0; i < rows; ++i) {
        MergeConflict conflict;
        conflict.name = u"Skylark"_s;
        conflict.field = u"notes"_s;
        conflict.ours = u"Calm"_s;
        conflict.theirs = u"Gusts from the west, and the long grass took the landing gear "_s.repeated(4);
        plan.conflicts.append(conflict);
    }
    MergeDialog dialog(plan, true, Conflict);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    auto *table = dialog.findChild<QTableWidget *>();
    for (int row = 0; row < table->rowCount(); ++row) {
        const QRect cell = table->visualItemRect(table->item(row, 0));
        QVERIFY2(table->viewport()->rect().contains(cell.bottomLeft()), qPrintable(QString::number(row)));
    }
    QVERIFY(table->columnWidth(3) < dialog.fontMetrics().averageCharWidth() * 60);
    QCOMPARE(table->item(0, 3)->toolTip(), plan.conflicts.constFirst().theirs.toString());
}

QTEST_MAIN(ConflictOfferTest)
#include "tst_conflictoffer.moc"
