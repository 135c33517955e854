// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/wholefile.h"
#include "host/window/versionsmodel.h"
#include "tests/host/support/logbookfiles.h"
#include "tests/host/support/logbookfolder.h"
#include "tests/support/files.h"

#include <QAbstractItemModelTester>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QTableView>
#include <QTest>

#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class VersionsModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log = std::make_unique<LogbookFolder>(); }
    void copiesStandFromTheNewestToTheOldest();
    void aVersionShowsWhatItHolds();
    void everyColumnHasATitle();
    void aDamagedVersionIsListedAndCannotBeChosen();
    void aVersionThatCannotBeReadSaysSo();
    void filesThatWerePutAsideAreOfferedBehindTheCopies();
    void aVersionInNoFileIsOfferedLast();
    void theFirstWholeOneMayBeBehindDamagedOnes();
    void aVersionIsReadWhenItIsShown();
    void copiesThatCannotBeListedAreMissed_data();
    void copiesThatCannotBeListedAreMissed();
    void twoThousandCopiesOpenAtOnce();

private:
    QStringList row(const VersionsModel &model, int row) const
    {
        QStringList texts;
        for (int column = 0; column < model.columnCount(); ++column)
            texts.append(model.index(row, column).data().toString());
        return texts;
    }
    bool isChoosable(const VersionsModel &model, int row) const
    {
        return model.flags(model.index(row, 0)).testFlag(Qt::ItemIsSelectable) &&
               model.flags(model.index(row, 0)).testFlag(Qt::ItemIsEnabled);
    }

    std::unique_ptr<LogbookFolder> m_log;
};

void VersionsModelTest::copiesStandFromTheNewestToTheOldest()
{
    const Zone zone("Europe/Oslo");
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
        m_log->copy(LogbookFolder::document(name));
    VersionsModel model(m_log->folder());
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(row(model, 0).first(), u"Copy of 2026-11-20 13:00:03"_s);
    QCOMPARE(row(model, 2).first(), u"Copy of 2026-11-20 13:00:01"_s);
    QCOMPARE(model.document(0), LogbookFolder::document(u"c"_s));
    QCOMPARE(model.document(2), LogbookFolder::document(u"a"_s));
    QCOMPARE(model.firstWhole(), 0);
    QVERIFY(model.isCopy(2));
    QCOMPARE(VersionsModel(StorageFolder(m_log->file(u"none"_s))).rowCount(), 0);
}

void VersionsModelTest::aVersionShowsWhatItHolds()
{
    const QByteArray sample = Test::sample();
    m_log->copy(sample);
    const VersionsModel model(m_log->folder());
    const Contents contents = WholeFile::inspect(sample);
    QCOMPARE(
        row(model, 0).mid(1),
        (QStringList{u"101.8 kB"_s, QString::number(contents.batteries), QString::number(contents.models),
                     QString::number(contents.flights), QString::number(contents.discharges)}));
    QVERIFY(isChoosable(model, 0));
}

void VersionsModelTest::everyColumnHasATitle()
{
    const VersionsModel model(m_log->folder());
    QStringList titles;
    for (int column = 0; column < model.columnCount(); ++column)
        titles.append(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    QCOMPARE(titles, (QStringList{u"Version"_s, u"Size"_s, u"Batteries"_s, u"Models"_s, u"Flights"_s,
                                  u"Discharges"_s}));
    QCOMPARE(model.headerData(0, Qt::Vertical, Qt::DisplayRole), QVariant());
}

void VersionsModelTest::aDamagedVersionIsListedAndCannotBeChosen()
{
    m_log->copy(Test::sample().first(9000));
    const VersionsModel model(m_log->folder());
    QVERIFY2(row(model, 0).first().endsWith(u" (damaged)"_s), qPrintable(row(model, 0).first()));
    QCOMPARE(row(model, 0).mid(2), QStringList(4)); // no figures
    QVERIFY(model.index(0, 0).data(Qt::ToolTipRole).toString().contains(u"cannot be understood"_s));
    QVERIFY(!isChoosable(model, 0));
    QCOMPARE(model.firstWhole(), -1);
}

void VersionsModelTest::aVersionThatCannotBeReadSaysSo()
{
    const QString copy = m_log->copy(LogbookFolder::document(u"a"_s));
    QFile::setPermissions(m_log->root(), QFile::Permissions(0x7777));
    const Refusal closed(copy, 0);
    QVERIFY(closed.works());
    const VersionsModel model(m_log->folder());
    QVERIFY2(row(model, 0).first().endsWith(u" (cannot be read)"_s), qPrintable(row(model, 0).first()));
    QCOMPARE(model.index(0, 0).data(Qt::ToolTipRole).toString(), u"permission denied"_s);
    QVERIFY(!isChoosable(model, 0));
}

void VersionsModelTest::filesThatWerePutAsideAreOfferedBehindTheCopies()
{
    m_log->copy(LogbookFolder::document(u"a"_s));
    QVERIFY(Test::write(m_log->file(u"voltbok-broken-20261101-120000-000Z.xml"_s),
                        LogbookFolder::document(u"b"_s)));
    QVERIFY(Test::write(m_log->file(u"voltbok-broken-20261102-120000-000Z.xml"_s), "half"));
    const VersionsModel model(m_log->folder());
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(row(model, 1).first(), u"voltbok-broken-20261102-120000-000Z.xml (damaged)"_s);
    QCOMPARE(row(model, 2).first(), u"voltbok-broken-20261101-120000-000Z.xml"_s);
    QVERIFY(isChoosable(model, 2));
    QVERIFY(!model.isCopy(1));
    QCOMPARE(model.document(2), LogbookFolder::document(u"b"_s));
}

void VersionsModelTest::aVersionInNoFileIsOfferedLast()
{
    m_log->copy(LogbookFolder::document(u"a"_s));
    VersionsModel model(m_log->folder());
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.add(u"What was read"_s, LogbookFolder::document(u"b"_s));
    model.add(u"No logbook"_s, "half");
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(row(model, 1).first(), u"What was read"_s);
    QCOMPARE(model.document(1), LogbookFolder::document(u"b"_s));
    QVERIFY(!model.isCopy(1));
    QVERIFY(isChoosable(model, 1));
}

void VersionsModelTest::theFirstWholeOneMayBeBehindDamagedOnes()
{
    m_log->copy(LogbookFolder::document(u"a"_s));
    m_log->copy("half");
    m_log->copy(QByteArray());
    QCOMPARE(VersionsModel(m_log->folder()).firstWhole(), 2);
}

void VersionsModelTest::aVersionIsReadWhenItIsShown()
{
    const QString path = m_log->copy(LogbookFolder::document(u"a"_s));
    const VersionsModel model(m_log->folder());
    QVERIFY(Test::write(path, "damaged in between"));
    QVERIFY(!isChoosable(model, 0));
    QVERIFY(Test::write(path, LogbookFolder::document(u"c"_s)));
    QCOMPARE(model.document(0), LogbookFolder::document(u"c"_s));
}

void VersionsModelTest::copiesThatCannotBeListedAreMissed_data()
{
    QTest::addColumn<bool>("copied");
    QTest::addColumn<bool>("listable");
    QTest::addColumn<bool>("complete");
    QTest::newRow("no folder of copies") << false << true << true;
    QTest::newRow("a folder of copies") << true << true << true;
    QTest::newRow("one that cannot be listed") << true << false << false;
}

void VersionsModelTest::copiesThatCannotBeListedAreMissed()
{
    QFETCH(bool, copied);
    QFETCH(bool, listable);
    if (copied)
        m_log->copy(LogbookFolder::document(u"a"_s));
    QVERIFY(Test::write(m_log->file(u"voltbok-broken-20261101-120000-000Z.xml"_s),
                        LogbookFolder::document(u"b"_s)));
    for (const QString &folder : {m_log->root(), m_log->path()})
        QFile::setPermissions(folder, QFile::Permissions(0x7777));
    std::unique_ptr<Refusal> closed;
    if (!listable) {
        closed = std::make_unique<Refusal>(m_log->folder().backups().path(), 0);
        QVERIFY(closed->works());
    }
    const VersionsModel model(m_log->folder());
    QTEST(model.isComplete(), "complete");
    QCOMPARE(model.rowCount(), copied && listable ? 2 : 1); // what was put aside is offered all the same
}

void VersionsModelTest::twoThousandCopiesOpenAtOnce()
{
    const QByteArray large = LogbookFolder::document(QString(1'000'000, u'x'));
    const QByteArray first = QFile::encodeName(m_log->copy(large));
    for (int number = 2; number <= 2000; ++number) {
        Copy copy;
        copy.number = static_cast<quint64>(number);
        copy.time = LogbookFolder::noon().addSecs(number);
        const QString path = m_log->folder().backups().filePath(Backups::fileName(copy));
        QCOMPARE(::link(first, QFile::encodeName(path)), 0);
    }
    QElapsedTimer timer;
    timer.start();
    VersionsModel model(m_log->folder());
    QCOMPARE(model.firstWhole(), 0);
    const qint64 made = timer.elapsed();
    QTableView view;
    view.setModel(&model);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    view.selectRow(0);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.grab();
    const qint64 shown = timer.elapsed();
    qInfo("made after %lld ms, shown after %lld ms", static_cast<long long>(made),
          static_cast<long long>(shown));
    QCOMPARE(model.rowCount(), 2000);
    QVERIFY(made < 1000);
    QVERIFY(shown < 3000); // all of them take more than ten seconds
}

QTEST_MAIN(VersionsModelTest)
#include "tst_versionsmodel.moc"
