// SPDX-License-Identifier: GPL-3.0-or-later
// Logs whose columns nobody knows, imported in the window.
#include "host/window/columnsdialog.h"
#include "tests/host/support/importing.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QTableWidget>

using namespace Host;
using namespace Importing;
using namespace PlainLogbook;

class ColumnsDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unknownColumnsAreChosenOnceForAllLogsOfAHeader();
    void whatWasChosenIsAskedForAgainOnlyWhenItIsUndone();
    void eachHeaderIsAskedForByItself();
    void aLogWhoseColumnsAreNotChosenIsLeftAlone();
    void columnsAreOfferedThatCanBeMeant();
    void whatTheRuleReadsIsProposed();
    void valuesOfTheLogAreShown();
    void aColumnTellsOneThingOnly();
    void logsWithoutSuchAColumnAreNotAskedForAgain();
    void theKeyboardWillDo();
    void aLogbookThatChangesMeanwhileIsReadAfterTheChoice();
    void theImportCanBeClosedWhileItAsks();

private:
    /** A flight in columns of these names: volts, current and consumption, and one without a unit. */
    static QString log(const Flying &flying, const QDateTime &start,
                       const QByteArray &names = "Pack(V),Motor(A),Drawn,FM")
    {
        MadeLogs::Plan plan;
        plan.start = start;
        const QByteArray sensors = "VFAS(V),Curr(A),mAh(mAh),FM";
        QByteArray bytes = MadeLogs::Text(sensors).add(MadeLogs::flight({}, plan)).bytes();
        bytes.replace(sensors, names);
        return flying.put(u"Skylark-"_s + start.toString(u"yyyy-MM-dd-HHmmss"_s) + u".csv"_s, bytes);
    }
    static void choose(const Shown &shown, const QStringList &columns)
    {
        QVERIFY(shown.dialog.m_columns);
        for (size_t kind = 0; kind < 3; ++kind) {
            QComboBox *choice = shown.dialog.m_columns->m_choices.at(kind);
            const int index = choice->findText(columns.at(static_cast<qsizetype>(kind)));
            QVERIFY2(index >= 0, qPrintable(columns.at(static_cast<qsizetype>(kind))));
            choice->setCurrentIndex(index);
        }
    }
    static void use(Shown &shown)
    {
        QTest::mouseClick(shown.dialog.m_columns->m_use, Qt::LeftButton);
        shown.wait();
    }
    static QStringList offered(const Shown &shown, size_t kind)
    {
        QStringList texts;
        const QComboBox *choice = shown.dialog.m_columns->m_choices.at(kind);
        for (int i = 0; i < choice->count(); ++i)
            texts.append(choice->itemText(i));
        return texts;
    }
    static QString introduction(const Shown &shown)
    {
        return shown.dialog.m_columns->findChild<QLabel *>()->accessibleName();
    }
    const QStringList m_columns{u"Drawn"_s, u"Motor(A)"_s, u"Pack(V)"_s};
};

void ColumnsDialogTest::unknownColumnsAreChosenOnceForAllLogsOfAHeader()
{
    Flying flying;
    Shown shown(flying, {log(flying, at(14, 38)), log(flying, at(15, 50))});
    QVERIFY(shown.dialog.m_columns);
    QVERIFY(introduction(shown).startsWith(
        u"“Skylark-2026-05-03-143800.csv” and 1 more log have columns that are not known. "_s));
    QCOMPARE(shown.outcomes(), QStringList());
    choose(shown, m_columns);
    use(shown);
    QVERIFY(!shown.dialog.m_columns);
    QCOMPARE(shown.outcomes(),
             (QStringList{u"fills the flight of 14:47 with A"_s, u"fills the flight of 16:00 with B"_s}));
    shown.import();
    const Battery &battery = flying.catalogue().batteries.at(0);
    QVERIFY(battery.discharges.constFirst().isMeasured);
    QVERIFY(battery.discharges.constFirst().discharged > 1000);
    QVERIFY(battery.discharges.constFirst().current > 1800);
    QVERIFY(flying.window.logbook().measured().discharges.constFirst().minVoltage);
}

void ColumnsDialogTest::whatWasChosenIsAskedForAgainOnlyWhenItIsUndone()
{
    Flying flying;
    const QByteArray before = flying.window.bytes();
    const QString first = log(flying, at(14, 38));
    {
        Shown shown(flying, {first});
        choose(shown, m_columns);
        use(shown);
        QVERIFY(!QFileInfo::exists(flying.measuredFile())); // nothing is remembered before it is imported
        shown.import();
    }
    const QMap<QString, MeasuredColumns> columns = flying.window.logbook().measured().columns;
    QCOMPARE(columns.size(), 1);
    QCOMPARE(columns.first().consumed, u"Drawn"_s);
    QCOMPARE(columns.first().current, u"Motor(A)"_s);
    QCOMPARE(columns.first().volts, u"Pack(V)"_s);
    {
        Shown again(flying, {log(flying, at(15, 50))});
        QVERIFY(!again.dialog.m_columns);
        QCOMPARE(again.outcomes(), QStringList(u"fills the flight of 16:00 with B"_s));
    }
    QCOMPARE(flying.window.logbook().undo(), QString());
    QCOMPARE(flying.window.bytes(), before);
    QVERIFY(flying.window.logbook().measured().columns.isEmpty());
    Shown undone(flying, {first});
    QVERIFY(undone.dialog.m_columns);
}

void ColumnsDialogTest::eachHeaderIsAskedForByItself()
{
    Flying flying;
    Shown shown(flying, {log(flying, at(14, 38)), log(flying, at(15, 50), "Accu(V),Esc(A),Used,FM")});
    QVERIFY(
        introduction(shown).startsWith(u"“Skylark-2026-05-03-143800.csv” has columns that are not known."_s));
    choose(shown, m_columns);
    use(shown);
    QVERIFY(introduction(shown).startsWith(u"“Skylark-2026-05-03-155000.csv”"_s));
    choose(shown, {u"Used"_s, u"Esc(A)"_s, u"None"_s});
    use(shown);
    QCOMPARE(shown.outcomes(),
             (QStringList{u"fills the flight of 14:47 with A"_s, u"fills the flight of 16:00 with B"_s}));
    QCOMPARE(shown.dialog.m_mappings.size(), 2);
    shown.dialog.add({log(flying, at(17, 0))}); // the same columns once more
    shown.wait();
    QVERIFY(!shown.dialog.m_columns);
    QCOMPARE(shown.outcomes().size(), 3);
}

void ColumnsDialogTest::aLogWhoseColumnsAreNotChosenIsLeftAlone()
{
    Flying flying;
    Shown shown(flying, {log(flying, at(14, 38)), flying.log(at(15, 50))});
    QVERIFY(shown.dialog.m_columns);
    QTest::keyClick(shown.dialog.m_columns, Qt::Key_Escape);
    shown.wait();
    QVERIFY(!shown.dialog.m_columns);
    QVERIFY(shown.dialog.isVisible());
    QCOMPARE(shown.outcomes(), QStringList(u"fills the flight of 16:00 with B"_s));
    QCOMPARE(shown.dialog.m_refused->count(), 1);
    QCOMPARE(shown.dialog.m_refused->item(0)->text(),
             u"“Skylark-2026-05-03-143800.csv”: Nobody has chosen the columns that tell of the battery."_s);
    shown.import();
    QVERIFY(!flying.catalogue().batteries.at(0).discharges.constFirst().isMeasured);
    QVERIFY(flying.window.logbook().measured().columns.isEmpty());
    QCOMPARE(flying.window.logbook().measured().logs.size(), 1);
}

void ColumnsDialogTest::columnsAreOfferedThatCanBeMeant()
{
    Flying flying;
    Shown shown(flying, {log(flying, at(14, 38))});
    QCOMPARE(offered(shown, 0), (QStringList{u"None"_s, u"Drawn"_s}));
    QCOMPARE(offered(shown, 1), (QStringList{u"None"_s, u"Motor(A)"_s, u"Drawn"_s}));
    QCOMPARE(offered(shown, 2), (QStringList{u"None"_s, u"Pack(V)"_s, u"Drawn"_s})); // no text, such as FM
}

void ColumnsDialogTest::whatTheRuleReadsIsProposed()
{
    Flying flying;
    Shown shown(flying, {log(flying, at(14, 38), "VFAS(V),RB1A(A),Drawn(mAh),FM"),
                         log(flying, at(15, 50), "Pack(V),Motor(A),Drawn,FM")});
    QCOMPARE(shown.dialog.m_columns->mapping(),
             (ColumnMapping{u"Drawn(mAh)"_s, u"RB1A+RB2A"_s, u"VFAS(V)"_s}));
    use(shown);
    QCOMPARE(shown.dialog.m_columns->mapping(), ColumnMapping());
    QTest::keyClick(shown.dialog.m_columns, Qt::Key_Escape);
    shown.wait();
    QCOMPARE(shown.outcomes(), QStringList(u"fills the flight of 14:47 with A"_s));
}

void ColumnsDialogTest::valuesOfTheLogAreShown()
{
    Flying flying;
    Shown shown(flying, {log(flying, at(14, 38))});
    const auto *samples = shown.dialog.m_columns->findChild<QTableWidget *>();
    QCOMPARE(samples->rowCount(), 4);
    QCOMPARE(samples->columnCount(), 6);
    QCOMPARE(samples->item(1, 0)->text(), u"Motor(A)"_s);
    QVERIFY(samples->item(1, 3)->text().toDouble() > 5); // in the middle of the flight
    QCOMPARE(samples->item(3, 1)->text(), u"ACRO"_s);
    QVERIFY(!samples->item(1, 1)->flags().testFlag(Qt::ItemIsEditable));
}

void ColumnsDialogTest::aColumnTellsOneThingOnly()
{
    Flying flying;
    Shown shown(flying, {log(flying, at(14, 38))});
    const ColumnsDialog &dialog = *shown.dialog.m_columns;
    QVERIFY(dialog.m_use->isEnabled());
    choose(shown, {u"Drawn"_s, u"Drawn"_s, u"None"_s});
    QVERIFY(!dialog.m_use->isEnabled());
    QVERIFY(dialog.m_hint->isVisible());
    choose(shown, {u"Drawn"_s, u"None"_s, u"None"_s});
    QVERIFY(dialog.m_use->isEnabled());
    QVERIFY(!dialog.m_hint->isVisible());
}

void ColumnsDialogTest::logsWithoutSuchAColumnAreNotAskedForAgain()
{
    Flying flying;
    Shown shown(flying, {log(flying, at(14, 38)), flying.log(at(15, 50))});
    use(shown); // none of each
    QCOMPARE(shown.outcomes().size(), 2);
    QVERIFY(shown.isTicked(1));
    shown.import();
    QVERIFY(!flying.catalogue().batteries.at(0).discharges.constFirst().isMeasured);
    Shown again(flying, {log(flying, at(14, 38))});
    QVERIFY(!again.dialog.m_columns);
}

void ColumnsDialogTest::theKeyboardWillDo()
{
    Flying flying;
    Shown shown(flying, {log(flying, at(14, 38))});
    ColumnsDialog &dialog = *shown.dialog.m_columns;
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const auto labels = dialog.findChildren<QLabel *>();
    QSet<const QWidget *> named;
    for (const QLabel *label : labels)
        named.insert(label->buddy());
    for (const QComboBox *choice : dialog.m_choices)
        QVERIFY(named.contains(choice));
    QCOMPARE(dialog.focusWidget(), dialog.m_choices.at(0));
    QVERIFY(dialog.m_use->isDefault());
    for (const QString &name : {u"Drawn"_s, u"Motor(A)"_s, u"Pack(V)"_s}) {
        QTest::keyClicks(dialog.focusWidget(), name.left(2));
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(dialog.mapping(), (ColumnMapping{u"Drawn"_s, u"Motor(A)"_s, u"Pack(V)"_s}));
    QVERIFY(qobject_cast<QTableWidget *>(dialog.focusWidget()));
    for (int tabs = 0; tabs < 2 && dialog.focusWidget() != dialog.m_use; ++tabs)
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), dialog.m_use);
    QTest::keyClick(dialog.m_use, Qt::Key_Space);
    shown.wait();
    QCOMPARE(shown.outcomes(), QStringList(u"fills the flight of 14:47 with A"_s));
}

void ColumnsDialogTest::aLogbookThatChangesMeanwhileIsReadAfterTheChoice()
{
    Flying flying;
    Shown shown(flying, {flying.log(at(15, 50))});
    shown.dialog.add({log(flying, at(14, 38))});
    shown.wait();
    const ColumnsDialog *asking = shown.dialog.m_columns;
    QVERIFY(asking);
    const auto enter = [](Catalogue &catalogue) {
        catalogue.batteries[0].discharges[0].discharged = 1400;
        return QString();
    };
    QCOMPARE(flying.window.logbook().change(u"Edited"_s, enter), QString());
    QVERIFY(!shown.dialog.m_thread);
    QCOMPARE(shown.dialog.m_columns, asking);
    QTest::keyClick(shown.dialog.m_columns, Qt::Key_Escape);
    shown.wait();
    QCOMPARE(shown.dialog.m_model->catalogue(), flying.window.logbook().catalogue());
    QCOMPARE(shown.outcomes(), QStringList(u"fills the flight of 16:00 with B"_s));
}

void ColumnsDialogTest::theImportCanBeClosedWhileItAsks()
{
    Flying flying;
    const QByteArray before = flying.window.bytes();
    {
        Shown shown(flying, {log(flying, at(14, 38))});
        QVERIFY(shown.dialog.m_columns);
    }
    QCOMPARE(flying.window.bytes(), before);
    QVERIFY(!QApplication::activeModalWidget());
}

QTEST_MAIN(ColumnsDialogTest)
#include "tst_columnsdialog.moc"
